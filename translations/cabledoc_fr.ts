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
        <translation>&quot;%1&quot; : il n&apos;y a pas d&apos;appareil ni de point &quot;%2&quot;</translation>
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
        <source>the name of a template must end in &quot;.bkt&quot;</source>
        <translation>le nom d&apos;un modèle doit finir par &quot;.bkt&quot;</translation>
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
        <source>The job file.</source>
        <translation>Le fichier de projet.</translation>
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
        <source>The file to write. An existing file is not replaced.</source>
        <translation>Le nouveau fichier. Un fichier existant n&apos;est pas remplacé.</translation>
    </message>
    <message>
        <source>The number of floors, from 1 (the default) to 1000.</source>
        <translation>Le nombre d&apos;étages, de 1 (par défaut) à 1000.</translation>
    </message>
    <message>
        <source>Make a new job file.</source>
        <translation>Créer un fichier de projet.</translation>
    </message>
    <message>
        <source>It has one sheet. An existing file is not replaced. &quot;.job&quot; is added to a name that lacks it.</source>
        <translation>Il a une feuille. Un fichier existant n&apos;est pas remplacé. &quot;.job&quot; est ajouté à un nom qui ne l&apos;a pas.</translation>
    </message>
    <message>
        <source>Show what a job file holds.</source>
        <translation>Montrer ce que contient un projet.</translation>
    </message>
    <message>
        <source>The floors and sheets are listed in the order of their tags. Cables, connections and active ports are counted.</source>
        <translation>Les étages et les feuilles sont listés dans l&apos;ordre de leurs balises. Les câbles, les connexions et les prises actives sont comptés.</translation>
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
        <source>Report what is wrong with a file.</source>
        <translation>Signaler ce qui ne va pas dans un fichier.</translation>
    </message>
    <message>
        <source>Each of the first 50 findings is one line; --json prints all of them. The file is not changed.</source>
        <translation>Chacun des 50 premiers constats est une ligne ; --json les affiche tous. Le fichier n&apos;est pas modifié.</translation>
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
        <source>The cable schedule, a CSV file. It is not changed.</source>
        <translation>Le plan de câblage, un fichier CSV. Il n&apos;est pas modifié.</translation>
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
        <source>Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If the schedule has a problem, the job is not changed. Each of the first 50 problems is one line; --json prints all of them.</source>
        <translation>Les étages, pièces, prises et câbles qui manquent au projet sont ajoutés. Les câbles qui diffèrent sont modifiés. Si le plan a un problème, le projet n&apos;est pas modifié. Chacun des 50 premiers problèmes est une ligne ; --json les affiche tous.</translation>
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
        <source>&quot;check&quot; found something wrong.</source>
        <translation>&quot;check&quot; a trouvé quelque chose.</translation>
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
    <name>Schedule</name>
    <message>
        <source>%1 has no list of cables or no list of floors</source>
        <translation>%1 n&apos;a pas de liste de câbles ou pas de liste d&apos;étages</translation>
    </message>
    <message>
        <source>a quotation mark is missing or is in the wrong place</source>
        <translation>un guillemet manque ou se trouve au mauvais endroit</translation>
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
        <source>the text is not UTF-8</source>
        <translation>le texte n&apos;est pas en UTF-8</translation>
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
</context>
<context>
    <name>SettingsStrings</name>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
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
