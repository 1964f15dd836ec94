<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BKXMLEditor</name>
    <message>
        <source>The file name contains a NUL character.</source>
        <translation>Der Dateiname enthält ein NUL-Zeichen.</translation>
    </message>
    <message>
        <source>The file could not be loaded, so it is not replaced. Save under another name.</source>
        <translation>Die Datei konnte nicht geladen werden. Sie wird nicht ersetzt; speichern Sie unter einem anderen Namen.</translation>
    </message>
</context>
<context>
    <name>BktEditor</name>
    <message>
        <source>%1 is a bad version number in BktEditor::checkVersion.</source>
        <translation>%1 ist keine gültige Versionsnummer (BktEditor::checkVersion).</translation>
    </message>
    <message>
        <source>Unable to create template with NULL filename</source>
        <translation>Ohne Dateinamen kann keine Vorlage angelegt werden</translation>
    </message>
    <message>
        <source>Empty or null filename in BktEditor::Load</source>
        <translation>BktEditor::Load ohne Dateinamen</translation>
    </message>
    <message>
        <source>Bkt file %1 does not exist</source>
        <translation>Die Vorlagendatei %1 gibt es nicht</translation>
    </message>
    <message>
        <source>Error parsing Bkt file %1
 on line %2,
 column %3,
%4</source>
        <translation>Fehler in der Vorlagendatei %1
 in Zeile %2,
 Spalte %3,
%4</translation>
    </message>
    <message>
        <source>Unable to parse Bkt file %1</source>
        <translation>Die Vorlagendatei %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>Filename is empty.</source>
        <translation>Der Dateiname ist leer.</translation>
    </message>
    <message>
        <source>Unable to Save file (NULL)</source>
        <translation>Ohne Dateinamen kann nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>DeviceType</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Laptop</source>
        <translation>Laptop</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Switch</translation>
    </message>
    <message>
        <source>Router</source>
        <translation>Router</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Access Point</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>Fernseher</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>Patch panel</source>
        <translation>Rangierfeld</translation>
    </message>
    <message>
        <source>Rack</source>
        <translation>Netzwerkschrank</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderes</translation>
    </message>
</context>
<context>
    <name>DocumentCheck</name>
    <message>
        <source>A file name is needed</source>
        <translation>Es ist keine Datei angegeben</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 gibt es nicht</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, Zeile %2, Spalte %3: %4</translation>
    </message>
    <message>
        <source>%1 is not an XML file</source>
        <translation>%1 ist keine XML-Datei</translation>
    </message>
    <message>
        <source>the file does not begin with the element &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>die Datei beginnt weder mit dem Element &quot;%1&quot; noch mit &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known version</source>
        <translation>&quot;%1&quot; ist keine bekannte Version</translation>
    </message>
    <message>
        <source>version %1 is older than %2</source>
        <translation>Version %1 ist älter als %2</translation>
    </message>
    <message>
        <source>it has the same tag as the element in line %1</source>
        <translation>das Tag ist das von Zeile %1</translation>
    </message>
    <message>
        <source>it has the same id &quot;%1&quot; as the element in line %2</source>
        <translation>die ID &quot;%1&quot; ist die von Zeile %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>es gibt keine Prüfdefinition &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no port &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: es gibt keinen Anschluss &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no port or vertical run &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: es gibt keinen Anschluss und keine Steigleitung &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no point, port or vertical run &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: es gibt keinen Punkt, keinen Anschluss und keine Steigleitung &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there is no bundle &quot;%1&quot;</source>
        <translation>es gibt kein Bündel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no cable &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: es gibt kein Kabel &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no device or bend &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: es gibt kein Gerät und keinen Punkt &quot;%2&quot;</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains &quot;%2&quot;, which a save cannot write</source>
        <translation>&quot;%1&quot; enthält &quot;%2&quot;, das beim Speichern verloren geht</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: &quot;%2&quot; is not a usable number</source>
        <translation>&quot;%1&quot;: &quot;%2&quot; ist keine brauchbare Zahl</translation>
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
        <translation>Kabel</translation>
    </message>
    <message>
        <source>Filename given to JobEditor is a directory</source>
        <translation>Der Dateiname für JobEditor ist ein Verzeichnis</translation>
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
        <translation>New(const &amp;Qstring) ohne Dateinamen</translation>
    </message>
    <message>
        <source>A job is open. Unload it before making a new one.</source>
        <translation>Ein Auftrag ist offen. Er muss geschlossen werden, bevor ein neuer angelegt wird.</translation>
    </message>
    <message>
        <source>Floor_</source>
        <extracomment>What generated names of floors begin with, such as &quot;Floor_1&quot;; no characters beyond Latin-1.</extracomment>
        <translation>Etage_</translation>
    </message>
    <message>
        <source>Sheet_</source>
        <extracomment>What generated names of sheets begin with; no characters beyond Latin-1.</extracomment>
        <translation>Blatt_</translation>
    </message>
    <message>
        <source>Empty or null filename in JobEditor::Load</source>
        <translation>JobEditor::Load ohne Dateinamen</translation>
    </message>
    <message>
        <source>Job file %1 does not exist</source>
        <translation>Die Auftragsdatei %1 gibt es nicht</translation>
    </message>
    <message>
        <source>Error parsing job file %1
 on line %2,
 column %3,
%4</source>
        <translation>Fehler in der Auftragsdatei %1
 in Zeile %2,
 Spalte %3,
%4</translation>
    </message>
    <message>
        <source>Unable to parse job file %1</source>
        <translation>Die Auftragsdatei %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>Incompatible version of job file %1</source>
        <translation>Die Auftragsdatei %1 hat keine passende Version</translation>
    </message>
    <message>
        <source>Filename is Empty</source>
        <translation>Der Dateiname ist leer</translation>
    </message>
    <message>
        <source>Filename given is a directory</source>
        <translation>Der Dateiname ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an XML element</source>
        <translation>&quot;%1&quot; kann nicht der Name eines XML-Elements sein</translation>
    </message>
    <message>
        <source>A job can hold at most %1 releases</source>
        <translation>Ein Auftrag enthält höchstens %1 Ausgaben</translation>
    </message>
    <message>
        <source>Unable to open file.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This is the job&apos;s own file. Choose another name for the template.</source>
        <translation>Das ist die Datei des Auftrags selbst. Eine Vorlage braucht einen anderen Namen.</translation>
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
        <translation>Daten</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>TV</source>
        <translation>TV</translation>
    </message>
    <message>
        <source>Cable box</source>
        <translation>Kabelreceiver</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Fire alarm</source>
        <translation>Brandmelder</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Spare</source>
        <translation>Reserve</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderes</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size such as 500M</source>
        <translation>&quot;%1&quot; ist keine Größe wie 500M</translation>
    </message>
    <message>
        <source>%1 is needed</source>
        <translation>%1 ist nötig</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>&quot;%1&quot; ist ein Argument zu viel</translation>
    </message>
    <message>
        <source>&quot;cabledoc %1 --help&quot; shows how to use it</source>
        <translation>&quot;cabledoc %1 --help&quot; zeigt, wie es geht</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Nutzung</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Length (m)</source>
        <translation>Länge (m)</translation>
    </message>
    <message>
        <source>Length (ft)</source>
        <translation>Länge (ft)</translation>
    </message>
    <message>
        <source>both names must end in &quot;.job&quot;, or both in &quot;.bkt&quot;</source>
        <translation>beide Namen müssen auf &quot;.job&quot; oder beide auf &quot;.bkt&quot; enden</translation>
    </message>
    <message>
        <source>the name of a template must end in &quot;.bkt&quot;</source>
        <translation>der Name einer Vorlage muss auf &quot;.bkt&quot; enden</translation>
    </message>
    <message>
        <source>Test status</source>
        <translation>Prüfstand</translation>
    </message>
    <message>
        <source>Cables</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Etage</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Ceiling</source>
        <translation>Deckenhöhe</translation>
    </message>
    <message>
        <source>Rooms</source>
        <translation>Räume</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Anschlüsse</translation>
    </message>
    <message>
        <source>Vertical runs</source>
        <translation>Steigleitungen</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>Active ports</source>
        <translation>Aktive Anschlüsse</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from 1 to %2</source>
        <translation>&quot;%1&quot; ist keine Zahl von 1 bis %2</translation>
    </message>
    <message>
        <source>floors %1, rooms %2, ports %3, cables %4 to add; %5 cables to change
</source>
        <translation>neu wären: Etagen %1, Räume %2, Anschlüsse %3, Kabel %4; geändert: Kabel %5
</translation>
    </message>
    <message>
        <source>floors %1, rooms %2, ports %3, cables %4 added; %5 cables changed
</source>
        <translation>neu: Etagen %1, Räume %2, Anschlüsse %3, Kabel %4; geändert: Kabel %5
</translation>
    </message>
    <message>
        <source>The job or template file.</source>
        <translation>Die Auftrags- oder Vorlagendatei.</translation>
    </message>
    <message>
        <source>The job file.</source>
        <translation>Die Auftragsdatei.</translation>
    </message>
    <message>
        <source>Print JSON instead of text.</source>
        <translation>JSON statt Text ausgeben.</translation>
    </message>
    <message>
        <source>The largest file to read, such as 500M; 4G by default.</source>
        <translation>Die größte Datei, die gelesen wird, etwa 500M; sonst 4G.</translation>
    </message>
    <message>
        <source>The file to write. An existing file is not replaced.</source>
        <translation>Die neue Datei. Eine vorhandene wird nicht ersetzt.</translation>
    </message>
    <message>
        <source>The number of floors, from 1 (the default) to 1000.</source>
        <translation>Die Zahl der Etagen, von 1 (die Vorgabe) bis 1000.</translation>
    </message>
    <message>
        <source>Make a new job file.</source>
        <translation>Eine neue Auftragsdatei anlegen.</translation>
    </message>
    <message>
        <source>It has one sheet. An existing file is not replaced. &quot;.job&quot; is added to a name that lacks it.</source>
        <translation>Sie hat ein Blatt. Eine vorhandene Datei wird nicht ersetzt. Einem Namen ohne &quot;.job&quot; wird es angehängt.</translation>
    </message>
    <message>
        <source>Show what a job file holds.</source>
        <translation>Zeigen, was eine Auftragsdatei enthält.</translation>
    </message>
    <message>
        <source>The floors and sheets are listed in the order of their tags. Cables, connections and active ports are counted.</source>
        <translation>Die Etagen und Blätter werden in der Reihenfolge ihrer Tags aufgelistet. Kabel, Verbindungen und aktive Anschlüsse werden gezählt.</translation>
    </message>
    <message>
        <source>Print lengths in metres instead of feet.</source>
        <translation>Längen in Metern statt in Fuß ausgeben.</translation>
    </message>
    <message>
        <source>List the cables of a job.</source>
        <translation>Die Kabel eines Auftrags auflisten.</translation>
    </message>
    <message>
        <source>The list shows their ends, the status of their tests and their measured lengths.</source>
        <translation>Die Liste zeigt ihre Enden, den Stand ihrer Prüfung und ihre gemessenen Längen.</translation>
    </message>
    <message>
        <source>Report what is wrong with a file.</source>
        <translation>Melden, was an einer Datei nicht stimmt.</translation>
    </message>
    <message>
        <source>Each of the first 50 findings is one line; --json prints all of them. The file is not changed.</source>
        <translation>Jeder der ersten 50 Befunde ist eine Zeile; --json gibt alle aus. Die Datei wird nicht geändert.</translation>
    </message>
    <message>
        <source>Convert a file of an earlier version.</source>
        <translation>Eine Datei früherer Version umwandeln.</translation>
    </message>
    <message>
        <source>The new file has the current version. FILE is not changed.</source>
        <translation>Die neue Datei hat die heutige Version. FILE wird nicht geändert.</translation>
    </message>
    <message>
        <source>The template. It is not changed.</source>
        <translation>Die Vorlage. Sie wird nicht geändert.</translation>
    </message>
    <message>
        <source>Only add the default test definitions and the bundles that the job lacks.</source>
        <translation>Nur die vorgegebenen Prüfdefinitionen und die Bündel ergänzen, die dem Auftrag fehlen.</translation>
    </message>
    <message>
        <source>Apply a template to a job.</source>
        <translation>Eine Vorlage auf einen Auftrag anwenden.</translation>
    </message>
    <message>
        <source>The contractor and the settings of the job are replaced. Test definitions and bundles that the job lacks are added.</source>
        <translation>Der Auftragnehmer und die Einstellungen des Auftrags werden ersetzt. Prüfdefinitionen und Bündel, die dem Auftrag fehlen, werden ergänzt.</translation>
    </message>
    <message>
        <source>Make a template of a job.</source>
        <translation>Aus einem Auftrag eine Vorlage machen.</translation>
    </message>
    <message>
        <source>The template gets the contractor, the settings, the test definitions and the bundles of the job.</source>
        <translation>Die Vorlage bekommt den Auftragnehmer, die Einstellungen, die Prüfdefinitionen und die Bündel des Auftrags.</translation>
    </message>
    <message>
        <source>The cable schedule, a CSV file. It is not changed.</source>
        <translation>Der Kabelplan, eine CSV-Datei. Er wird nicht geändert.</translation>
    </message>
    <message>
        <source>Only show what would change.</source>
        <translation>Nur zeigen, was sich ändern würde.</translation>
    </message>
    <message>
        <source>Bring a job up to a cable schedule.</source>
        <translation>Einen Auftrag auf den Stand eines Kabelplans bringen.</translation>
    </message>
    <message>
        <source>Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If the schedule has a problem, the job is not changed. Each of the first 50 problems is one line; --json prints all of them.</source>
        <translation>Etagen, Räume, Anschlüsse und Kabel, die dem Auftrag fehlen, werden ergänzt. Kabel, die abweichen, werden geändert. Wenn der Plan einen Fehler hat, wird der Auftrag nicht geändert. Jeder der ersten 50 Fehler ist eine Zeile; --json gibt alle aus.</translation>
    </message>
    <message>
        <source>Print the cable schedule of a job as CSV.</source>
        <translation>Den Kabelplan eines Auftrags als CSV ausgeben.</translation>
    </message>
    <message>
        <source>The file cannot be locked: no file can be created in its folder</source>
        <translation>Die Datei kann nicht gesperrt werden: In ihrem Ordner kann keine Datei angelegt werden</translation>
    </message>
    <message>
        <source>Another program is changing the file: %1, process %2 on %3. If it is not, delete %4</source>
        <translation>Ein anderes Programm ändert die Datei gerade: %1, Prozess %2 auf %3. Wenn nicht, löschen Sie %4</translation>
    </message>
    <message>
        <source>%1 exists and is left as it is</source>
        <translation>%1 gibt es schon und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Show the help of a command.</source>
        <translation>Die Hilfe eines Befehls anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>The command did its work.</source>
        <translation>Der Befehl ist ausgeführt.</translation>
    </message>
    <message>
        <source>&quot;check&quot; found something wrong.</source>
        <translation>&quot;check&quot; hat etwas gefunden.</translation>
    </message>
    <message>
        <source>The command line is wrong.</source>
        <translation>Der Aufruf ist falsch.</translation>
    </message>
    <message>
        <source>A file could not be loaded.</source>
        <translation>Eine Datei konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>A file could not be saved.</source>
        <translation>Eine Datei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The command did its work, but standard output could not be written.</source>
        <translation>Der Befehl ist ausgeführt, aber die Standardausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Usage: cabledoc COMMAND ...
</source>
        <translation>Aufruf: cabledoc COMMAND ...
</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Rückgabewerte:</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Usage: cabledoc %1
</source>
        <translation>Aufruf: cabledoc %1
</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>a command is needed</source>
        <translation>ein Befehl ist nötig</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>einen Befehl &quot;%1&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>Standardausgabe: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>January</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Januar</translation>
    </message>
    <message>
        <source>February</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Februar</translation>
    </message>
    <message>
        <source>March</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>März</translation>
    </message>
    <message>
        <source>April</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Mai</translation>
    </message>
    <message>
        <source>June</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>August</translation>
    </message>
    <message>
        <source>September</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Monday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
    </message>
</context>
<context>
    <name>Schedule</name>
    <message>
        <source>%1 has no list of cables or no list of floors</source>
        <translation>%1 hat keine Kabelliste oder keine Etagenliste</translation>
    </message>
    <message>
        <source>a quotation mark is missing or is in the wrong place</source>
        <translation>ein Anführungszeichen fehlt oder steht an falscher Stelle</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>die Spalte &quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>eine Spalte &quot;%1&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>die Spalte &quot;%1&quot; ist doppelt</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>die Zeile hat mehr Felder als die Überschrift</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>&quot;%1&quot; ist keine Farbe</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>der Text ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job file cannot hold</source>
        <translation>&quot;%1&quot; hat ein Zeichen, das in einer Auftragsdatei nicht stehen kann</translation>
    </message>
    <message>
        <source>the cable has no id</source>
        <translation>das Kabel hat keine ID</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is already used in row %2</source>
        <translation>die ID &quot;%1&quot; ist die von Zeile %2</translation>
    </message>
    <message>
        <source>the end has a floor or room, but no port</source>
        <translation>das Ende hat eine Etage oder einen Raum, aber keinen Anschluss</translation>
    </message>
    <message>
        <source>the end has a port, but no floor</source>
        <translation>das Ende hat einen Anschluss, aber keine Etage</translation>
    </message>
</context>
<context>
    <name>SettingsStrings</name>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
</context>
<context>
    <name>TestDef</name>
    <message>
        <source>Cable has no pairs please
 specify which pairs are in use.</source>
        <translation>Das Kabel hat keine Adernpaare.
Bitte angeben, welche Paare benutzt werden.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires
all 4 pairs be in use.</source>
        <translation>Für 1 Gbit/s müssen
alle 4 Paare benutzt werden.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires
no splits.</source>
        <translation>Für 1 Gbit/s dürfen
keine Paare gesplittet sein.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run 1 Gbit/s.</source>
        <translation>Ungültige Paarzuordnung:
nur ein durchgehendes oder ein gekreuztes
Kabel kann mit 1 Gbit/s geprüft werden.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that length constant
is between 10.0 and 65.0 (pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>Für 1 Gbit/s muss die Längenkonstante zwischen
10,0 und 65,0 (pF/ft) oder 32,8 und 213,2 (pF/m) liegen.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that skew must be measured
and be at most 50ns.</source>
        <translation>Für 1 Gbit/s muss die Laufzeitdifferenz gemessen werden
und darf höchstens 50 ns betragen.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that SNR must be measured
and be at least 20dB.</source>
        <translation>Für 1 Gbit/s muss das SNR gemessen werden
und mindestens 20 dB betragen.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires pairs
 1-2 and 3-6 be in use.</source>
        <translation>Für 100 Mbit/s müssen die Paare
1-2 und 3-6 benutzt werden.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires no 
splits on pairs 1-2 and 3-6.</source>
        <translation>Für 100 Mbit/s dürfen die Paare
1-2 und 3-6 nicht gesplittet sein.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run 100 Mbits/s.</source>
        <translation>Ungültige Paarzuordnung:
nur ein durchgehendes oder ein gekreuztes
Kabel kann mit 100 Mbit/s geprüft werden.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>Für 100 Mbit/s muss die Längenkonstante zwischen
10,0 und 65,0 (pF/ft) oder 32,8 und 213,2 (pF/m) liegen.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires that SNR must be measured
and be at least 20dB.</source>
        <translation>Für 100 Mbit/s muss das SNR gemessen werden
und mindestens 20 dB betragen.</translation>
    </message>
    <message>
        <source>Skew test requires
all 4 pairs be in use.</source>
        <translation>Für die Prüfung der Laufzeitdifferenz müssen
alle 4 Paare benutzt werden.</translation>
    </message>
    <message>
        <source>Skew test requires
no splits.</source>
        <translation>Für die Prüfung der Laufzeitdifferenz dürfen
keine Paare gesplittet sein.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run Skew test.</source>
        <translation>Ungültige Paarzuordnung:
nur bei einem durchgehenden oder gekreuzten
Kabel kann die Laufzeitdifferenz geprüft werden.</translation>
    </message>
    <message>
        <source>Skew test requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>Für die Prüfung der Laufzeitdifferenz muss die Längenkonstante zwischen
10,0 und 65,0 (pF/ft) oder 32,8 und 213,2 (pF/m) liegen.</translation>
    </message>
    <message>
        <source>SNR test requires pairs
 1-2 and 3-6 be in use.</source>
        <translation>Für die SNR-Prüfung müssen die Paare
1-2 und 3-6 benutzt werden.</translation>
    </message>
    <message>
        <source>SNR test requires no 
splits on pairs 1-2 and 3-6.</source>
        <translation>Für die SNR-Prüfung dürfen die Paare
1-2 und 3-6 nicht gesplittet sein.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run SNR test.</source>
        <translation>Ungültige Paarzuordnung:
nur bei einem durchgehenden oder gekreuzten
Kabel kann das SNR geprüft werden.</translation>
    </message>
    <message>
        <source>SNR test requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m).</source>
        <translation>Für die SNR-Prüfung muss die Längenkonstante zwischen
10,0 und 65,0 (pF/ft) oder 32,8 und 213,2 (pF/m) liegen.</translation>
    </message>
    <message>
        <source>Can&apos;t map 2 pairs on near end to
same pair on far end.</source>
        <translation>Zwei Paare am nahen Ende können nicht
auf dasselbe Paar am fernen Ende gelegt werden.</translation>
    </message>
    <message>
        <source>Invalid color.</source>
        <translation>Ungültige Farbe.</translation>
    </message>
    <message>
        <source>SNR and BERT tests may fail with
cable length greater than 330ft (100m).</source>
        <translation>SNR- und BERT-Prüfungen können bei Kabeln
von mehr als 330 ft (100 m) fehlschlagen.</translation>
    </message>
</context>
<context>
    <name>XmlFile</name>
    <message>
        <source>The file contains a control character that XML does not allow.</source>
        <translation>Ein Steuerzeichen, das XML nicht erlaubt, steht im Text.</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes.</source>
        <translation>Ein Element hat mehr als %1 Attribute.</translation>
    </message>
    <message>
        <source>Elements are nested more than %1 levels deep.</source>
        <translation>Elemente sind mehr als %1 Stufen tief geschachtelt.</translation>
    </message>
    <message>
        <source>Only a document type without declarations is supported.</source>
        <translation>Ein Dokumenttyp ist nur ohne Deklarationen erlaubt.</translation>
    </message>
    <message>
        <source>The document is empty.</source>
        <translation>Das Dokument ist leer.</translation>
    </message>
    <message>
        <source>The document has more than one root element.</source>
        <translation>Das Dokument hat mehr als ein Wurzelelement.</translation>
    </message>
    <message>
        <source>The file begins with the byte order mark of %1. Save it in the encoding ISO-8859-1 (Latin-1), without a mark.</source>
        <translation>Die Datei beginnt mit der Bytereihenfolge-Markierung von %1. Speichern Sie sie in der Kodierung ISO-8859-1 (Latin-1), ohne Markierung.</translation>
    </message>
    <message>
        <source>This is the name of a folder.</source>
        <translation>Ein Ordner hat diesen Namen.</translation>
    </message>
    <message>
        <source>This name belongs to something that is not a file.</source>
        <translation>Etwas, das keine Datei ist, hat diesen Namen.</translation>
    </message>
    <message>
        <source>A file with this name already exists. It is not replaced.</source>
        <translation>Es gibt schon eine Datei dieses Namens. Sie wird nicht ersetzt.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is %1 in size, and the limit is %2. A document of this size needs about %3 of memory.</source>
        <translation>Die Datei hat %1, erlaubt sind %2. Ein Dokument dieser Größe braucht etwa %3 Speicher.</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read. It is not replaced.</source>
        <translation>Ein anderes Programm hat die Datei geändert, seit sie gelesen wurde. Sie wird nicht ersetzt.</translation>
    </message>
</context>
</TS>
