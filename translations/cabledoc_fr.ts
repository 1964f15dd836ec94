<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>BKXMLEditor</name>
    <message>
        <source>The file name contains a NUL character.</source>
        <translation>Le nom du fichier contient un caractère NUL.</translation>
    </message>
    <message>
        <source>The file could not be loaded, so it is not replaced. Save under another name.</source>
        <translation>Le fichier n&apos;a pas pu être chargé. Il n&apos;est pas remplacé ; enregistrez sous un autre nom.</translation>
    </message>
</context>
<context>
    <name>BktEditor</name>
    <message>
        <source>%1 is a bad version number in BktEditor::checkVersion.</source>
        <translation>%1 n&apos;est pas un numéro de version valable (BktEditor::checkVersion).</translation>
    </message>
    <message>
        <source>Unable to create template with NULL filename</source>
        <translation>Impossible de créer un modèle sans nom de fichier</translation>
    </message>
    <message>
        <source>Empty or null filename in BktEditor::Load</source>
        <translation>BktEditor::Load sans nom de fichier</translation>
    </message>
    <message>
        <source>Bkt file %1 does not exist</source>
        <translation>Le fichier modèle %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>Error parsing Bkt file %1
 on line %2,
 column %3,
%4</source>
        <translation>Erreur dans le fichier modèle %1
 ligne %2,
 colonne %3,
%4</translation>
    </message>
    <message>
        <source>Unable to parse Bkt file %1</source>
        <translation>Impossible de lire le fichier modèle %1</translation>
    </message>
    <message>
        <source>Filename is empty.</source>
        <translation>Le nom de fichier est vide.</translation>
    </message>
    <message>
        <source>Unable to Save file (NULL)</source>
        <translation>Impossible d&apos;enregistrer sans nom de fichier</translation>
    </message>
</context>
<context>
    <name>CsvText</name>
    <message>
        <source>This is a file of a spreadsheet program, not CSV. Save the sheet as CSV, in UTF-8 if there is a choice, and use that file.</source>
        <translation>C&apos;est le fichier d&apos;un tableur, pas du CSV. Enregistrez la feuille en CSV, en UTF-8 si possible, et utilisez ce fichier.</translation>
    </message>
    <message>
        <source>a quotation mark is missing or is in the wrong place</source>
        <translation>un guillemet manque ou se trouve au mauvais endroit</translation>
    </message>
    <message>
        <source>the text is not UTF-16</source>
        <translation>le texte n&apos;est pas en UTF-16</translation>
    </message>
    <message>
        <source>the text is not Windows-1252</source>
        <translation>le texte n&apos;est pas en Windows-1252</translation>
    </message>
    <message>
        <source>the text is not UTF-8; try --encoding windows-1252</source>
        <translation>le texte n&apos;est pas en UTF-8 ; essayez --encoding windows-1252</translation>
    </message>
</context>
<context>
    <name>DeviceType</name>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Laptop</source>
        <translation>Ordinateur portable</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Commutateur</translation>
    </message>
    <message>
        <source>Router</source>
        <translation>Routeur</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Point d&apos;accès</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>Téléviseur</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Haut-parleur</translation>
    </message>
    <message>
        <source>Patch panel</source>
        <translation>Panneau de brassage</translation>
    </message>
    <message>
        <source>Rack</source>
        <translation>Baie</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>DocumentCheck</name>
    <message>
        <source>A file name is needed</source>
        <translation>Aucun fichier indiqué</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, ligne %2, colonne %3 : %4</translation>
    </message>
    <message>
        <source>%1 is not an XML file</source>
        <translation>%1 n&apos;est pas un fichier XML</translation>
    </message>
    <message>
        <source>the file does not begin with the element &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>le fichier ne commence ni par l&apos;élément &quot;%1&quot; ni par &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known version</source>
        <translation>&quot;%1&quot; n&apos;est pas une version connue</translation>
    </message>
    <message>
        <source>version %1 is older than %2</source>
        <translation>la version %1 est antérieure à %2</translation>
    </message>
    <message>
        <source>it has the same tag as the element in line %1</source>
        <translation>sa balise est celle de la ligne %1</translation>
    </message>
    <message>
        <source>it has the same id &quot;%1&quot; as the element in line %2</source>
        <translation>son identifiant &quot;%1&quot; est celui de la ligne %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot; : %2</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de définition de test &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no port &quot;%2&quot;</source>
        <translation>&quot;%1&quot; : il n&apos;y a pas de prise &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no port or vertical run &quot;%2&quot;</source>
        <translation>&quot;%1&quot; : il n&apos;y a pas de prise ni de colonne montante &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no point, port or vertical run &quot;%2&quot;</source>
        <translation>&quot;%1&quot; : il n&apos;y a pas de point, de prise ni de colonne montante &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there is no bundle &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de faisceau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no cable &quot;%2&quot;</source>
        <translation>&quot;%1&quot; : il n&apos;y a pas de câble &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no device or bend &quot;%2&quot;</source>
        <translation>&quot;%1&quot; : il n&apos;y a pas d&apos;appareil ni de coude &quot;%2&quot;</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains &quot;%2&quot;, which a save cannot write</source>
        <translation>&quot;%1&quot; contient &quot;%2&quot;, perdu à l&apos;enregistrement</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: &quot;%2&quot; is not a usable number</source>
        <translation>&quot;%1&quot; : &quot;%2&quot; n&apos;est pas un nombre utilisable</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de fichier &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>&quot;%1&quot; est illisible : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the content of the test</source>
        <translation>&quot;%1&quot; n&apos;a pas le contenu du test</translation>
    </message>
</context>
<context>
    <name>Drawing</name>
    <message>
        <source>Passed</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Non testé</translation>
    </message>
    <message>
        <source>Unknown result</source>
        <translation>Résultat inconnu</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échoué</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Sans type</translation>
    </message>
    <message>
        <source>No use</source>
        <translation>Sans usage</translation>
    </message>
    <message>
        <source>No bundle</source>
        <translation>Sans faisceau</translation>
    </message>
    <message>
        <source>Several of these</source>
        <translation>Plusieurs de ceux-ci</translation>
    </message>
    <message>
        <source>No samples</source>
        <translation>Aucun échantillon</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>First series</source>
        <translation>Première série</translation>
    </message>
    <message>
        <source>Second series</source>
        <translation>Deuxième série</translation>
    </message>
    <message>
        <source>Values of the tester over the numbers of the samples</source>
        <translation>Valeurs du testeur selon les numéros des échantillons</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Type : %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Heure : %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>Tester: %1</source>
        <translation>Testeur : %1</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version : %1</translation>
    </message>
    <message>
        <source>Near-end crosstalk</source>
        <translation>Paradiaphonie</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Écho</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>The cable &quot;%1&quot; has no response curves.</source>
        <translation>Le câble &quot;%1&quot; n&apos;a pas de courbes de réponse.</translation>
    </message>
    <message>
        <source>Response curves of %1</source>
        <translation>Courbes de réponse de %1</translation>
    </message>
    <message>
        <source>Response curves</source>
        <translation>Courbes de réponse</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Drawings need an application with fonts, which is a QGuiApplication.</source>
        <translation>Les dessins ont besoin d&apos;une application avec des polices, c&apos;est-à-dire une QGuiApplication.</translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; cannot be used. It is part of the package fonts-dejavu-core.</source>
        <translation>Il n&apos;y a pas de police utilisable &quot;%1&quot;. Elle fait partie du paquet fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>%1: the background picture %2 cannot be read</source>
        <translation>%1 : l&apos;image de fond %2 est illisible</translation>
    </message>
    <message>
        <source>%1 cables</source>
        <translation>%1 câbles</translation>
    </message>
    <message>
        <source>%1 (%2 cables)</source>
        <translation>%1 (%2 câbles)</translation>
    </message>
    <message>
        <source>%1, from left to right: %2</source>
        <translation>%1, de gauche à droite : %2</translation>
    </message>
    <message>
        <source>Unknown use</source>
        <translation>Usage inconnu</translation>
    </message>
    <message>
        <source>Cables: %1</source>
        <translation>Câbles : %1</translation>
    </message>
    <message>
        <source>Point on the way of cables</source>
        <translation>Point sur le chemin des câbles</translation>
    </message>
    <message>
        <source>Vertical run</source>
        <translation>Colonne montante</translation>
    </message>
    <message>
        <source>Numbers on the plan</source>
        <translation>Numéros sur le plan</translation>
    </message>
    <message>
        <source>Rooms without a place</source>
        <translation>Pièces sans emplacement</translation>
    </message>
    <message>
        <source>Ports without a place</source>
        <translation>Prises sans emplacement</translation>
    </message>
    <message>
        <source>Vertical runs without a place</source>
        <translation>Colonnes montantes sans emplacement</translation>
    </message>
    <message>
        <source>Points without a place</source>
        <translation>Points sans emplacement</translation>
    </message>
    <message>
        <source>Texts without a place</source>
        <translation>Textes sans emplacement</translation>
    </message>
    <message>
        <source>There is no sheet with the tag &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de feuille avec l&apos;étiquette &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>%1 is reduced to %2, because it is larger than the paper</source>
        <translation>%1 est réduit à %2, car il est plus grand que le papier</translation>
    </message>
    <message>
        <source>None (%1)</source>
        <translation>Aucune (%1)</translation>
    </message>
    <message>
        <source>Devices without a place</source>
        <translation>Appareils sans emplacement</translation>
    </message>
    <message>
        <source>Bends without a place</source>
        <translation>Coudes sans emplacement</translation>
    </message>
    <message>
        <source>Connections without a way</source>
        <translation>Liaisons sans chemin</translation>
    </message>
    <message>
        <source>Connection of type %1</source>
        <translation>Liaison de type %1</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de format de papier &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The page settings of the job give no sheet that can be drawn. Choose a paper.</source>
        <translation>Les réglages de page du projet ne donnent pas de feuille que l&apos;on puisse dessiner. Choisissez un papier.</translation>
    </message>
    <message>
        <source>the logo %1 cannot be read</source>
        <translation>le logo %1 est illisible</translation>
    </message>
    <message>
        <source>There is no floor with the tag &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas d&apos;étage avec l&apos;étiquette &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Floor plans</source>
        <translation>Plans d&apos;étage</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Étage</translation>
    </message>
    <message>
        <source>The picture is too large. Choose fewer dots to the inch.</source>
        <translation>L&apos;image est trop grande. Choisissez moins de points par pouce.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture. Choose fewer dots to the inch.</source>
        <translation>La mémoire ne suffit pas pour l&apos;image. Choisissez moins de points par pouce.</translation>
    </message>
    <message>
        <source>The picture cannot be written as PNG.</source>
        <translation>L&apos;image ne peut pas être écrite en PNG.</translation>
    </message>
    <message>
        <source>Riser</source>
        <translation>Schéma des colonnes montantes</translation>
    </message>
    <message>
        <source>Rooms: %1</source>
        <translation>Pièces : %1</translation>
    </message>
    <message>
        <source>Ports: %1</source>
        <translation>Prises : %1</translation>
    </message>
    <message>
        <source>Ports: %1, cables: %2</source>
        <translation>Prises : %1, câbles : %2</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>sans type</translation>
    </message>
    <message>
        <source>Vertical runs</source>
        <translation>Colonnes montantes</translation>
    </message>
    <message>
        <source>%1: at most %2 cables</source>
        <translation>%1 : %2 câbles au plus</translation>
    </message>
    <message>
        <source>From %1 to %2: %3 cables</source>
        <translation>De %1 à %2 : %3 câbles</translation>
    </message>
    <message>
        <source>Cables between floors without a vertical run: %1</source>
        <translation>Câbles entre étages sans colonne montante : %1</translation>
    </message>
    <message>
        <source>the riser does not fit on the paper, so the page is larger</source>
        <translation>le schéma des colonnes montantes ne tient pas sur le papier, la page est donc plus grande</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>%1: list</source>
        <translation>%1 : liste</translation>
    </message>
    <message>
        <source>%1 would need more than %2 sheets of this paper in this scale.</source>
        <translation>%1 demanderait plus de %2 feuilles de ce papier à cette échelle.</translation>
    </message>
    <message>
        <source>%1: part %2</source>
        <translation>%1 : partie %2</translation>
    </message>
    <message>
        <source>Sheet %1</source>
        <translation>Feuille %1</translation>
    </message>
    <message>
        <source>Overview of %1, not to scale</source>
        <translation>Vue d&apos;ensemble de %1, sans échelle</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Révision</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>The pages cannot be written to a temporary file in %1.</source>
        <translation>Les pages ne peuvent pas être écrites dans un fichier temporaire de %1.</translation>
    </message>
    <message>
        <source>no font has these characters, so they are missing: %1</source>
        <translation>aucune police n&apos;a ces caractères, qui manquent donc : %1</translation>
    </message>
</context>
<context>
    <name>FileValidator</name>
    <message>
        <source>;&lt;&gt;|&amp;?$*&quot;</source>
        <comment>forbidden characters in field</comment>
        <extracomment>Further characters may be added behind these.</extracomment>
        <translation>;&lt;&gt;|&amp;?$*&quot;</translation>
    </message>
</context>
<context>
    <name>JobEditor</name>
    <message>
        <source>cable_box</source>
        <comment>use name for Cable Box (Cblbx)</comment>
        <extracomment>A word of the file format: it stays as it is.</extracomment>
        <translation>cable_box</translation>
    </message>
    <message>
        <source>TV</source>
        <comment>short for television</comment>
        <extracomment>A word of the file format: it stays as it is.</extracomment>
        <translation>TV</translation>
    </message>
    <message>
        <source>Cable</source>
        <extracomment>What generated ids of cables begin with, such as &quot;Cable001&quot;; no characters beyond Latin-1.</extracomment>
        <translation>Câble</translation>
    </message>
    <message>
        <source>Filename given to JobEditor is a directory</source>
        <translation>Le nom de fichier donné à JobEditor est un répertoire</translation>
    </message>
    <message>
        <source>Untitled1.job</source>
        <extracomment>File name. It stays as it is: checkUntitledJob() knows the word &quot;Untitled&quot;.</extracomment>
        <translation>Untitled1.job</translation>
    </message>
    <message>
        <source>Untitled%1.job</source>
        <extracomment>File name. It stays as it is: checkUntitledJob() knows the word &quot;Untitled&quot;.</extracomment>
        <translation>Untitled%1.job</translation>
    </message>
    <message>
        <source>Null filename given to New(const &amp;Qstring)</source>
        <translation>New(const &amp;Qstring) sans nom de fichier</translation>
    </message>
    <message>
        <source>A job is open. Unload it before making a new one.</source>
        <translation>Un projet est ouvert. Il faut le fermer avant d&apos;en créer un autre.</translation>
    </message>
    <message>
        <source>Floor_</source>
        <extracomment>What generated names of floors begin with, such as &quot;Floor_1&quot;; no characters beyond Latin-1.</extracomment>
        <translation>Étage_</translation>
    </message>
    <message>
        <source>Sheet_</source>
        <extracomment>What generated names of sheets begin with; no characters beyond Latin-1.</extracomment>
        <translation>Feuille_</translation>
    </message>
    <message>
        <source>Empty or null filename in JobEditor::Load</source>
        <translation>JobEditor::Load sans nom de fichier</translation>
    </message>
    <message>
        <source>Job file %1 does not exist</source>
        <translation>Le fichier de projet %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>Error parsing job file %1
 on line %2,
 column %3,
%4</source>
        <translation>Erreur dans le fichier de projet %1
 ligne %2,
 colonne %3,
%4</translation>
    </message>
    <message>
        <source>Unable to parse job file %1</source>
        <translation>Impossible de lire le fichier de projet %1</translation>
    </message>
    <message>
        <source>Incompatible version of job file %1</source>
        <translation>Version incompatible du fichier de projet %1</translation>
    </message>
    <message>
        <source>Filename is Empty</source>
        <translation>Le nom de fichier est vide</translation>
    </message>
    <message>
        <source>Filename given is a directory</source>
        <translation>Le nom de fichier est celui d&apos;un répertoire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an XML element</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un élément XML</translation>
    </message>
    <message>
        <source>A job can hold at most %1 releases</source>
        <translation>Un projet ne contient pas plus de %1 révisions</translation>
    </message>
    <message>
        <source>Unable to open file.</source>
        <translation>Impossible d&apos;ouvrir le fichier.</translation>
    </message>
    <message>
        <source>This is the job&apos;s own file. Choose another name for the template.</source>
        <translation>C&apos;est le fichier du projet lui-même. Un modèle a besoin d&apos;un autre nom.</translation>
    </message>
</context>
<context>
    <name>Labels</name>
    <message>
        <source>Code 128 only holds characters of ASCII, and not &quot;%1&quot;; a QR code can hold it</source>
        <translation>Code 128 n&apos;admet que des caractères ASCII, et non &quot;%1&quot; ; un code QR admet ce texte</translation>
    </message>
    <message>
        <source>the code is empty</source>
        <translation>le code est vide</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long for a code</source>
        <translation>&quot;%1&quot; est trop long pour un code</translation>
    </message>
    <message>
        <source>the code with its light zone needs %1 mm, and the label has room for %2 mm</source>
        <translation>le code avec sa zone de silence demande %1 mm, et l&apos;étiquette a de la place pour %2 mm</translation>
    </message>
    <message>
        <source>%1 lines are %2 mm high at 5 points, and the label has room for %3 mm</source>
        <translation>%1 lignes mesurent %2 mm de haut en corps 5, et l&apos;étiquette a de la place pour %3 mm</translation>
    </message>
    <message>
        <source>no font has the character %1</source>
        <translation>aucune police n&apos;a le caractère %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 mm wide at 5 points, and the label has room for %3 mm</source>
        <translation>&quot;%1&quot; mesure %2 mm de large en corps 5, et l&apos;étiquette a de la place pour %3 mm</translation>
    </message>
    <message>
        <source>the pattern has a &quot;}&quot; without a &quot;{&quot;; write &quot;}}&quot; for a brace</source>
        <translation>le motif a une &quot;}&quot; sans &quot;{&quot; ; écrivez &quot;}}&quot; pour une accolade</translation>
    </message>
    <message>
        <source>the pattern has a &quot;{&quot; without a &quot;}&quot;; write &quot;{{&quot; for a brace</source>
        <translation>le motif a une &quot;{&quot; sans &quot;}&quot; ; écrivez &quot;{{&quot; pour une accolade</translation>
    </message>
    <message>
        <source>the pattern has a field without a name</source>
        <translation>le motif a un champ sans nom</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de champ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression</source>
        <translation>&quot;%1&quot; n&apos;est pas une expression régulière</translation>
    </message>
    <message>
        <source>only cables have two ends</source>
        <translation>seuls les câbles ont deux extrémités</translation>
    </message>
    <message>
        <source>a sheet has the places 1 to %1</source>
        <translation>une feuille a les emplacements 1 à %1</translation>
    </message>
    <message>
        <source>the label has no text</source>
        <translation>l&apos;étiquette n&apos;a pas de texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a label with the same text</source>
        <translation>&quot;%1&quot; a une étiquette avec le même texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the same code</source>
        <translation>&quot;%1&quot; a le même code</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form %2</source>
        <translation>&quot;%1&quot; n&apos;a pas la forme %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
</context>
<context>
    <name>LengthValidator</name>
    <message>
        <source>1234567890</source>
        <extracomment>Further characters may be added behind these.</extracomment>
        <translation>1234567890</translation>
    </message>
</context>
<context>
    <name>PortUse</name>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>TV</source>
        <translation>TV</translation>
    </message>
    <message>
        <source>Cable box</source>
        <translation>Décodeur</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Fire alarm</source>
        <translation>Alarme incendie</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Spare</source>
        <translation>Réserve</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size such as 500M</source>
        <translation>&quot;%1&quot; n&apos;est pas une taille comme 500M</translation>
    </message>
    <message>
        <source>%1 is needed</source>
        <translation>%1 est nécessaire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>&quot;%1&quot; est un argument de trop</translation>
    </message>
    <message>
        <source>&quot;cabledoc %1 --help&quot; shows how to use it</source>
        <translation>&quot;cabledoc %1 --help&quot; en montre le mode d&apos;emploi</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Câble</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Length (m)</source>
        <translation>Longueur (m)</translation>
    </message>
    <message>
        <source>Length (ft)</source>
        <translation>Longueur (ft)</translation>
    </message>
    <message>
        <source>both names must end in &quot;.job&quot;, or both in &quot;.bkt&quot;</source>
        <translation>les deux noms doivent finir par &quot;.job&quot;, ou tous les deux par &quot;.bkt&quot;</translation>
    </message>
    <message>
        <source>Test status</source>
        <translation>État des tests</translation>
    </message>
    <message>
        <source>Cables</source>
        <translation>Câbles</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Étage</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Balise</translation>
    </message>
    <message>
        <source>Ceiling</source>
        <translation>Plafond</translation>
    </message>
    <message>
        <source>Rooms</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Prises</translation>
    </message>
    <message>
        <source>Vertical runs</source>
        <translation>Colonnes montantes</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Connexions</translation>
    </message>
    <message>
        <source>Active ports</source>
        <translation>Prises actives</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from 1 to %2</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre de 1 à %2</translation>
    </message>
    <message>
        <source>floors %1, rooms %2, ports %3, cables %4 to add; %5 cables to change
</source>
        <translation>à ajouter : étages %1, pièces %2, prises %3, câbles %4 ; à modifier : câbles %5
</translation>
    </message>
    <message>
        <source>floors %1, rooms %2, ports %3, cables %4 added; %5 cables changed
</source>
        <translation>ajouts : étages %1, pièces %2, prises %3, câbles %4 ; modifications : câbles %5
</translation>
    </message>
    <message>
        <source>The job or template file.</source>
        <translation>Le fichier de projet ou de modèle.</translation>
    </message>
    <message>
        <source>Print JSON instead of text.</source>
        <translation>Afficher du JSON au lieu de texte.</translation>
    </message>
    <message>
        <source>The largest file to read, such as 500M; 4G by default.</source>
        <translation>Le plus gros fichier à lire, tel que 500M ; sinon 4G.</translation>
    </message>
    <message>
        <source>Show what a job file holds.</source>
        <translation>Montrer ce que contient un projet.</translation>
    </message>
    <message>
        <source>Print lengths in metres instead of feet.</source>
        <translation>Afficher les longueurs en mètres au lieu de pieds.</translation>
    </message>
    <message>
        <source>List the cables of a job.</source>
        <translation>Lister les câbles d&apos;un projet.</translation>
    </message>
    <message>
        <source>The list shows their ends, the status of their tests and their measured lengths.</source>
        <translation>La liste montre leurs extrémités, l&apos;état de leurs tests et leurs longueurs mesurées.</translation>
    </message>
    <message>
        <source>Convert a file of an earlier version.</source>
        <translation>Convertir un fichier d&apos;une version antérieure.</translation>
    </message>
    <message>
        <source>The new file has the current version. FILE is not changed.</source>
        <translation>Le nouveau fichier a la version actuelle. FILE n&apos;est pas modifié.</translation>
    </message>
    <message>
        <source>The template. It is not changed.</source>
        <translation>Le modèle. Il n&apos;est pas modifié.</translation>
    </message>
    <message>
        <source>Only add the default test definitions and the bundles that the job lacks.</source>
        <translation>Ajouter seulement les définitions de test par défaut et les faisceaux qui manquent au projet.</translation>
    </message>
    <message>
        <source>Apply a template to a job.</source>
        <translation>Appliquer un modèle à un projet.</translation>
    </message>
    <message>
        <source>The contractor and the settings of the job are replaced. Test definitions and bundles that the job lacks are added.</source>
        <translation>L&apos;installateur et les réglages du projet sont remplacés. Les définitions de test et les faisceaux qui manquent au projet sont ajoutés.</translation>
    </message>
    <message>
        <source>Make a template of a job.</source>
        <translation>Faire un modèle d&apos;un projet.</translation>
    </message>
    <message>
        <source>The template gets the contractor, the settings, the test definitions and the bundles of the job.</source>
        <translation>Le modèle reçoit l&apos;installateur, les réglages, les définitions de test et les faisceaux du projet.</translation>
    </message>
    <message>
        <source>Only show what would change.</source>
        <translation>Montrer seulement ce qui changerait.</translation>
    </message>
    <message>
        <source>Bring a job up to a cable schedule.</source>
        <translation>Mettre un projet au niveau d&apos;un plan de câblage.</translation>
    </message>
    <message>
        <source>Print the cable schedule of a job as CSV.</source>
        <translation>Afficher le plan de câblage d&apos;un projet en CSV.</translation>
    </message>
    <message>
        <source>The file cannot be locked: no file can be created in its folder</source>
        <translation>Le fichier ne peut pas être verrouillé : aucun fichier ne peut être créé dans son dossier</translation>
    </message>
    <message>
        <source>Another program is changing the file: %1, process %2 on %3. If it is not, delete %4</source>
        <translation>Un autre programme modifie le fichier : %1, processus %2 sur %3. Si ce n&apos;est pas le cas, supprimez %4</translation>
    </message>
    <message>
        <source>%1 exists and is left as it is</source>
        <translation>%1 existe déjà et reste tel quel</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes :</translation>
    </message>
    <message>
        <source>Show the help of a command.</source>
        <translation>Afficher l&apos;aide d&apos;une commande.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>The command did its work.</source>
        <translation>La commande a fait son travail.</translation>
    </message>
    <message>
        <source>The command line is wrong.</source>
        <translation>La ligne de commande est incorrecte.</translation>
    </message>
    <message>
        <source>A file could not be loaded.</source>
        <translation>Un fichier n&apos;a pas pu être chargé.</translation>
    </message>
    <message>
        <source>A file could not be saved.</source>
        <translation>Un fichier n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>The command did its work, but standard output could not be written.</source>
        <translation>La commande a fait son travail, mais la sortie standard n&apos;a pas pu être écrite.</translation>
    </message>
    <message>
        <source>Usage: cabledoc COMMAND ...
</source>
        <translation>Usage : cabledoc COMMAND ...
</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Codes de sortie :</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[options]</translation>
    </message>
    <message>
        <source>Usage: cabledoc %1
</source>
        <translation>Usage : cabledoc %1
</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Arguments :</translation>
    </message>
    <message>
        <source>a command is needed</source>
        <translation>une commande est nécessaire</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de commande &quot;%1&quot;</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>sortie standard : %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>--csv and --json cannot be used together</source>
        <translation>--csv et --json ne peuvent pas être utilisés ensemble</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;option &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>standard input, &quot;-&quot;, can be read only once</source>
        <translation>l&apos;entrée standard, &quot;-&quot;, ne peut être lue qu&apos;une fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not end in &quot;.%2&quot;</source>
        <translation>&quot;%1&quot; ne finit pas par &quot;.%2&quot;</translation>
    </message>
    <message>
        <source>a file and JSON cannot both be written to standard output</source>
        <translation>un fichier et du JSON ne peuvent pas être écrits tous deux sur la sortie standard</translation>
    </message>
    <message>
        <source>the output would replace &quot;%1&quot;, which is read</source>
        <translation>la sortie remplacerait &quot;%1&quot;, qui est lu</translation>
    </message>
    <message>
        <source>there is no floor &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;étage &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there already is a floor &quot;%1&quot;</source>
        <translation>il y a déjà un étage &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de feuille &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there already is a sheet &quot;%1&quot;</source>
        <translation>il y a déjà une feuille &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;floor&quot; nor &quot;sheet&quot;</source>
        <translation>&quot;%1&quot; n&apos;est ni &quot;floor&quot; ni &quot;sheet&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name</source>
        <translation>&quot;%1&quot; ne peut pas être un nom</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Sorte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>there is no value &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de valeur &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--floor and --floors cannot be given together</source>
        <translation>--floor et --floors ne peuvent pas être utilisés ensemble</translation>
    </message>
    <message>
        <source>a floor must have a name</source>
        <translation>un étage doit avoir un nom</translation>
    </message>
    <message>
        <source>there cannot be two floors &quot;%1&quot;</source>
        <translation>il ne peut pas y avoir deux étages &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job file cannot hold</source>
        <translation>&quot;%1&quot; a un caractère qu&apos;un fichier de projet ne peut pas contenir</translation>
    </message>
    <message>
        <source>a template has no floors</source>
        <translation>un modèle n&apos;a pas d&apos;étages</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not of the form NAME=VALUE</source>
        <translation>&quot;%1&quot; n&apos;a pas la forme NAME=VALUE</translation>
    </message>
    <message>
        <source>%1 elements have no name of their own and are left out; --tags exports them too</source>
        <translation>éléments sans nom propre qui sont omis : %1 ; --tags les exporte aussi</translation>
    </message>
    <message>
        <source>%1 added, %2 changed, %3 renamed, %4 moved, %5 removed
</source>
        <translation>ajouts : %1, modifications : %2, changements de nom : %3, déplacements : %4, suppressions : %5
</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesurée</translation>
    </message>
    <message>
        <source>without</source>
        <translation>sans</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimée</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Other floor</source>
        <translation>Autre étage</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Faisceau</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Tirages</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Plus long</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Bobine</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>Bobines</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnus</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Trop longs</translation>
    </message>
    <message>
        <source>All cables</source>
        <translation>Tous les câbles</translation>
    </message>
    <message>
        <source>Cables by type</source>
        <translation>Câbles par type</translation>
    </message>
    <message>
        <source>Cables by use</source>
        <translation>Câbles par usage</translation>
    </message>
    <message>
        <source>Cables by floor</source>
        <translation>Câbles par étage</translation>
    </message>
    <message>
        <source>Cables by bundle</source>
        <translation>Câbles par faisceau</translation>
    </message>
    <message>
        <source>Cables by test status</source>
        <translation>Câbles par état des tests</translation>
    </message>
    <message>
        <source>Ports by use</source>
        <translation>Prises par usage</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>À commander</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>The lengths are estimated from the plan.</source>
        <translation>Les longueurs sont estimées d&apos;après le plan.</translation>
    </message>
    <message>
        <source>They include %1 % spare.</source>
        <translation>Elles comprennent %1 % de réserve.</translation>
    </message>
    <message>
        <source>The cables of a bundle with the same group number are one run of the bundle.</source>
        <translation>Les câbles d&apos;un faisceau avec le même numéro de groupe sont un tirage du faisceau.</translation>
    </message>
    <message>
        <source>Each run is cut from one coil, without a splice: the longest runs first, each from the first coil that has enough left (first-fit decreasing).</source>
        <translation>Chaque tirage est coupé dans une seule bobine, sans épissure : d&apos;abord les plus longs, chacun dans la première bobine dont le reste suffit (first-fit decreasing).</translation>
    </message>
    <message>
        <source>Lengths are in %1. &quot;without&quot; counts the cables without such a length. The difference is measured minus estimated, for cables that have both.</source>
        <translation>Les longueurs sont en %1. &quot;sans&quot; compte les câbles sans une telle longueur. La différence est mesurée moins estimée, pour les câbles qui ont les deux.</translation>
    </message>
    <message>
        <source>Cables of unknown length, which are not in the order: %1</source>
        <translation>Câbles de longueur inconnue, qui ne sont pas à commander : %1</translation>
    </message>
    <message>
        <source>Cables that are longer than a coil: %1</source>
        <translation>Câbles plus longs qu&apos;une bobine : %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a percentage such as 10%</source>
        <translation>&quot;%1&quot; n&apos;est pas un pourcentage comme 10%</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a coil such as 305m, 1000ft or CAT6=305m</source>
        <translation>&quot;%1&quot; n&apos;est pas une bobine comme 305m, 1000ft ou CAT6=305m</translation>
    </message>
    <message>
        <source>no cable has the type or bundle &quot;%1&quot;</source>
        <translation>aucun câble n&apos;a le type ou le faisceau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port, vertical run or cable &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de prise, de colonne montante ni de câble &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no cable &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de câble &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no room &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de pièce &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no network device &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;appareil réseau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>exactly one of PORT or CABLE, --cable, --room and --device is needed</source>
        <translation>il faut exactement un seul parmi PORT ou CABLE, --cable, --room et --device</translation>
    </message>
    <message>
        <source>no port</source>
        <translation>aucune prise</translation>
    </message>
    <message>
        <source>missing: %1</source>
        <translation>manquant : %1</translation>
    </message>
    <message>
        <source>point %1</source>
        <translation>point %1</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>prise %1</translation>
    </message>
    <message>
        <source>vertical run %1</source>
        <translation>colonne montante %1</translation>
    </message>
    <message>
        <source>drop</source>
        <translation>descente</translation>
    </message>
    <message>
        <source>between the floors</source>
        <translation>entre les étages</translation>
    </message>
    <message>
        <source>between the floors, without a vertical run</source>
        <translation>entre les étages, sans colonne montante</translation>
    </message>
    <message>
        <source>straight on</source>
        <translation>en ligne droite</translation>
    </message>
    <message>
        <source>straight on, the floor plan has no scale</source>
        <translation>en ligne droite, le plan d&apos;étage n&apos;a pas d&apos;échelle</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>%1 cables: %2</source>
        <translation>%1 câbles : %2</translation>
    </message>
    <message>
        <source>The last cable leads back to the first one.</source>
        <translation>Le dernier câble revient au premier.</translation>
    </message>
    <message>
        <source>Cable %1</source>
        <translation>Câble %1</translation>
    </message>
    <message>
        <source>(other cables that end here: %1)</source>
        <translation>(autres câbles qui finissent ici : %1)</translation>
    </message>
    <message>
        <source>No cable: %1</source>
        <translation>Sans câble : %1</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>aucun appareil</translation>
    </message>
    <message>
        <source>%1, bend %2</source>
        <translation>%1, coude %2</translation>
    </message>
    <message>
        <source>%1, device %2</source>
        <translation>%1, appareil %2</translation>
    </message>
    <message>
        <source>%1, device %2 (%3)</source>
        <translation>%1, appareil %2 (%3)</translation>
    </message>
    <message>
        <source>connection %1</source>
        <translation>connexion %1</translation>
    </message>
    <message>
        <source>No connection: %1</source>
        <translation>Sans connexion : %1</translation>
    </message>
    <message>
        <source>The job file, or &quot;-&quot; for standard input.</source>
        <translation>Le fichier de projet, ou &quot;-&quot; pour l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Print CSV instead of text.</source>
        <translation>Afficher du CSV au lieu de texte.</translation>
    </message>
    <message>
        <source>The encoding of the CSV file: UTF-8, UTF-16 or windows-1252. By default, it is UTF-8 or UTF-16.</source>
        <translation>Le codage du fichier CSV : UTF-8, UTF-16 ou windows-1252. Sinon, c&apos;est UTF-8 ou UTF-16.</translation>
    </message>
    <message>
        <source>Remove the apostrophes that --protect-formulas adds.</source>
        <translation>Enlever les apostrophes que --protect-formulas ajoute.</translation>
    </message>
    <message>
        <source>The delimiter of the fields: comma (the default), semicolon or tab.</source>
        <translation>Le séparateur des champs : comma (par défaut), semicolon ou tab.</translation>
    </message>
    <message>
        <source>Begin with a byte order mark, which some spreadsheets need to recognise UTF-8.</source>
        <translation>Commencer par une marque d&apos;ordre des octets, dont certains tableurs ont besoin pour reconnaître l&apos;UTF-8.</translation>
    </message>
    <message>
        <source>Put an apostrophe before fields that a spreadsheet would run as formulas.</source>
        <translation>Mettre une apostrophe devant les champs qu&apos;un tableur exécuterait comme des formules.</translation>
    </message>
    <message>
        <source>Write to this file instead of standard output.</source>
        <translation>Écrire dans ce fichier au lieu de la sortie standard.</translation>
    </message>
    <message>
        <source>Save the changed job as this file, or to standard output if it is &quot;-&quot;. FILE.job stays as it is.</source>
        <translation>Enregistrer le projet modifié sous ce nom, ou l&apos;écrire sur la sortie standard si c&apos;est &quot;-&quot;. FILE.job reste tel quel.</translation>
    </message>
    <message>
        <source>Replace the file that is written if it exists.</source>
        <translation>Remplacer le fichier écrit s&apos;il existe déjà.</translation>
    </message>
    <message>
        <source>The file to write, or &quot;-&quot; for standard output.</source>
        <translation>Le nouveau fichier, ou &quot;-&quot; pour la sortie standard.</translation>
    </message>
    <message>
        <source>The job or template file, or &quot;-&quot; for a job from standard input.</source>
        <translation>Le fichier de projet ou de modèle, ou &quot;-&quot; pour un projet de l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Save the changed file as this one. FILE stays as it is.</source>
        <translation>Enregistrer le fichier modifié sous ce nom. FILE reste tel quel.</translation>
    </message>
    <message>
        <source>The table: </source>
        <translation>Le tableau : </translation>
    </message>
    <message>
        <source>. Templates have the first two.</source>
        <translation>. Les modèles ont les deux premiers.</translation>
    </message>
    <message>
        <source>The unit of positions and heights: px (pixels, and feet for heights; the default), ft or m. Positions in ft or m need a scale.</source>
        <translation>L&apos;unité des positions et des hauteurs : px (pixels, et pieds pour les hauteurs ; par défaut), ft ou m. Les positions en ft ou m demandent une échelle.</translation>
    </message>
    <message>
        <source>The columns to show, separated by commas.</source>
        <translation>Les colonnes à afficher, séparées par des virgules.</translation>
    </message>
    <message>
        <source>Only show what fulfils the condition: type=CAT6, type!=CAT6, id~PATTERN or id!~PATTERN, where the pattern is a regular expression. Can be given several times.</source>
        <translation>Montrer seulement ce qui remplit la condition : type=CAT6, type!=CAT6, id~PATTERN ou id!~PATTERN, où le motif est une expression régulière. Peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>The columns to sort by, separated by commas. A &quot;-&quot; before a name turns its order round.</source>
        <translation>Les colonnes de tri, séparées par des virgules. Un &quot;-&quot; devant un nom en inverse l&apos;ordre.</translation>
    </message>
    <message>
        <source>The name of a floor. This option can be given for each floor.</source>
        <translation>Le nom d&apos;un étage. Cette option peut être donnée pour chaque étage.</translation>
    </message>
    <message>
        <source>The number of floors without --floor, from 1 (the default) to 1000.</source>
        <translation>Le nombre d&apos;étages sans --floor, de 1 (par défaut) à 1000.</translation>
    </message>
    <message>
        <source>Make a new job or template.</source>
        <translation>Créer un projet ou un modèle.</translation>
    </message>
    <message>
        <source>If the name ends in &quot;.bkt&quot;, the file is a template. Otherwise it is a job with one sheet, and &quot;.job&quot; is added to a name that lacks it.</source>
        <translation>Si le nom finit par &quot;.bkt&quot;, le fichier est un modèle. Sinon, c&apos;est un projet avec une feuille, et &quot;.job&quot; est ajouté à un nom qui ne l&apos;a pas.</translation>
    </message>
    <message>
        <source>The floors and sheets are listed in the order of the file. Cables, connections and active ports are counted.</source>
        <translation>Les étages et les feuilles sont listés dans l&apos;ordre du fichier. Les câbles, les connexions et les prises actives sont comptés.</translation>
    </message>
    <message>
        <source>The job and template files. One of them may be &quot;-&quot; for standard input.</source>
        <translation>Les fichiers de projet et de modèle. L&apos;un d&apos;eux peut être &quot;-&quot; pour l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Report what is wrong with files.</source>
        <translation>Signaler ce qui ne va pas dans des fichiers.</translation>
    </message>
    <message>
        <source>Each of the first 50 findings in a file is one line; --json prints all of them. The files are not changed. The exit code is that of the worst file.</source>
        <translation>Chacun des 50 premiers constats d&apos;un fichier est une ligne ; --json les affiche tous. Les fichiers ne sont pas modifiés. Le code de sortie est celui du plus mauvais fichier.</translation>
    </message>
    <message>
        <source>The values to show, such as contractor.company, site or scale.floor-plan. All values by default.</source>
        <translation>Les valeurs à afficher, telles que contractor.company, site ou scale.floor-plan. Sinon, toutes.</translation>
    </message>
    <message>
        <source>Show single values.</source>
        <translation>Montrer des valeurs isolées.</translation>
    </message>
    <message>
        <source>There are values of the contractor, the site, the notes, the settings and the pictures of floors. A single value is printed as it is. Several are printed as NAME=VALUE.</source>
        <translation>Il y a des valeurs de l&apos;installateur, du site, des notes, des réglages et des images d&apos;étages. Une seule valeur est affichée telle quelle. Plusieurs sont affichées sous la forme NAME=VALUE.</translation>
    </message>
    <message>
        <source>A name as &quot;get&quot; shows it, and its new value.</source>
        <translation>Un nom tel que &quot;get&quot; le montre, et sa nouvelle valeur.</translation>
    </message>
    <message>
        <source>Set single values.</source>
        <translation>Fixer des valeurs isolées.</translation>
    </message>
    <message>
        <source>A scale is 1:100, &quot;20 ft&quot; (to the inch of the drawing) or none. A page is the name of a paper size such as A3, &quot;17 x 11&quot; (in inches) or none. If one of the values is wrong, nothing is changed.</source>
        <translation>Une échelle est 1:100, &quot;20 ft&quot; (par pouce du dessin) ou none. Une page est le nom d&apos;un format de papier comme A3, &quot;17 x 11&quot; (en pouces) ou none. Si l&apos;une des valeurs est incorrecte, rien n&apos;est modifié.</translation>
    </message>
    <message>
        <source>Add a column with the tags, and the elements without a name.</source>
        <translation>Ajouter une colonne avec les balises, et les éléments sans nom.</translation>
    </message>
    <message>
        <source>Print a table as CSV.</source>
        <translation>Afficher un tableau en CSV.</translation>
    </message>
    <message>
        <source>&quot;table import&quot; reads it.</source>
        <translation>&quot;table import&quot; le lit.</translation>
    </message>
    <message>
        <source>The table, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Le tableau, un fichier CSV, ou &quot;-&quot; pour l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Change elements by a table.</source>
        <translation>Modifier des éléments d&apos;après un tableau.</translation>
    </message>
    <message>
        <source>Each row names an element by its columns, such as floor, room and id. The column &quot;action&quot; says what happens to it: add, change, rename (to new_id), move (to new_floor, new_room or new_sheet) or remove. Without it, the element is changed, or added if there is none. If the table has a problem, nothing is changed. An import can be repeated: the second one changes nothing.</source>
        <translation>Chaque ligne nomme un élément par des colonnes telles que floor, room et id. La colonne &quot;action&quot; dit ce qui lui arrive : add, change, rename (en new_id), move (vers new_floor, new_room ou new_sheet) ou remove. Sans elle, l&apos;élément est modifié, ou ajouté s&apos;il n&apos;existe pas. Si le tableau a un problème, rien n&apos;est modifié. Une importation peut être répétée : la seconde ne modifie rien.</translation>
    </message>
    <message>
        <source>What is copied.</source>
        <translation>Ce qui est copié.</translation>
    </message>
    <message>
        <source>The floor or sheet.</source>
        <translation>L&apos;étage ou la feuille.</translation>
    </message>
    <message>
        <source>The name of the copy.</source>
        <translation>Le nom de la copie.</translation>
    </message>
    <message>
        <source>Copy a floor or sheet.</source>
        <translation>Copier un étage ou une feuille.</translation>
    </message>
    <message>
        <source>All that is on it is copied. The cables that end on a floor are copied too. The copies are untested and get new names. Ports keep their names. The connections of a sheet are not copied.</source>
        <translation>Tout ce qui s&apos;y trouve est copié. Les câbles qui finissent sur un étage sont copiés aussi. Leurs copies ne sont pas testées et reçoivent de nouveaux noms. Les prises gardent leurs noms. Les connexions d&apos;une feuille ne sont pas copiées.</translation>
    </message>
    <message>
        <source>List the elements of a kind.</source>
        <translation>Lister les éléments d&apos;une sorte.</translation>
    </message>
    <message>
        <source>The list has the columns of &quot;table export&quot;, and also the number of cables of ports and the status and length of cables. As text, it leaves out empty columns and tags unless --columns asks for them.</source>
        <translation>La liste a les colonnes de &quot;table export&quot;, et aussi le nombre de câbles des prises, l&apos;état et la longueur des câbles. En texte, elle omet les colonnes vides et les balises, sauf si --columns les demande.</translation>
    </message>
    <message>
        <source>The text to look for, in upper or lower case.</source>
        <translation>Le texte à chercher, en majuscules ou en minuscules.</translation>
    </message>
    <message>
        <source>Find a text in all tables and values.</source>
        <translation>Chercher un texte dans tous les tableaux et valeurs.</translation>
    </message>
    <message>
        <source>Names, texts, types, uses, colours and tags are searched.</source>
        <translation>Les noms, textes, types, usages, couleurs et balises sont parcourus.</translation>
    </message>
    <message>
        <source>List the ports without a cable.</source>
        <translation>Lister les prises sans câble.</translation>
    </message>
    <message>
        <source>The name of a port, vertical run or cable. If several ports have the name, give ROOM/PORT or FLOOR/ROOM/PORT.</source>
        <translation>Le nom d&apos;une prise, d&apos;une colonne montante ou d&apos;un câble. Si plusieurs prises ont ce nom, donnez ROOM/PORT ou FLOOR/ROOM/PORT.</translation>
    </message>
    <message>
        <source>Trace a cable, even if a port has the same name.</source>
        <translation>Suivre un câble, même si une prise a le même nom.</translation>
    </message>
    <message>
        <source>Trace the cables at all ports of a room, given as ROOM or FLOOR/ROOM.</source>
        <translation>Suivre les câbles de toutes les prises d&apos;une pièce, donnée sous la forme ROOM ou FLOOR/ROOM.</translation>
    </message>
    <message>
        <source>Trace the connections of a network device, given as DEVICE or SHEET/DEVICE.</source>
        <translation>Suivre les connexions d&apos;un appareil réseau, donné sous la forme DEVICE ou SHEET/DEVICE.</translation>
    </message>
    <message>
        <source>Show the way of cables from end to end.</source>
        <translation>Montrer le trajet de câbles de bout en bout.</translation>
    </message>
    <message>
        <source>Each part of the way has its length on the plan: the drops at the ends, the straight ways from place to place, and the ways between floors. If a length is unknown, the cable has at least the sum of the others. At a port where exactly two cables end, the way goes on from one to the other. The same holds for a vertical run, unless one of the cables is not connected to it. Where more cables end, the way ends, and the others are counted. For a vertical run, the cables that pass it are traced too.</source>
        <translation>Chaque partie du trajet a sa longueur sur le plan : les descentes aux extrémités, les lignes droites d&apos;un endroit à l&apos;autre et les passages entre étages. Si une longueur est inconnue, le câble a au moins la somme des autres. À une prise où finissent exactement deux câbles, le trajet continue de l&apos;un à l&apos;autre. Il en est de même pour une colonne montante, sauf si l&apos;un des câbles n&apos;y est pas connecté. Là où finissent plus de câbles, le trajet finit, et les autres sont comptés. Pour une colonne montante, les câbles qui y passent sont suivis aussi.</translation>
    </message>
    <message>
        <source>Add a percentage to each length of the order, such as 10%.</source>
        <translation>Ajouter un pourcentage à chaque longueur à commander, tel que 10%.</translation>
    </message>
    <message>
        <source>The length of the coils, such as 305m or 1000ft, or that of one type or bundle, such as CAT6=305m. It can be given several times.</source>
        <translation>La longueur des bobines, telle que 305m ou 1000ft, ou celle d&apos;un type ou d&apos;un faisceau, telle que CAT6=305m. Peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>Add up cables and what has to be ordered.</source>
        <translation>Additionner les câbles et ce qu&apos;il faut commander.</translation>
    </message>
    <message>
        <source>The cables are counted by type, use, floor, bundle and test status, with their measured and estimated lengths, and the ports by use. Then follows the order: the estimated length of each type and the number of coils. Each run is cut from one coil, without a splice: the longest runs first, each from the first coil that has enough left (first-fit decreasing). A bundle is ordered as such: its cables with the same group number are one run, as long as the longest of them. Cables of unknown length and cables that are longer than a coil are listed apart.</source>
        <translation>Les câbles sont comptés par type, usage, étage, faisceau et état des tests, avec leurs longueurs mesurées et estimées, et les prises par usage. Suit ce qui est à commander : la longueur estimée de chaque type et le nombre de bobines. Chaque tirage est coupé dans une seule bobine, sans épissure : d&apos;abord les plus longs, chacun dans la première bobine dont le reste suffit (first-fit decreasing). Un faisceau est commandé comme tel : ses câbles avec le même numéro de groupe sont un tirage, aussi long que le plus long d&apos;entre eux. Les câbles de longueur inconnue et ceux qui sont plus longs qu&apos;une bobine sont listés à part.</translation>
    </message>
    <message>
        <source>The cable schedule, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Le plan de câblage, un fichier CSV, ou &quot;-&quot; pour l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If the schedule has a problem, the job is not changed. Types and uses that are not known, and places that lose their last cable, are warned of. Each of the first 50 problems or warnings is one line; --json prints all of them.</source>
        <translation>Les étages, pièces, prises et câbles qui manquent au projet sont ajoutés. Les câbles qui diffèrent sont modifiés. Si le plan a un problème, le projet n&apos;est pas modifié. Les types et usages inconnus et les endroits qui perdent leur dernier câble sont signalés par un avertissement. Chacun des 50 premiers problèmes ou avertissements est une ligne ; --json les affiche tous.</translation>
    </message>
    <message>
        <source>The job or template file, or &quot;-&quot; for standard input.</source>
        <translation>Le fichier de projet ou de modèle, ou &quot;-&quot; pour l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>The command, such as &quot;check&quot; or &quot;schedule import&quot;.</source>
        <translation>La commande, telle que &quot;check&quot; ou &quot;schedule import&quot;.</translation>
    </message>
    <message>
        <source>Without a command, show the help of the program.</source>
        <translation>Sans commande, afficher l&apos;aide du programme.</translation>
    </message>
    <message>
        <source>Print no messages except errors.</source>
        <translation>N&apos;afficher aucun message sauf les erreurs.</translation>
    </message>
    <message>
        <source>Print the commands with their arguments and options as JSON.</source>
        <translation>Afficher les commandes avec leurs arguments et options en JSON.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not comma, semicolon or tab</source>
        <translation>&quot;%1&quot; n&apos;est pas comma, semicolon ou tab</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8, UTF-16 or windows-1252</source>
        <translation>&quot;%1&quot; n&apos;est pas UTF-8, UTF-16 ou windows-1252</translation>
    </message>
    <message>
        <source>standard input is larger than the limit, which --max-size sets</source>
        <translation>l&apos;entrée standard est plus grande que la limite, que fixe --max-size</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>lecture de %1</translation>
    </message>
    <message>
        <source>standard input cannot be changed, so -o is needed</source>
        <translation>l&apos;entrée standard ne peut pas être modifiée, donc -o est nécessaire</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>enregistrement de %1</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;; there are %2</source>
        <translation>il n&apos;y a pas de colonne &quot;%1&quot; ; il y a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a condition such as type=CAT6, type!=CAT6 or id~^A</source>
        <translation>&quot;%1&quot; n&apos;est pas une condition comme type=CAT6, type!=CAT6 ou id~^A</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression</source>
        <translation>&quot;%1&quot; n&apos;est pas une expression régulière</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has several meanings. Use one of these:</source>
        <translation>&quot;%1&quot; a plusieurs sens. Utilisez l&apos;un de ceux-ci :</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>avertissement : %1</translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1 ; vouliez-vous dire &quot;%2&quot; ?</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; there are %2</source>
        <translation>il n&apos;y a pas de tableau &quot;%1&quot; ; il y a %2</translation>
    </message>
    <message>
        <source>templates do not have the table &quot;%1&quot;</source>
        <translation>les modèles n&apos;ont pas le tableau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The delimiter of the fields: comma, semicolon or tab. By default, it is found in the first row.</source>
        <translation>Le séparateur des champs : comma, semicolon ou tab. Par défaut, il est trouvé dans la première ligne.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the units px, ft and m</source>
        <translation>&quot;%1&quot; n&apos;est pas une des unités px, ft et m</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>« %1 » n&apos;est pas parmi %2</translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation>impossible d&apos;écrire le fichier : %1</translation>
    </message>
    <message>
        <source>passed %1, passed within accuracy %2, failed %3, others %4
</source>
        <translation>réussis %1, réussis dans les limites de précision %2, échoués %3, autres %4
</translation>
    </message>
    <message>
        <source>new %1, of these retests %2; already known %3, left out %4; still untested %5
</source>
        <translation>nouveaux %1, dont %2 répétés ; déjà connus %3, omis %4 ; encore non testés %5
</translation>
    </message>
    <message>
        <source>the files of the tests cannot be stored beside standard output</source>
        <translation>les fichiers des tests ne peuvent pas être rangés à côté de la sortie standard</translation>
    </message>
    <message>
        <source>The test results, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Les résultats des tests, un fichier CSV, ou « - » pour l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>A mapping file: how another program names the columns, and gives units, numbers, dates and verdicts.</source>
        <translation>Un fichier de correspondance : comment un autre programme nomme les colonnes et donne les unités, les nombres, les dates et les verdicts.</translation>
    </message>
    <message>
        <source>Which of several tests of a cable is the current one: latest (the default) or worst. With refuse, another test of a tested cable is a problem.</source>
        <translation>Lequel de plusieurs tests d&apos;un câble est le test actuel : latest (le dernier, par défaut) ou worst (le pire). Avec refuse, un autre test d&apos;un câble testé est un problème.</translation>
    </message>
    <message>
        <source>Leave out the rows with unknown cables, and write them to this file.</source>
        <translation>Omettre les lignes dont le câble est inconnu et les écrire dans ce fichier.</translation>
    </message>
    <message>
        <source>Add test results to the cables of a job.</source>
        <translation>Ajouter des résultats de tests aux câbles d&apos;un projet.</translation>
    </message>
    <message>
        <source>A later test becomes the current one of its cable. The test before is kept as an earlier one. A table with the column &quot;active_port&quot; has tests of ports in the working network. If the table has a problem, nothing is added. An import can be repeated: the second one changes nothing.</source>
        <translation>Un test ultérieur devient le test actuel de son câble. Le test précédent est conservé comme test antérieur. Un tableau avec la colonne « active_port » contient des tests de prises dans le réseau en service. Si le tableau a un problème, rien n&apos;est ajouté. L&apos;importation peut être répétée : la seconde ne change rien.</translation>
    </message>
    <message>
        <source>Print the tests of ports in the working network.</source>
        <translation>Afficher les tests de prises dans le réseau en service.</translation>
    </message>
    <message>
        <source>Print the test results of a job as CSV.</source>
        <translation>Afficher les résultats de tests d&apos;un projet en CSV.</translation>
    </message>
    <message>
        <source>Each test is one row. Earlier tests have the state &quot;earlier&quot;. &quot;results import&quot; reads the table.</source>
        <translation>Chaque test est une ligne. Les tests antérieurs ont l&apos;état « earlier ». « results import » lit le tableau.</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échouées</translation>
    </message>
    <message>
        <source>untested</source>
        <translation>non testées</translation>
    </message>
    <message>
        <source>unknown verdict</source>
        <translation>verdict inconnu</translation>
    </message>
    <message>
        <source>tested more than once</source>
        <translation>testés plusieurs fois</translation>
    </message>
    <message>
        <source>old</source>
        <translation>anciens</translation>
    </message>
    <message>
        <source>unreadable time</source>
        <translation>heure illisible</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>trop longs</translation>
    </message>
    <message>
        <source>too much skew</source>
        <translation>décalage excessif</translation>
    </message>
    <message>
        <source>wrong wiring</source>
        <translation>mal raccordés</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constat</translation>
    </message>
    <message>
        <source>cables</source>
        <translation>câbles</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>réussis</translation>
    </message>
    <message>
        <source>passed within accuracy</source>
        <translation>réussis dans la précision</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date such as 2026-01-31</source>
        <translation>&quot;%1&quot; n&apos;est pas une date comme 2026-01-31</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;untested&quot; nor &quot;failed&quot;</source>
        <translation>&quot;%1&quot; n&apos;est ni &quot;untested&quot; ni &quot;failed&quot;</translation>
    </message>
    <message>
        <source>Also show tests before this day, such as 2026-01-31.</source>
        <translation>Afficher aussi les tests antérieurs à ce jour, comme 2026-01-31.</translation>
    </message>
    <message>
        <source>End with exit code 1 if there are such cables: untested, failed or both, separated by commas.</source>
        <translation>Terminer avec le code 1 s&apos;il y a de tels câbles : untested (non testés), failed (échoués) ou les deux, séparés par des virgules.</translation>
    </message>
    <message>
        <source>Show missing, failed and doubtful tests.</source>
        <translation>Afficher les tests manquants, échoués ou douteux.</translation>
    </message>
    <message>
        <source>Cables are shown that are untested, have failed, have a verdict that is not known, or were tested more than once, and those that are outside the limits of their test definition: the maximum length, the skew and the wiring. A limit is only checked if the job has the limit and the measurement. Earlier tests are counted, but --fail-on only looks at the current ones. The last line has the numbers of cables.</source>
        <translation>Sont affichés les câbles qui ne sont pas testés, ont échoué, ont un verdict inconnu ou ont été testés plusieurs fois, et ceux qui sont hors des limites de leur définition de test : la longueur maximale, le décalage et le raccordement. Une limite n&apos;est vérifiée que si le projet contient la limite et la mesure. Les tests précédents sont comptés, mais --fail-on ne regarde que les tests actuels. La dernière ligne donne les nombres de câbles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale such as 1:100 or 1in=20ft</source>
        <translation>&quot;%1&quot; n&apos;est pas une échelle comme 1:100 ou 1in=20ft</translation>
    </message>
    <message>
        <source>there is no layer &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de calque &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; gives cables no colours: cable, type, use, bundle or status</source>
        <translation>&quot;%1&quot; ne donne pas de couleurs aux câbles : cable, type, use, bundle ou status</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a direction in degrees</source>
        <translation>&quot;%1&quot; n&apos;est pas une direction en degrés</translation>
    </message>
    <message>
        <source>%1 and %2 do not go together</source>
        <translation>%1 et %2 ne vont pas ensemble</translation>
    </message>
    <message>
        <source>--%1 is for floor plans only</source>
        <translation>--%1 est réservé aux plans d&apos;étage</translation>
    </message>
    <message>
        <source>there is no %1 &quot;%2&quot;</source>
        <translation>il n&apos;y a pas de %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the job has nothing to draw</source>
        <translation>le projet n&apos;a rien à dessiner</translation>
    </message>
    <message>
        <source>only a PDF file can have several pages; choose one with --%1: %2</source>
        <translation>seul un fichier PDF peut avoir plusieurs pages ; choisissez-en une avec --%1 : %2</translation>
    </message>
    <message>
        <source>The drawing to write: a file whose name ends in .pdf, .svg or .png, or &quot;-&quot; to write SVG to standard output.</source>
        <translation>Le dessin à écrire : un fichier dont le nom se termine par .pdf, .svg ou .png, ou &quot;-&quot; pour écrire du SVG sur la sortie standard.</translation>
    </message>
    <message>
        <source>The floor to draw. By default, a PDF file has all floors.</source>
        <translation>L&apos;étage à dessiner. Par défaut, un fichier PDF a tous les étages.</translation>
    </message>
    <message>
        <source>Draw this sheet with its network devices.</source>
        <translation>Dessiner cette feuille avec ses appareils réseau.</translation>
    </message>
    <message>
        <source>Draw all sheets with network devices, each on a page of its own.</source>
        <translation>Dessiner toutes les feuilles avec des appareils réseau, chacune sur sa propre page.</translation>
    </message>
    <message>
        <source>Draw all floors above each other, with the cables in the vertical runs.</source>
        <translation>Dessiner tous les étages les uns au-dessus des autres, avec les câbles des colonnes montantes.</translation>
    </message>
    <message>
        <source>The scale, such as 1:100 or 1in=20ft. By default, it is that of the job.</source>
        <translation>L&apos;échelle, comme 1:100 ou 1in=20ft. Par défaut, c&apos;est celle du projet.</translation>
    </message>
    <message>
        <source>The layers to draw, separated by commas: background, rooms, cables, points, vertical-runs, ports, texts and labels. All of them by default.</source>
        <translation>Les calques à dessiner, séparés par des virgules : background, rooms, cables, points, vertical-runs, ports, texts et labels. Tous par défaut.</translation>
    </message>
    <message>
        <source>What gives cables their colours: cable, type (the default), use, bundle or status.</source>
        <translation>Ce qui donne leurs couleurs aux câbles : cable (le câble lui-même), type (le type, par défaut), use (l&apos;usage), bundle (le faisceau) ou status (l&apos;état du test).</translation>
    </message>
    <message>
        <source>Draw a north arrow, turned clockwise from the top of the plan by these degrees.</source>
        <translation>Dessiner une flèche du nord, tournée de ces degrés dans le sens horaire depuis le haut du plan.</translation>
    </message>
    <message>
        <source>Draw floor plans, sheets or the riser.</source>
        <translation>Dessiner les plans d&apos;étage, les feuilles ou le schéma des colonnes montantes.</translation>
    </message>
    <message>
        <source>A floor plan is never fitted to the paper. In a PDF file, a plan that is larger than the paper is divided among several sheets that overlap, after one with an overview. In an SVG or PNG file, the sheet becomes larger than the paper. Labels that do not fit are shortened, moved away with a leader line, or replaced by a number in a list beside the plan. The environment variable SOURCE_DATE_EPOCH sets the date.</source>
        <translation>Un plan d&apos;étage n&apos;est jamais ajusté au papier. Dans un fichier PDF, un plan plus grand que le papier est réparti sur plusieurs feuilles qui se recouvrent, après une vue d&apos;ensemble. Dans un fichier SVG ou PNG, la feuille devient plus grande que le papier. Les noms qui ne tiennent pas sont abrégés, déplacés avec une ligne de repère ou remplacés par un numéro dans une liste à côté du plan. La variable d&apos;environnement SOURCE_DATE_EPOCH fixe la date.</translation>
    </message>
    <message>
        <source>The cable, by its name.</source>
        <translation>Le câble, par son nom.</translation>
    </message>
    <message>
        <source>Draw the response curves of a cable.</source>
        <translation>Dessiner les courbes de réponse d&apos;un câble.</translation>
    </message>
    <message>
        <source>The curves are those of the cable&apos;s test: near-end crosstalk, echo and channel.</source>
        <translation>Les courbes sont celles du test du câble : paradiaphonie, écho et canal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;portrait&quot; nor &quot;landscape&quot;</source>
        <translation>&quot;%1&quot; n&apos;est ni &quot;portrait&quot; ni &quot;landscape&quot;</translation>
    </message>
    <message>
        <source>there is no paper size &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de format de papier &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of dots to the inch from 10 to 1200</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre de points par pouce de 10 à 1200</translation>
    </message>
    <message>
        <source>the name of the drawing ends in .pdf, .svg or .png</source>
        <translation>le nom du dessin se termine par .pdf, .svg ou .png</translation>
    </message>
    <message>
        <source>The paper size, such as A1 or Tabloid. By default, it is that of the job.</source>
        <translation>Le format du papier, comme A1 ou Tabloid. Par défaut, c&apos;est celui du projet.</translation>
    </message>
    <message>
        <source>How the paper lies: portrait or landscape.</source>
        <translation>L&apos;orientation du papier : portrait ou landscape (paysage).</translation>
    </message>
    <message>
        <source>The dots to the inch of a PNG file, from 10 to 1200. By default, it is 150.</source>
        <translation>Les points par pouce d&apos;un fichier PNG, de 10 à 1200. Par défaut, 150.</translation>
    </message>
    <message>
        <source>The revision in the title block.</source>
        <translation>La révision dans le cartouche.</translation>
    </message>
    <message>
        <source>The number of the sheet in the title block.</source>
        <translation>Le numéro de la feuille dans le cartouche.</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Première</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>Hauteur imprimée</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; &quot;cabledoc label formats&quot; lists them</source>
        <translation>il n&apos;y a pas de format &quot;%1&quot; ; &quot;cabledoc label formats&quot; liste les formats</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of qr, code128 and none</source>
        <translation>&quot;%1&quot; n&apos;est ni qr, ni code128, ni none</translation>
    </message>
    <message>
        <source>the name of the labels ends in .pdf, .svg or .csv</source>
        <translation>le nom du fichier d&apos;étiquettes se termine par .pdf, .svg ou .csv</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de champ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>only a PDF file can have several sheets, and these labels need %1</source>
        <translation>seul un fichier PDF peut avoir plusieurs feuilles, et ces étiquettes en demandent %1</translation>
    </message>
    <message>
        <source>there is nothing to label</source>
        <translation>il n&apos;y a rien à étiqueter</translation>
    </message>
    <message>
        <source>there is no report &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de rapport &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--%1 is only for the reports &quot;test&quot; and &quot;schedule&quot;</source>
        <translation>--%1 est réservé aux rapports &quot;test&quot; et &quot;schedule&quot;</translation>
    </message>
    <message>
        <source>no cable fulfils the conditions</source>
        <translation>aucun câble ne remplit les conditions</translation>
    </message>
    <message>
        <source>the name of the report ends in .pdf or .html</source>
        <translation>le nom du rapport se termine par .pdf ou .html</translation>
    </message>
    <message>
        <source>The table with the elements to label, such as cables (the default), ports or rooms.</source>
        <translation>Le tableau des éléments à étiqueter, tel que cables (par défaut), ports ou rooms.</translation>
    </message>
    <message>
        <source>The labels to write: a file whose name ends in .pdf, .svg or .csv, or &quot;-&quot; to write SVG to standard output.</source>
        <translation>Les étiquettes à écrire : un fichier dont le nom se termine par .pdf, .svg ou .csv, ou &quot;-&quot; pour écrire du SVG sur la sortie standard.</translation>
    </message>
    <message>
        <source>The format of the labels; a4-5x13 by default. &quot;label formats&quot; lists them.</source>
        <translation>Le format des étiquettes ; a4-5x13 par défaut. &quot;label formats&quot; liste les formats.</translation>
    </message>
    <message>
        <source>The text of a label, such as &quot;{id}\n{far_room|?}&quot;.</source>
        <translation>Le texte d&apos;une étiquette, tel que &quot;{id}\n{far_room|?}&quot;.</translation>
    </message>
    <message>
        <source>The code beside the text: qr, code128 or none (the default).</source>
        <translation>Le code à côté du texte : qr, code128 ou none (aucun, par défaut).</translation>
    </message>
    <message>
        <source>The text of the code. By default, it is the name of the element.</source>
        <translation>Le texte du code. Par défaut, c&apos;est le nom de l&apos;élément.</translation>
    </message>
    <message>
        <source>Make a label for each end of a cable.</source>
        <translation>Faire une étiquette pour chaque extrémité d&apos;un câble.</translation>
    </message>
    <message>
        <source>The number of equal labels; 1 by default.</source>
        <translation>Le nombre d&apos;étiquettes identiques ; 1 par défaut.</translation>
    </message>
    <message>
        <source>The place of the first label on the first sheet, counted from 1 in rows.</source>
        <translation>L&apos;emplacement de la première étiquette sur la première feuille, compté par rangées à partir de 1.</translation>
    </message>
    <message>
        <source>A regular expression that each text must match, such as &quot;^[0-9]+-[A-Z][0-9]+$&quot;.</source>
        <translation>Une expression régulière à laquelle chaque texte doit correspondre, telle que &quot;^[0-9]+-[A-Z][0-9]+$&quot;.</translation>
    </message>
    <message>
        <source>Draw the edges of the labels, for a test on plain paper.</source>
        <translation>Dessiner les contours des étiquettes, pour un essai sur papier ordinaire.</translation>
    </message>
    <message>
        <source>The columns of the table that a CSV file has, separated by commas. By default, it has all.</source>
        <translation>Les colonnes du tableau que contient un fichier CSV, séparées par des virgules. Par défaut, il les contient toutes.</translation>
    </message>
    <message>
        <source>Print labels.</source>
        <translation>Imprimer des étiquettes.</translation>
    </message>
    <message>
        <source>A pattern has the columns of &quot;list&quot; as fields. A text after &quot;|&quot; takes the place of an empty value, &quot;\n&quot; begins a new line, and &quot;{{&quot; and &quot;}}&quot; stand for braces. The fields near_floor, near_room and near_port are those of the end of the cable for which the label is, and far_floor, far_room and far_port those of the other end. Texts must differ from element to element. Lines that are too wide are set smaller, down to 5 points. If a label has a problem, nothing is written, and the exit code is 1. Print the file in its actual size.</source>
        <translation>Un motif a pour champs les colonnes de &quot;list&quot;. Un texte après &quot;|&quot; remplace une valeur vide, &quot;\n&quot; commence une nouvelle ligne, et &quot;{{&quot; et &quot;}}&quot; représentent des accolades. Les champs near_floor, near_room et near_port sont ceux de l&apos;extrémité du câble à laquelle l&apos;étiquette est destinée, et far_floor, far_room et far_port ceux de l&apos;autre extrémité. Les textes doivent différer d&apos;un élément à l&apos;autre. Les lignes trop larges sont composées plus petit, jusqu&apos;au corps 5. Si une étiquette a un problème, rien n&apos;est écrit et le code de sortie est 1. Imprimez le fichier en taille réelle.</translation>
    </message>
    <message>
        <source>List the formats of labels.</source>
        <translation>Lister les formats d&apos;étiquettes.</translation>
    </message>
    <message>
        <source>Lengths are in millimetres. The list has the sizes of the paper and of a label, the numbers of columns and rows, the left upper corner of the first label, the distance from one label to the next, and the height of the part that is printed. The rest of a label that is wound around a cable is transparent. A label on a tape is as long as its text needs.</source>
        <translation>Les longueurs sont en millimètres. La liste donne les tailles du papier et d&apos;une étiquette, les nombres de colonnes et de rangées, le coin supérieur gauche de la première étiquette, la distance d&apos;une étiquette à la suivante et la hauteur de la partie imprimée. Le reste d&apos;une étiquette enroulée autour d&apos;un câble est transparent. Une étiquette sur ruban est aussi longue que son texte le demande.</translation>
    </message>
    <message>
        <source>The report to write: a file whose name ends in .pdf or .html, or &quot;-&quot; to write HTML to standard output.</source>
        <translation>Le rapport à écrire : un fichier dont le nom se termine par .pdf ou .html, ou &quot;-&quot; pour écrire du HTML sur la sortie standard.</translation>
    </message>
    <message>
        <source>The kind of report: test (the default), summary, inventory, schedule, notes or active.</source>
        <translation>La sorte de rapport : test (par défaut), summary, inventory, schedule, notes ou active.</translation>
    </message>
    <message>
        <source>Only the cables with an end on this floor.</source>
        <translation>Seulement les câbles avec une extrémité à cet étage.</translation>
    </message>
    <message>
        <source>Only the cables with an end in this room.</source>
        <translation>Seulement les câbles avec une extrémité dans cette pièce.</translation>
    </message>
    <message>
        <source>Only the cables whose test is of this day, such as 2026-01-31, or later.</source>
        <translation>Seulement les câbles dont le test est de ce jour, comme 2026-01-31, ou postérieur.</translation>
    </message>
    <message>
        <source>Only the cables whose test is of this day or earlier.</source>
        <translation>Seulement les câbles dont le test est de ce jour ou antérieur.</translation>
    </message>
    <message>
        <source>Begin with the cables that have failed.</source>
        <translation>Commencer par les câbles qui ont échoué.</translation>
    </message>
    <message>
        <source>The revision at the bottom of each page.</source>
        <translation>La révision au bas de chaque page.</translation>
    </message>
    <message>
        <source>Write a report for the customer.</source>
        <translation>Écrire un rapport pour le client.</translation>
    </message>
    <message>
        <source>The report of tests has a summary, the results of each cable, and an index from cables to pages. The cables are in the order of their names unless --sort asks for another one. Each kind of report has the paper, the orientation and the zoom of its print settings in the job. The options that choose cables are for the kinds test and schedule. The environment variable SOURCE_DATE_EPOCH sets the date.</source>
        <translation>Le rapport de tests a un résumé, les résultats de chaque câble et un index des câbles avec leurs pages. Les câbles sont dans l&apos;ordre de leurs noms, sauf si --sort en demande un autre. Chaque sorte de rapport a le papier, l&apos;orientation et le zoom de ses réglages d&apos;impression dans le projet. Les options qui choisissent des câbles sont réservées aux sortes test et schedule. La variable d&apos;environnement SOURCE_DATE_EPOCH fixe la date.</translation>
    </message>
    <message>
        <source>&quot;check&quot;, &quot;labels&quot; or &quot;results status&quot; found something wrong.</source>
        <translation>&quot;check&quot;, &quot;labels&quot; ou &quot;results status&quot; a trouvé une anomalie.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>January</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>janvier</translation>
    </message>
    <message>
        <source>February</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>février</translation>
    </message>
    <message>
        <source>March</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>mars</translation>
    </message>
    <message>
        <source>April</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>avril</translation>
    </message>
    <message>
        <source>May</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>mai</translation>
    </message>
    <message>
        <source>June</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>juin</translation>
    </message>
    <message>
        <source>July</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>juillet</translation>
    </message>
    <message>
        <source>August</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>août</translation>
    </message>
    <message>
        <source>September</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>septembre</translation>
    </message>
    <message>
        <source>October</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>octobre</translation>
    </message>
    <message>
        <source>November</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>novembre</translation>
    </message>
    <message>
        <source>December</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>décembre</translation>
    </message>
    <message>
        <source>Monday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>fév</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>avr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juil</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aoû</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>déc</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Cables</source>
        <translation>Câbles</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesurée</translation>
    </message>
    <message>
        <source>of cables</source>
        <translation>sur câbles</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimée</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Étage</translation>
    </message>
    <message>
        <source>Other floor</source>
        <translation>Autre étage</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Prises</translation>
    </message>
    <message>
        <source>All cables</source>
        <translation>Tous les câbles</translation>
    </message>
    <message>
        <source>Cables by type</source>
        <translation>Câbles par type</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Cables by use</source>
        <translation>Câbles par usage</translation>
    </message>
    <message>
        <source>Cables by floor</source>
        <translation>Câbles par étage</translation>
    </message>
    <message>
        <source>Cables by bundle</source>
        <translation>Câbles par faisceau</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Faisceau</translation>
    </message>
    <message>
        <source>Cables by test status</source>
        <translation>Câbles par état des tests</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Ports by use</source>
        <translation>Prises par usage</translation>
    </message>
    <message>
        <source>Lengths from the plan, by type and bundle</source>
        <translation>Longueurs d&apos;après le plan, par type et faisceau</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Tirages</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Plus long</translation>
    </message>
    <message>
        <source>Without a length</source>
        <translation>Sans longueur</translation>
    </message>
    <message>
        <source>Network devices</source>
        <translation>Appareils réseau</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Rooms</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>Room</source>
        <translation>Pièce</translation>
    </message>
    <message>
        <source>Ends of cables</source>
        <translation>Extrémités de câble</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Câble</translation>
    </message>
    <message>
        <source>From floor</source>
        <translation>Étage départ</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Prise</translation>
    </message>
    <message>
        <source>To floor</source>
        <translation>Étage arrivée</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Not tested.</source>
        <translation>Non testée.</translation>
    </message>
    <message>
        <source>Tested</source>
        <translation>Testé le</translation>
    </message>
    <message>
        <source>Speed (Mbit/s)</source>
        <translation>Débit (Mbit/s)</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Extrémité distante</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>Autres valeurs</translation>
    </message>
    <message>
        <source>Job information</source>
        <translation>Informations sur le projet</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventaire</translation>
    </message>
    <message>
        <source>Cable schedule</source>
        <translation>Plan de câblage</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Tests in the working network</source>
        <translation>Tests dans le réseau en service</translation>
    </message>
    <message>
        <source>Revision %1</source>
        <translation>Révision %1</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Contractor</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>Tested by</source>
        <translation>Testé par</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>From the tester</source>
        <translation>Selon le testeur</translation>
    </message>
    <message>
        <source>Worst margin (dB)</source>
        <translation>Pire marge (dB)</translation>
    </message>
    <message>
        <source>Worst value (dB or ns)</source>
        <translation>Pire valeur (dB ou ns)</translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation>Fréquence (MHz)</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Paire</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Extrémité</translation>
    </message>
    <message>
        <source>%1: %2 dB</source>
        <translation>%1 : %2 dB</translation>
    </message>
    <message>
        <source>Earlier tests</source>
        <translation>Tests antérieurs</translation>
    </message>
    <message>
        <source>Tester</source>
        <translation>Testeur</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Without a place</source>
        <translation>Sans emplacement</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>What was tested</source>
        <translation>Périmètre des tests</translation>
    </message>
    <message>
        <source>Limits and testers</source>
        <translation>Limites et testeurs</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échoués</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Non testés</translation>
    </message>
    <message>
        <source>Cables in this report: %1. Tested: %2. Not tested: %3.</source>
        <translation>Câbles dans ce rapport : %1. Testés : %2. Non testés : %3.</translation>
    </message>
    <message>
        <source>Day of the tests: %1.</source>
        <translation>Date des tests : %1.</translation>
    </message>
    <message>
        <source>Days of the tests: %1 to %2.</source>
        <translation>Dates des tests : de %1 à %2.</translation>
    </message>
    <message>
        <source>The job has further cables, which were not selected: %1.</source>
        <translation>Autres câbles du projet, qui n&apos;ont pas été sélectionnés : %1.</translation>
    </message>
    <message>
        <source>Cables that were tested more than once: %1. The last part of the page of such a cable lists its earlier tests.</source>
        <translation>Câbles testés plusieurs fois : %1. La dernière partie de la page d&apos;un tel câble donne la liste de ses tests antérieurs.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Norme</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>réussi</translation>
    </message>
    <message>
        <source>passed, but closer to the limit than the tester measures</source>
        <translation>réussi, mais la marge est inférieure à la précision du testeur</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échoué</translation>
    </message>
    <message>
        <source>not tested</source>
        <translation>non testé</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Signification</translation>
    </message>
    <message>
        <source>as the tester says; does not count as passed</source>
        <translation>selon le testeur ; ne compte pas comme réussi</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Tester software</source>
        <translation>Logiciel du testeur</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>NVP</source>
        <translation>NVP</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Erreurs binaires</translation>
    </message>
    <message>
        <source>Wire map</source>
        <translation>Schéma de câblage</translation>
    </message>
    <message>
        <source>File of the tester</source>
        <translation>Fichier du testeur</translation>
    </message>
    <message>
        <source>Longest allowed</source>
        <translation>Maximum permis</translation>
    </message>
    <message>
        <source>Without a room</source>
        <translation>Sans pièce</translation>
    </message>
    <message>
        <source>Test report</source>
        <translation>Rapport de tests</translation>
    </message>
    <message>
        <source>Near-end crosstalk</source>
        <translation>Paradiaphonie</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Écho</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
</context>
<context>
    <name>Results</name>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>la colonne « %1 » apparaît deux fois</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>colonne inconnue « %1 »</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>la colonne « %1 » manque</translation>
    </message>
    <message>
        <source>[%1] %2</source>
        <translation>[%1] %2</translation>
    </message>
    <message>
        <source>%1: there is no value</source>
        <translation>%1 : il n&apos;y a pas de valeur</translation>
    </message>
    <message>
        <source>%1: there is no such section</source>
        <translation>%1 : cette section n&apos;existe pas</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not one of %3</source>
        <translation>%1 : « %2 » n&apos;est pas parmi %3</translation>
    </message>
    <message>
        <source>%1 occurs twice</source>
        <translation>%1 apparaît deux fois</translation>
    </message>
    <message>
        <source>%1: there is no such column</source>
        <translation>%1 : cette colonne n&apos;existe pas</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not possible</source>
        <translation>%1 : « %2 » n&apos;est pas possible</translation>
    </message>
    <message>
        <source>%1: there is no such key</source>
        <translation>%1 : cette clé n&apos;existe pas</translation>
    </message>
    <message>
        <source>the mapping is not a text in UTF-8</source>
        <translation>la correspondance n&apos;est pas un texte en UTF-8</translation>
    </message>
    <message>
        <source>the mapping cannot be read</source>
        <translation>la correspondance ne peut pas être lue</translation>
    </message>
    <message>
        <source>several have the id &quot;%1&quot;</source>
        <translation>plusieurs ont l&apos;identifiant « %1 »</translation>
    </message>
    <message>
        <source>there is no active port &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de prise active « %1 »</translation>
    </message>
    <message>
        <source>there is no cable &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de câble « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not count as passed: it is not one of %2</source>
        <translation>« %1 » ne compte pas comme réussi : ce mot n&apos;est pas parmi %2</translation>
    </message>
    <message>
        <source>row %1 already has this test</source>
        <translation>la ligne %1 contient déjà ce test</translation>
    </message>
    <message>
        <source>the job already has another test of the same time and tester</source>
        <translation>le projet contient déjà un autre test de la même heure et du même testeur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not &quot;%2&quot;</source>
        <translation>« %1 » n&apos;est pas « %2 »</translation>
    </message>
    <message>
        <source>several cables have the tag &quot;%1&quot;</source>
        <translation>plusieurs câbles ont la balise « %1 »</translation>
    </message>
    <message>
        <source>the cable already has a test</source>
        <translation>le câble a déjà un test</translation>
    </message>
    <message>
        <source>several active ports have the tag &quot;%1&quot;</source>
        <translation>plusieurs prises actives ont la balise « %1 »</translation>
    </message>
    <message>
        <source>active port &quot;%1&quot;: %2, %3</source>
        <translation>prise active « %1 » : %2, %3</translation>
    </message>
    <message>
        <source>cable &quot;%1&quot;: %2, %3</source>
        <translation>câble « %1 » : %2, %3</translation>
    </message>
    <message>
        <source>cable &quot;%1&quot;: %2, %3, as an earlier test</source>
        <translation>câble « %1 » : %2, %3, comme test antérieur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time</source>
        <translation>« %1 » n&apos;est pas une date</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the future</source>
        <translation>« %1 » est dans le futur</translation>
    </message>
    <message>
        <source>the row has no verdict</source>
        <translation>la ligne n&apos;a pas de verdict</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>la ligne a plus de champs que l&apos;en-tête</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>« %1 » contient un caractère qu&apos;un fichier ne peut pas contenir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from 0</source>
        <translation>« %1 » n&apos;est pas un nombre entier à partir de 0</translation>
    </message>
    <message>
        <source>the cable was tested as &quot;%1&quot;, but its type is &quot;%2&quot;</source>
        <translation>le câble a été testé comme « %1 », mais son type est « %2 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a block of 96 hexadecimal digits</source>
        <translation>« %1 » n&apos;est pas un bloc de 96 chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>a row with a block cannot have lengths or a wire map</source>
        <translation>une ligne avec un bloc ne peut pas avoir de longueurs ni de schéma de câblage</translation>
    </message>
    <message>
        <source>the unit of the length is neither &quot;ft&quot; nor &quot;m&quot;</source>
        <translation>l&apos;unité de la longueur n&apos;est ni « ft » ni « m »</translation>
    </message>
    <message>
        <source>the type of the cable has no length constant between 10.0 and 65.0 pF/ft</source>
        <translation>le type du câble n&apos;a pas de constante de longueur entre 10,0 et 65,0 pF/ft</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a possible length</source>
        <translation>« %1 » n&apos;est pas une longueur possible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; gives a pair two far ends</source>
        <translation>« %1 » donne à une paire deux extrémités distantes</translation>
    </message>
    <message>
        <source>the curve does not consist of %1 numbers</source>
        <translation>la courbe n&apos;est pas faite de %1 nombres</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>« %1 » n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de fichier « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the folder of the table</source>
        <translation>« %1 » n&apos;est pas dans le dossier du tableau</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 MB</source>
        <translation>« %1 » est plus grand que 64 Mo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256</source>
        <translation>« %1 » n&apos;est pas un SHA-256</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is another file than that of the test</source>
        <translation>« %1 » est un autre fichier que celui du test</translation>
    </message>
    <message>
        <source>%1: another column has the heading &quot;%2&quot;</source>
        <translation>%1 : une autre colonne a l&apos;en-tête &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>ResultsStatus</name>
    <message>
        <source>the cable is not tested</source>
        <translation>le câble n&apos;est pas testé</translation>
    </message>
    <message>
        <source>the test has failed</source>
        <translation>le test a échoué</translation>
    </message>
    <message>
        <source>the verdict &quot;%1&quot; is not known</source>
        <translation>le verdict &quot;%1&quot; n&apos;est pas connu</translation>
    </message>
    <message>
        <source>tests: %1, earlier tests that failed: %2</source>
        <translation>tests : %1, tests précédents échoués : %2</translation>
    </message>
    <message>
        <source>the test has no time</source>
        <translation>le test n&apos;a pas d&apos;heure</translation>
    </message>
    <message>
        <source>the time &quot;%1&quot; cannot be read</source>
        <translation>l&apos;heure &quot;%1&quot; est illisible</translation>
    </message>
    <message>
        <source>the test is of %1, before %2</source>
        <translation>le test est du %1, avant %2</translation>
    </message>
    <message>
        <source>pair %1 is %2 long, the maximum length of &quot;%3&quot; is %4</source>
        <translation>la paire %1 mesure %2, la longueur maximale de &quot;%3&quot; est %4</translation>
    </message>
    <message>
        <source>the skew is %1 ns, the maximum skew of &quot;%2&quot; is %3 ns</source>
        <translation>le décalage est de %1 ns, le maximum de &quot;%2&quot; est de %3 ns</translation>
    </message>
    <message>
        <source>pair %1 is wired to %2, and must be wired to %3 in &quot;%4&quot;</source>
        <translation>la paire %1 est reliée à %2 et, selon &quot;%4&quot;, doit l&apos;être à %3</translation>
    </message>
</context>
<context>
    <name>Schedule</name>
    <message>
        <source>%1 has no list of cables or no list of floors</source>
        <translation>%1 n&apos;a pas de liste de câbles ou pas de liste d&apos;étages</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>la colonne &quot;%1&quot; manque</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de colonne &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>la colonne &quot;%1&quot; est en double</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>la ligne a plus de champs que l&apos;en-tête</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>&quot;%1&quot; n&apos;est pas une couleur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job file cannot hold</source>
        <translation>&quot;%1&quot; a un caractère qu&apos;un fichier de projet ne peut pas contenir</translation>
    </message>
    <message>
        <source>the cable has no id</source>
        <translation>le câble n&apos;a pas d&apos;identifiant</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is already used in row %2</source>
        <translation>l&apos;identifiant &quot;%1&quot; est celui de la ligne %2</translation>
    </message>
    <message>
        <source>the end has a floor or room, but no port</source>
        <translation>l&apos;extrémité a un étage ou une pièce, mais pas de prise</translation>
    </message>
    <message>
        <source>the end has a port, but no floor</source>
        <translation>l&apos;extrémité a une prise, mais pas d&apos;étage</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de définition de test &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown use &quot;%1&quot;</source>
        <translation>usage inconnu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no cable ends in &quot;%1&quot; any more</source>
        <translation>plus aucun câble ne finit dans &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no cable ends at &quot;%1&quot; any more</source>
        <translation>plus aucun câble ne finit à &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>SettingsStrings</name>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
</context>
<context>
    <name>Table</name>
    <message>
        <source>the sheets have no scale for feet or metres</source>
        <translation>les feuilles n&apos;ont pas d&apos;échelle pour des pieds ou des mètres</translation>
    </message>
    <message>
        <source>the floor plans have no scale for feet or metres</source>
        <translation>les plans d&apos;étage n&apos;ont pas d&apos;échelle pour des pieds ou des mètres</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>la colonne &quot;%1&quot; est en double</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de colonne &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>la colonne &quot;%1&quot; manque</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>la ligne a plus de champs que l&apos;en-tête</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; a un caractère qu&apos;un fichier ne peut pas contenir</translation>
    </message>
    <message>
        <source>the row has no id</source>
        <translation>la ligne n&apos;a pas d&apos;identifiant</translation>
    </message>
    <message>
        <source>the row does not say where the element is</source>
        <translation>la ligne ne dit pas où est l&apos;élément</translation>
    </message>
    <message>
        <source>the room &quot;Undefined&quot; cannot be changed</source>
        <translation>la pièce &quot;Undefined&quot; ne peut pas être modifiée</translation>
    </message>
    <message>
        <source>the row does not give a new_id</source>
        <translation>la ligne ne donne pas de new_id</translation>
    </message>
    <message>
        <source>the row does not say where the element is moved to</source>
        <translation>la ligne ne dit pas où l&apos;élément est déplacé</translation>
    </message>
    <message>
        <source>an element that is added or removed cannot be renamed or moved</source>
        <translation>un élément qui est ajouté ou supprimé ne peut pas être renommé ni déplacé</translation>
    </message>
    <message>
        <source>test definition</source>
        <translation>définition de test</translation>
    </message>
    <message>
        <source>bundle</source>
        <translation>faisceau</translation>
    </message>
    <message>
        <source>floor</source>
        <translation>étage</translation>
    </message>
    <message>
        <source>room</source>
        <translation>pièce</translation>
    </message>
    <message>
        <source>port</source>
        <translation>prise</translation>
    </message>
    <message>
        <source>vertical run</source>
        <translation>colonne montante</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>feuille</translation>
    </message>
    <message>
        <source>device</source>
        <translation>appareil</translation>
    </message>
    <message>
        <source>bend</source>
        <translation>coude</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>câble</translation>
    </message>
    <message>
        <source>active port</source>
        <translation>prise active</translation>
    </message>
    <message>
        <source>release</source>
        <translation>révision</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is already used</source>
        <translation>le nom &quot;%1&quot; est déjà utilisé</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>introuvable : %1</translation>
    </message>
    <message>
        <source>add %1</source>
        <translation>ajouter %1</translation>
    </message>
    <message>
        <source>rename %1 to &quot;%2&quot;</source>
        <translation>renommer %1 en &quot;%2&quot;</translation>
    </message>
    <message>
        <source>move %1 to &quot;%2&quot;</source>
        <translation>déplacer %1 vers &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there already is a different %1</source>
        <translation>existe déjà avec d&apos;autres valeurs : %1</translation>
    </message>
    <message>
        <source>change %1: %2</source>
        <translation>modifier %1 : %2</translation>
    </message>
    <message>
        <source>remove %1</source>
        <translation>supprimer %1</translation>
    </message>
    <message>
        <source> with its cables: %1</source>
        <translation> avec ses câbles : %1</translation>
    </message>
    <message>
        <source>there is no %1 &quot;%2&quot;</source>
        <translation>introuvable : %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an element</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un élément</translation>
    </message>
    <message>
        <source>a job can hold at most %1 releases</source>
        <translation>un projet ne contient pas plus de %1 révisions</translation>
    </message>
    <message>
        <source>the tag &quot;%1&quot; is already used</source>
        <translation>la balise &quot;%1&quot; est déjà utilisée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid here</source>
        <translation>&quot;%1&quot; n&apos;est pas valable ici</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number in the range of this column</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre entier dans l&apos;intervalle de cette colonne</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number in the range of this column</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre dans l&apos;intervalle de cette colonne</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither 1 nor 0</source>
        <translation>&quot;%1&quot; n&apos;est ni 1 ni 0</translation>
    </message>
    <message>
        <source>there is no point, port or vertical run &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de point, de prise ni de colonne montante &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no vertical run &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de colonne montante &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a bundle can have at most %1 types</source>
        <translation>un faisceau peut avoir au plus %1 types</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de définition de test &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no device or bend &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;appareil ni de coude &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port or vertical run &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de prise ni de colonne montante &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de prise &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no bundle &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de faisceau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>&quot;%1&quot; n&apos;est pas une couleur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of add, change, rename, move and remove</source>
        <translation>&quot;%1&quot; n&apos;est ni add, ni change, ni rename, ni move, ni remove</translation>
    </message>
    <message>
        <source>row %1 already uses the name &quot;%2&quot;</source>
        <translation>la ligne %1 utilise déjà le nom &quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown use &quot;%1&quot;</source>
        <translation>usage inconnu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>row %1 already changes this: %2</source>
        <translation>la ligne %1 modifie déjà ceci : %2</translation>
    </message>
</context>
<context>
    <name>TestDef</name>
    <message>
        <source>Cable has no pairs please
 specify which pairs are in use.</source>
        <translation>Le câble n&apos;a pas de paires.
Veuillez indiquer les paires utilisées.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires
all 4 pairs be in use.</source>
        <translation>1 Gbit/s exige que
les 4 paires soient utilisées.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires
no splits.</source>
        <translation>1 Gbit/s exige qu&apos;aucune paire
ne soit dépairée.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run 1 Gbit/s.</source>
        <translation>Correspondance des paires incorrecte :
seul un câble droit ou croisé
peut être testé à 1 Gbit/s.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that length constant
is between 10.0 and 65.0 (pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>1 Gbit/s exige une constante de longueur
entre 10,0 et 65,0 (pF/ft) ou 32,8 et 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that skew must be measured
and be at most 50ns.</source>
        <translation>1 Gbit/s exige que le décalage de propagation soit mesuré
et ne dépasse pas 50 ns.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that SNR must be measured
and be at least 20dB.</source>
        <translation>1 Gbit/s exige que le SNR soit mesuré
et soit d&apos;au moins 20 dB.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires pairs
 1-2 and 3-6 be in use.</source>
        <translation>100 Mbit/s exige que les paires
1-2 et 3-6 soient utilisées.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires no 
splits on pairs 1-2 and 3-6.</source>
        <translation>100 Mbit/s exige que les paires
1-2 et 3-6 ne soient pas dépairées.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run 100 Mbits/s.</source>
        <translation>Correspondance des paires incorrecte :
seul un câble droit ou croisé
peut être testé à 100 Mbit/s.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>100 Mbit/s exige une constante de longueur
entre 10,0 et 65,0 (pF/ft) ou 32,8 et 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>100 Mbits/s requires that SNR must be measured
and be at least 20dB.</source>
        <translation>100 Mbit/s exige que le SNR soit mesuré
et soit d&apos;au moins 20 dB.</translation>
    </message>
    <message>
        <source>Skew test requires
all 4 pairs be in use.</source>
        <translation>Le test du décalage de propagation exige que
les 4 paires soient utilisées.</translation>
    </message>
    <message>
        <source>Skew test requires
no splits.</source>
        <translation>Le test du décalage de propagation exige
qu&apos;aucune paire ne soit dépairée.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run Skew test.</source>
        <translation>Correspondance des paires incorrecte :
seul un câble droit ou croisé
permet le test du décalage de propagation.</translation>
    </message>
    <message>
        <source>Skew test requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>Le test du décalage de propagation exige une constante de longueur
entre 10,0 et 65,0 (pF/ft) ou 32,8 et 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>SNR test requires pairs
 1-2 and 3-6 be in use.</source>
        <translation>Le test SNR exige que les paires
1-2 et 3-6 soient utilisées.</translation>
    </message>
    <message>
        <source>SNR test requires no 
splits on pairs 1-2 and 3-6.</source>
        <translation>Le test SNR exige que les paires
1-2 et 3-6 ne soient pas dépairées.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run SNR test.</source>
        <translation>Correspondance des paires incorrecte :
seul un câble droit ou croisé
permet le test SNR.</translation>
    </message>
    <message>
        <source>SNR test requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m).</source>
        <translation>Le test SNR exige une constante de longueur
entre 10,0 et 65,0 (pF/ft) ou 32,8 et 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>Can&apos;t map 2 pairs on near end to
same pair on far end.</source>
        <translation>Deux paires de l&apos;extrémité proche ne peuvent pas
aller à la même paire de l&apos;extrémité éloignée.</translation>
    </message>
    <message>
        <source>Invalid color.</source>
        <translation>Couleur incorrecte.</translation>
    </message>
    <message>
        <source>SNR and BERT tests may fail with
cable length greater than 330ft (100m).</source>
        <translation>Les tests SNR et BERT peuvent échouer sur un câble
de plus de 330 ft (100 m).</translation>
    </message>
</context>
<context>
    <name>Values</name>
    <message>
        <source>&quot;%1&quot; is not a scale such as 1:100 or &quot;20 ft&quot; (to the inch), nor &quot;none&quot;</source>
        <translation>&quot;%1&quot; n&apos;est ni une échelle comme 1:100 ou &quot;20 ft&quot; (par pouce), ni &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a page such as A3 or &quot;17 x 11&quot; (in inches), nor &quot;none&quot;</source>
        <translation>&quot;%1&quot; n&apos;est ni une page comme A3 ou &quot;17 x 11&quot; (en pouces), ni &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; a un caractère qu&apos;un fichier ne peut pas contenir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that %2 can have</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre que %2 peut avoir</translation>
    </message>
    <message>
        <source>there is no value &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de valeur &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre entier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the paper sizes: %2</source>
        <translation>&quot;%1&quot; n&apos;est pas un des formats de papier : %2</translation>
    </message>
</context>
<context>
    <name>XmlFile</name>
    <message>
        <source>The file contains a control character that XML does not allow.</source>
        <translation>Un caractère de commande que XML n&apos;admet pas se trouve dans le texte.</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes.</source>
        <translation>Un élément a plus de %1 attributs.</translation>
    </message>
    <message>
        <source>Elements are nested more than %1 levels deep.</source>
        <translation>Des éléments sont imbriqués sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>Only a document type without declarations is supported.</source>
        <translation>Un type de document n&apos;est admis que sans déclarations.</translation>
    </message>
    <message>
        <source>The document is empty.</source>
        <translation>Le document est vide.</translation>
    </message>
    <message>
        <source>The document has more than one root element.</source>
        <translation>Le document a plus d&apos;un élément racine.</translation>
    </message>
    <message>
        <source>The file begins with the byte order mark of %1. Save it in the encoding ISO-8859-1 (Latin-1), without a mark.</source>
        <translation>Le fichier commence par la marque d&apos;ordre des octets de %1. Enregistrez-le dans le codage ISO-8859-1 (Latin-1), sans marque.</translation>
    </message>
    <message>
        <source>This is the name of a folder.</source>
        <translation>Un dossier porte ce nom.</translation>
    </message>
    <message>
        <source>This name belongs to something that is not a file.</source>
        <translation>Quelque chose qui n&apos;est pas un fichier porte ce nom.</translation>
    </message>
    <message>
        <source>A file with this name already exists. It is not replaced.</source>
        <translation>Il existe un fichier de ce nom. Il n&apos;est pas remplacé.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ce n&apos;est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file is %1 in size, and the limit is %2. A document of this size needs about %3 of memory.</source>
        <translation>Le fichier fait %1, et la limite est de %2. Un document de cette taille demande environ %3 de mémoire.</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read. It is not replaced.</source>
        <translation>Un autre programme a modifié le fichier depuis sa lecture. Il n&apos;est pas remplacé.</translation>
    </message>
</context>
</TS>
