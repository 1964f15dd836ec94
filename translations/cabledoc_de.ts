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
    <name>CsvText</name>
    <message>
        <source>This is a file of a spreadsheet program, not CSV. Save the sheet as CSV, in UTF-8 if there is a choice, and use that file.</source>
        <translation>Das ist die Datei eines Tabellenprogramms, kein CSV. Speichern Sie das Blatt als CSV, wenn möglich in UTF-8, und verwenden Sie diese Datei.</translation>
    </message>
    <message>
        <source>a quotation mark is missing or is in the wrong place</source>
        <translation>ein Anführungszeichen fehlt oder steht an falscher Stelle</translation>
    </message>
    <message>
        <source>the text is not UTF-16</source>
        <translation>der Text ist nicht in UTF-16</translation>
    </message>
    <message>
        <source>the text is not Windows-1252</source>
        <translation>der Text ist nicht in Windows-1252</translation>
    </message>
    <message>
        <source>the text is not UTF-8; try --encoding windows-1252</source>
        <translation>der Text ist nicht in UTF-8; versuchen Sie --encoding windows-1252</translation>
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
        <translation>&quot;%1&quot;: es gibt kein Gerät und keinen Knickpunkt &quot;%2&quot;</translation>
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
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>es gibt keine Datei &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>&quot;%1&quot; kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the content of the test</source>
        <translation>&quot;%1&quot; hat nicht den Inhalt der Prüfung</translation>
    </message>
</context>
<context>
    <name>Drawing</name>
    <message>
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>Unknown result</source>
        <translation>Unbekanntes Ergebnis</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Ohne Typ</translation>
    </message>
    <message>
        <source>No use</source>
        <translation>Ohne Nutzung</translation>
    </message>
    <message>
        <source>No bundle</source>
        <translation>Ohne Bündel</translation>
    </message>
    <message>
        <source>Several of these</source>
        <translation>Mehrere davon</translation>
    </message>
    <message>
        <source>No samples</source>
        <translation>Keine Messpunkte</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>First series</source>
        <translation>Erste Reihe</translation>
    </message>
    <message>
        <source>Second series</source>
        <translation>Zweite Reihe</translation>
    </message>
    <message>
        <source>Values of the tester over the numbers of the samples</source>
        <translation>Werte des Messgeräts über den Nummern der Messpunkte</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Typ: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Zeit: %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>Tester: %1</source>
        <translation>Messgerät: %1</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>Near-end crosstalk</source>
        <translation>Nahnebensprechen</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Echo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>The cable &quot;%1&quot; has no response curves.</source>
        <translation>Das Kabel &quot;%1&quot; hat keine Messkurven.</translation>
    </message>
    <message>
        <source>Response curves of %1</source>
        <translation>Messkurven von %1</translation>
    </message>
    <message>
        <source>Response curves</source>
        <translation>Messkurven</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Drawings need an application with fonts, which is a QGuiApplication.</source>
        <translation>Zeichnungen brauchen eine Anwendung mit Schriften, also eine QGuiApplication.</translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; cannot be used. It is part of the package fonts-dejavu-core.</source>
        <translation>Es gibt keine brauchbare Schrift &quot;%1&quot;. Sie gehört zum Paket fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>%1: the background picture %2 cannot be read</source>
        <translation>%1: das Hintergrundbild %2 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 cables</source>
        <translation>%1 Kabel</translation>
    </message>
    <message>
        <source>%1 (%2 cables)</source>
        <translation>%1 (%2 Kabel)</translation>
    </message>
    <message>
        <source>%1, from left to right: %2</source>
        <translation>%1, von links nach rechts: %2</translation>
    </message>
    <message>
        <source>Unknown use</source>
        <translation>Unbekannte Nutzung</translation>
    </message>
    <message>
        <source>Cables: %1</source>
        <translation>Kabel: %1</translation>
    </message>
    <message>
        <source>Point on the way of cables</source>
        <translation>Punkt am Weg von Kabeln</translation>
    </message>
    <message>
        <source>Vertical run</source>
        <translation>Steigleitung</translation>
    </message>
    <message>
        <source>Numbers on the plan</source>
        <translation>Nummern im Plan</translation>
    </message>
    <message>
        <source>Rooms without a place</source>
        <translation>Räume ohne Platz</translation>
    </message>
    <message>
        <source>Ports without a place</source>
        <translation>Anschlüsse ohne Platz</translation>
    </message>
    <message>
        <source>Vertical runs without a place</source>
        <translation>Steigleitungen ohne Platz</translation>
    </message>
    <message>
        <source>Points without a place</source>
        <translation>Punkte ohne Platz</translation>
    </message>
    <message>
        <source>Texts without a place</source>
        <translation>Texte ohne Platz</translation>
    </message>
    <message>
        <source>There is no sheet with the tag &quot;%1&quot;.</source>
        <translation>Es gibt kein Blatt mit der Kennung &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>%1 is reduced to %2, because it is larger than the paper</source>
        <translation>%1 ist auf %2 verkleinert, weil es größer als das Papier ist</translation>
    </message>
    <message>
        <source>None (%1)</source>
        <translation>Ohne (%1)</translation>
    </message>
    <message>
        <source>Devices without a place</source>
        <translation>Geräte ohne Platz</translation>
    </message>
    <message>
        <source>Bends without a place</source>
        <translation>Knickpunkte ohne Platz</translation>
    </message>
    <message>
        <source>Connections without a way</source>
        <translation>Verbindungen ohne Weg</translation>
    </message>
    <message>
        <source>Connection of type %1</source>
        <translation>Verbindung vom Typ %1</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>Es gibt kein Papierformat &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The page settings of the job give no sheet that can be drawn. Choose a paper.</source>
        <translation>Die Seiteneinstellungen des Auftrags ergeben kein Blatt, das gezeichnet werden kann. Wählen Sie ein Papier.</translation>
    </message>
    <message>
        <source>the logo %1 cannot be read</source>
        <translation>das Logo %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>There is no floor with the tag &quot;%1&quot;.</source>
        <translation>Es gibt keine Etage mit der Kennung &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Floor plans</source>
        <translation>Grundrisse</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Etage</translation>
    </message>
    <message>
        <source>The picture is too large. Choose fewer dots to the inch.</source>
        <translation>Das Bild ist zu groß. Wählen Sie weniger Punkte je Zoll.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture. Choose fewer dots to the inch.</source>
        <translation>Für das Bild reicht der Speicher nicht. Wählen Sie weniger Punkte je Zoll.</translation>
    </message>
    <message>
        <source>The picture cannot be written as PNG.</source>
        <translation>Das Bild kann nicht als PNG geschrieben werden.</translation>
    </message>
    <message>
        <source>Riser</source>
        <translation>Steigschema</translation>
    </message>
    <message>
        <source>Rooms: %1</source>
        <translation>Räume: %1</translation>
    </message>
    <message>
        <source>Ports: %1</source>
        <translation>Anschlüsse: %1</translation>
    </message>
    <message>
        <source>Ports: %1, cables: %2</source>
        <translation>Anschlüsse: %1, Kabel: %2</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>ohne Typ</translation>
    </message>
    <message>
        <source>Vertical runs</source>
        <translation>Steigleitungen</translation>
    </message>
    <message>
        <source>%1: at most %2 cables</source>
        <translation>%1: höchstens %2 Kabel</translation>
    </message>
    <message>
        <source>From %1 to %2: %3 cables</source>
        <translation>Von %1 nach %2: %3 Kabel</translation>
    </message>
    <message>
        <source>Cables between floors without a vertical run: %1</source>
        <translation>Kabel zwischen Etagen ohne Steigleitung: %1</translation>
    </message>
    <message>
        <source>the riser does not fit on the paper, so the page is larger</source>
        <translation>das Steigschema passt nicht auf das Papier, deshalb ist die Seite größer</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>%1: list</source>
        <translation>%1: Liste</translation>
    </message>
    <message>
        <source>%1 would need more than %2 sheets of this paper in this scale.</source>
        <translation>%1 würde in diesem Maßstab mehr als %2 Blätter dieses Papiers brauchen.</translation>
    </message>
    <message>
        <source>%1: part %2</source>
        <translation>%1: Teil %2</translation>
    </message>
    <message>
        <source>Sheet %1</source>
        <translation>Blatt %1</translation>
    </message>
    <message>
        <source>Overview of %1, not to scale</source>
        <translation>Übersicht über %1, nicht maßstäblich</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>The pages cannot be written to a temporary file in %1.</source>
        <translation>Die Seiten können nicht in eine temporäre Datei in %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>no font has these characters, so they are missing: %1</source>
        <translation>keine Schrift hat diese Zeichen, daher fehlen sie: %1</translation>
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
    <name>Labels</name>
    <message>
        <source>Code 128 only holds characters of ASCII, and not &quot;%1&quot;; a QR code can hold it</source>
        <translation>Code 128 kann nur ASCII-Zeichen enthalten, nicht &quot;%1&quot;; ein QR-Code kann diesen Text enthalten</translation>
    </message>
    <message>
        <source>the code is empty</source>
        <translation>der Code ist leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long for a code</source>
        <translation>&quot;%1&quot; ist zu lang für einen Code</translation>
    </message>
    <message>
        <source>the code with its light zone needs %1 mm, and the label has room for %2 mm</source>
        <translation>der Code braucht mit seiner Ruhezone %1 mm, und das Etikett hat Platz für %2 mm</translation>
    </message>
    <message>
        <source>%1 lines are %2 mm high at 5 points, and the label has room for %3 mm</source>
        <translation>%1 Zeilen sind bei 5 Punkt %2 mm hoch, und das Etikett hat Platz für %3 mm</translation>
    </message>
    <message>
        <source>no font has the character %1</source>
        <translation>keine Schrift hat das Zeichen %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 mm wide at 5 points, and the label has room for %3 mm</source>
        <translation>&quot;%1&quot; ist bei 5 Punkt %2 mm breit, und das Etikett hat Platz für %3 mm</translation>
    </message>
    <message>
        <source>the pattern has a &quot;}&quot; without a &quot;{&quot;; write &quot;}}&quot; for a brace</source>
        <translation>das Muster hat eine &quot;}&quot; ohne &quot;{&quot;; schreiben Sie &quot;}}&quot; für eine geschweifte Klammer</translation>
    </message>
    <message>
        <source>the pattern has a &quot;{&quot; without a &quot;}&quot;; write &quot;{{&quot; for a brace</source>
        <translation>das Muster hat eine &quot;{&quot; ohne &quot;}&quot;; schreiben Sie &quot;{{&quot; für eine geschweifte Klammer</translation>
    </message>
    <message>
        <source>the pattern has a field without a name</source>
        <translation>das Muster hat ein Feld ohne Namen</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;</source>
        <translation>es gibt kein Feld &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression</source>
        <translation>&quot;%1&quot; ist kein regulärer Ausdruck</translation>
    </message>
    <message>
        <source>only cables have two ends</source>
        <translation>nur Kabel haben zwei Enden</translation>
    </message>
    <message>
        <source>a sheet has the places 1 to %1</source>
        <translation>ein Blatt hat die Plätze 1 bis %1</translation>
    </message>
    <message>
        <source>the label has no text</source>
        <translation>das Etikett hat keinen Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a label with the same text</source>
        <translation>&quot;%1&quot; hat ein Etikett mit demselben Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the same code</source>
        <translation>&quot;%1&quot; hat denselben Code</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form %2</source>
        <translation>&quot;%1&quot; hat nicht die Form %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
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
        <source>Print JSON instead of text.</source>
        <translation>JSON statt Text ausgeben.</translation>
    </message>
    <message>
        <source>The largest file to read, such as 500M; 4G by default.</source>
        <translation>Die größte Datei, die gelesen wird, etwa 500M; sonst 4G.</translation>
    </message>
    <message>
        <source>Show what a job file holds.</source>
        <translation>Zeigen, was eine Auftragsdatei enthält.</translation>
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
        <source>Only show what would change.</source>
        <translation>Nur zeigen, was sich ändern würde.</translation>
    </message>
    <message>
        <source>Bring a job up to a cable schedule.</source>
        <translation>Einen Auftrag auf den Stand eines Kabelplans bringen.</translation>
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
    <message>
        <source>--csv and --json cannot be used together</source>
        <translation>--csv und --json sind nicht zusammen möglich</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>eine Option &quot;%1&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>standard input, &quot;-&quot;, can be read only once</source>
        <translation>die Standardeingabe, &quot;-&quot;, kann nur einmal gelesen werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not end in &quot;.%2&quot;</source>
        <translation>&quot;%1&quot; endet nicht auf &quot;.%2&quot;</translation>
    </message>
    <message>
        <source>a file and JSON cannot both be written to standard output</source>
        <translation>eine Datei und JSON können nicht beide in die Standardausgabe geschrieben werden</translation>
    </message>
    <message>
        <source>the output would replace &quot;%1&quot;, which is read</source>
        <translation>die Ausgabe würde &quot;%1&quot; ersetzen, das gelesen wird</translation>
    </message>
    <message>
        <source>there is no floor &quot;%1&quot;</source>
        <translation>es gibt keine Etage &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there already is a floor &quot;%1&quot;</source>
        <translation>es gibt schon eine Etage &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>es gibt kein Blatt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there already is a sheet &quot;%1&quot;</source>
        <translation>es gibt schon ein Blatt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;floor&quot; nor &quot;sheet&quot;</source>
        <translation>&quot;%1&quot; ist weder &quot;floor&quot; noch &quot;sheet&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name</source>
        <translation>&quot;%1&quot; kann kein Name sein</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>there is no value &quot;%1&quot;</source>
        <translation>es gibt keinen Wert &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--floor and --floors cannot be given together</source>
        <translation>--floor und --floors sind nicht zusammen möglich</translation>
    </message>
    <message>
        <source>a floor must have a name</source>
        <translation>eine Etage muss einen Namen haben</translation>
    </message>
    <message>
        <source>there cannot be two floors &quot;%1&quot;</source>
        <translation>es kann nicht zwei Etagen &quot;%1&quot; geben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job file cannot hold</source>
        <translation>&quot;%1&quot; hat ein Zeichen, das in einer Auftragsdatei nicht stehen kann</translation>
    </message>
    <message>
        <source>a template has no floors</source>
        <translation>eine Vorlage hat keine Etagen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not of the form NAME=VALUE</source>
        <translation>&quot;%1&quot; hat nicht die Form NAME=VALUE</translation>
    </message>
    <message>
        <source>%1 elements have no name of their own and are left out; --tags exports them too</source>
        <translation>Elemente ohne eigenen Namen, die fehlen: %1; --tags exportiert sie auch</translation>
    </message>
    <message>
        <source>%1 added, %2 changed, %3 renamed, %4 moved, %5 removed
</source>
        <translation>ergänzt: %1, geändert: %2, umbenannt: %3, verschoben: %4, entfernt: %5
</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>without</source>
        <translation>ohne</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Geschätzt</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Other floor</source>
        <translation>Andere Etage</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Bündel</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Längste</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Zu lang</translation>
    </message>
    <message>
        <source>All cables</source>
        <translation>Alle Kabel</translation>
    </message>
    <message>
        <source>Cables by type</source>
        <translation>Kabel nach Typ</translation>
    </message>
    <message>
        <source>Cables by use</source>
        <translation>Kabel nach Nutzung</translation>
    </message>
    <message>
        <source>Cables by floor</source>
        <translation>Kabel nach Etage</translation>
    </message>
    <message>
        <source>Cables by bundle</source>
        <translation>Kabel nach Bündel</translation>
    </message>
    <message>
        <source>Cables by test status</source>
        <translation>Kabel nach Prüfstand</translation>
    </message>
    <message>
        <source>Ports by use</source>
        <translation>Anschlüsse nach Nutzung</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Bestellung</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>The lengths are estimated from the plan.</source>
        <translation>Die Längen sind nach dem Plan geschätzt.</translation>
    </message>
    <message>
        <source>They include %1 % spare.</source>
        <translation>Sie enthalten %1 % Reserve.</translation>
    </message>
    <message>
        <source>The cables of a bundle with the same group number are one run of the bundle.</source>
        <translation>Die Kabel eines Bündels mit derselben Gruppennummer sind eine Strecke des Bündels.</translation>
    </message>
    <message>
        <source>Each run is cut from one coil, without a splice: the longest runs first, each from the first coil that has enough left (first-fit decreasing).</source>
        <translation>Jede Strecke wird aus einer Rolle geschnitten, ohne Spleiß: die längsten Strecken zuerst, jede aus der ersten Rolle, deren Rest reicht (First-Fit Decreasing).</translation>
    </message>
    <message>
        <source>Lengths are in %1. &quot;without&quot; counts the cables without such a length. The difference is measured minus estimated, for cables that have both.</source>
        <translation>Längen sind in %1. &quot;ohne&quot; zählt die Kabel ohne eine solche Länge. Die Differenz ist gemessen minus geschätzt, für Kabel mit beiden Längen.</translation>
    </message>
    <message>
        <source>Cables of unknown length, which are not in the order: %1</source>
        <translation>Kabel unbekannter Länge, die nicht in der Bestellung sind: %1</translation>
    </message>
    <message>
        <source>Cables that are longer than a coil: %1</source>
        <translation>Kabel, die länger als eine Rolle sind: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a percentage such as 10%</source>
        <translation>&quot;%1&quot; ist kein Prozentsatz wie 10%</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a coil such as 305m, 1000ft or CAT6=305m</source>
        <translation>&quot;%1&quot; ist keine Rolle wie 305m, 1000ft oder CAT6=305m</translation>
    </message>
    <message>
        <source>no cable has the type or bundle &quot;%1&quot;</source>
        <translation>kein Kabel hat den Typ oder das Bündel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port, vertical run or cable &quot;%1&quot;</source>
        <translation>es gibt keinen Anschluss, keine Steigleitung und kein Kabel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no cable &quot;%1&quot;</source>
        <translation>es gibt kein Kabel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no room &quot;%1&quot;</source>
        <translation>es gibt keinen Raum &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no network device &quot;%1&quot;</source>
        <translation>es gibt kein Netzwerkgerät &quot;%1&quot;</translation>
    </message>
    <message>
        <source>exactly one of PORT or CABLE, --cable, --room and --device is needed</source>
        <translation>genau eines von PORT oder CABLE, --cable, --room und --device ist nötig</translation>
    </message>
    <message>
        <source>no port</source>
        <translation>kein Anschluss</translation>
    </message>
    <message>
        <source>missing: %1</source>
        <translation>fehlt: %1</translation>
    </message>
    <message>
        <source>point %1</source>
        <translation>Punkt %1</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>Anschluss %1</translation>
    </message>
    <message>
        <source>vertical run %1</source>
        <translation>Steigleitung %1</translation>
    </message>
    <message>
        <source>drop</source>
        <translation>Deckenabgang</translation>
    </message>
    <message>
        <source>between the floors</source>
        <translation>zwischen den Etagen</translation>
    </message>
    <message>
        <source>between the floors, without a vertical run</source>
        <translation>zwischen den Etagen, ohne Steigleitung</translation>
    </message>
    <message>
        <source>straight on</source>
        <translation>geradeaus</translation>
    </message>
    <message>
        <source>straight on, the floor plan has no scale</source>
        <translation>geradeaus, der Etagenplan hat keinen Maßstab</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>%1 cables: %2</source>
        <translation>%1 Kabel: %2</translation>
    </message>
    <message>
        <source>The last cable leads back to the first one.</source>
        <translation>Das letzte Kabel führt zum ersten zurück.</translation>
    </message>
    <message>
        <source>Cable %1</source>
        <translation>Kabel %1</translation>
    </message>
    <message>
        <source>(other cables that end here: %1)</source>
        <translation>(andere Kabel, die hier enden: %1)</translation>
    </message>
    <message>
        <source>No cable: %1</source>
        <translation>Ohne Kabel: %1</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>kein Gerät</translation>
    </message>
    <message>
        <source>%1, bend %2</source>
        <translation>%1, Knickpunkt %2</translation>
    </message>
    <message>
        <source>%1, device %2</source>
        <translation>%1, Gerät %2</translation>
    </message>
    <message>
        <source>%1, device %2 (%3)</source>
        <translation>%1, Gerät %2 (%3)</translation>
    </message>
    <message>
        <source>connection %1</source>
        <translation>Verbindung %1</translation>
    </message>
    <message>
        <source>No connection: %1</source>
        <translation>Ohne Verbindung: %1</translation>
    </message>
    <message>
        <source>The job file, or &quot;-&quot; for standard input.</source>
        <translation>Die Auftragsdatei oder &quot;-&quot; für die Standardeingabe.</translation>
    </message>
    <message>
        <source>Print CSV instead of text.</source>
        <translation>CSV statt Text ausgeben.</translation>
    </message>
    <message>
        <source>The encoding of the CSV file: UTF-8, UTF-16 or windows-1252. By default, it is UTF-8 or UTF-16.</source>
        <translation>Die Kodierung der CSV-Datei: UTF-8, UTF-16 oder windows-1252. Sonst ist es UTF-8 oder UTF-16.</translation>
    </message>
    <message>
        <source>Remove the apostrophes that --protect-formulas adds.</source>
        <translation>Die Apostrophe entfernen, die --protect-formulas einfügt.</translation>
    </message>
    <message>
        <source>The delimiter of the fields: comma (the default), semicolon or tab.</source>
        <translation>Das Trennzeichen der Felder: comma (die Vorgabe), semicolon oder tab.</translation>
    </message>
    <message>
        <source>Begin with a byte order mark, which some spreadsheets need to recognise UTF-8.</source>
        <translation>Mit einer Bytereihenfolge-Markierung beginnen. Manche Tabellenprogramme brauchen sie, um UTF-8 zu erkennen.</translation>
    </message>
    <message>
        <source>Put an apostrophe before fields that a spreadsheet would run as formulas.</source>
        <translation>Einen Apostroph vor Felder setzen, die ein Tabellenprogramm als Formeln ausführen würde.</translation>
    </message>
    <message>
        <source>Write to this file instead of standard output.</source>
        <translation>In diese Datei statt in die Standardausgabe schreiben.</translation>
    </message>
    <message>
        <source>Save the changed job as this file, or to standard output if it is &quot;-&quot;. FILE.job stays as it is.</source>
        <translation>Den geänderten Auftrag als diese Datei speichern, oder bei &quot;-&quot; in die Standardausgabe schreiben. FILE.job bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Replace the file that is written if it exists.</source>
        <translation>Die Datei, die geschrieben wird, ersetzen, wenn es sie schon gibt.</translation>
    </message>
    <message>
        <source>The file to write, or &quot;-&quot; for standard output.</source>
        <translation>Die neue Datei oder &quot;-&quot; für die Standardausgabe.</translation>
    </message>
    <message>
        <source>The job or template file, or &quot;-&quot; for a job from standard input.</source>
        <translation>Die Auftrags- oder Vorlagendatei oder &quot;-&quot; für einen Auftrag aus der Standardeingabe.</translation>
    </message>
    <message>
        <source>Save the changed file as this one. FILE stays as it is.</source>
        <translation>Die geänderte Datei als diese speichern. FILE bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>The table: </source>
        <translation>Die Tabelle: </translation>
    </message>
    <message>
        <source>. Templates have the first two.</source>
        <translation>. Vorlagen haben die ersten beiden.</translation>
    </message>
    <message>
        <source>The unit of positions and heights: px (pixels, and feet for heights; the default), ft or m. Positions in ft or m need a scale.</source>
        <translation>Die Einheit der Positionen und Höhen: px (Pixel, und Fuß für Höhen; die Vorgabe), ft oder m. Positionen in ft oder m brauchen einen Maßstab.</translation>
    </message>
    <message>
        <source>The columns to show, separated by commas.</source>
        <translation>Die Spalten, die gezeigt werden, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Only show what fulfils the condition: type=CAT6, type!=CAT6, id~PATTERN or id!~PATTERN, where the pattern is a regular expression. Can be given several times.</source>
        <translation>Nur zeigen, was die Bedingung erfüllt: type=CAT6, type!=CAT6, id~PATTERN oder id!~PATTERN, wobei das Muster ein regulärer Ausdruck ist. Mehrfach möglich.</translation>
    </message>
    <message>
        <source>The columns to sort by, separated by commas. A &quot;-&quot; before a name turns its order round.</source>
        <translation>Die Spalten, nach denen sortiert wird, durch Kommas getrennt. Ein &quot;-&quot; vor einem Namen kehrt die Reihenfolge um.</translation>
    </message>
    <message>
        <source>The name of a floor. This option can be given for each floor.</source>
        <translation>Der Name einer Etage. Die Option kann für jede Etage angegeben werden.</translation>
    </message>
    <message>
        <source>The number of floors without --floor, from 1 (the default) to 1000.</source>
        <translation>Die Zahl der Etagen ohne --floor, von 1 (die Vorgabe) bis 1000.</translation>
    </message>
    <message>
        <source>Make a new job or template.</source>
        <translation>Einen neuen Auftrag oder eine neue Vorlage anlegen.</translation>
    </message>
    <message>
        <source>If the name ends in &quot;.bkt&quot;, the file is a template. Otherwise it is a job with one sheet, and &quot;.job&quot; is added to a name that lacks it.</source>
        <translation>Wenn der Name auf &quot;.bkt&quot; endet, ist die Datei eine Vorlage. Sonst ist sie ein Auftrag mit einem Blatt, und einem Namen ohne &quot;.job&quot; wird es angehängt.</translation>
    </message>
    <message>
        <source>The floors and sheets are listed in the order of the file. Cables, connections and active ports are counted.</source>
        <translation>Die Etagen und Blätter werden in der Reihenfolge der Datei aufgelistet. Kabel, Verbindungen und aktive Anschlüsse werden gezählt.</translation>
    </message>
    <message>
        <source>The job and template files. One of them may be &quot;-&quot; for standard input.</source>
        <translation>Die Auftrags- und Vorlagendateien. Eine davon kann &quot;-&quot; für die Standardeingabe sein.</translation>
    </message>
    <message>
        <source>Report what is wrong with files.</source>
        <translation>Melden, was an Dateien nicht stimmt.</translation>
    </message>
    <message>
        <source>Each of the first 50 findings in a file is one line; --json prints all of them. The files are not changed. The exit code is that of the worst file.</source>
        <translation>Jeder der ersten 50 Befunde einer Datei ist eine Zeile; --json gibt alle aus. Die Dateien werden nicht geändert. Der Rückgabewert ist der der schlechtesten Datei.</translation>
    </message>
    <message>
        <source>The values to show, such as contractor.company, site or scale.floor-plan. All values by default.</source>
        <translation>Die Werte, die gezeigt werden, etwa contractor.company, site oder scale.floor-plan. Sonst alle Werte.</translation>
    </message>
    <message>
        <source>Show single values.</source>
        <translation>Einzelne Werte zeigen.</translation>
    </message>
    <message>
        <source>There are values of the contractor, the site, the notes, the settings and the pictures of floors. A single value is printed as it is. Several are printed as NAME=VALUE.</source>
        <translation>Es gibt Werte des Auftragnehmers, des Standorts, der Notizen, der Einstellungen und der Bilder von Etagen. Ein einzelner Wert wird ausgegeben, wie er ist, mehrere als NAME=VALUE.</translation>
    </message>
    <message>
        <source>A name as &quot;get&quot; shows it, and its new value.</source>
        <translation>Ein Name, wie &quot;get&quot; ihn zeigt, und sein neuer Wert.</translation>
    </message>
    <message>
        <source>Set single values.</source>
        <translation>Einzelne Werte setzen.</translation>
    </message>
    <message>
        <source>A scale is 1:100, &quot;20 ft&quot; (to the inch of the drawing) or none. A page is the name of a paper size such as A3, &quot;17 x 11&quot; (in inches) or none. If one of the values is wrong, nothing is changed.</source>
        <translation>Ein Maßstab ist 1:100, &quot;20 ft&quot; (je Zoll der Zeichnung) oder none. Eine Seite ist der Name eines Papierformats wie A3, &quot;17 x 11&quot; (in Zoll) oder none. Wenn einer der Werte falsch ist, wird nichts geändert.</translation>
    </message>
    <message>
        <source>Add a column with the tags, and the elements without a name.</source>
        <translation>Eine Spalte mit den Tags und die Elemente ohne Namen hinzufügen.</translation>
    </message>
    <message>
        <source>Print a table as CSV.</source>
        <translation>Eine Tabelle als CSV ausgeben.</translation>
    </message>
    <message>
        <source>&quot;table import&quot; reads it.</source>
        <translation>&quot;table import&quot; liest sie.</translation>
    </message>
    <message>
        <source>The table, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Die Tabelle, eine CSV-Datei, oder &quot;-&quot; für die Standardeingabe.</translation>
    </message>
    <message>
        <source>Change elements by a table.</source>
        <translation>Elemente nach einer Tabelle ändern.</translation>
    </message>
    <message>
        <source>Each row names an element by its columns, such as floor, room and id. The column &quot;action&quot; says what happens to it: add, change, rename (to new_id), move (to new_floor, new_room or new_sheet) or remove. Without it, the element is changed, or added if there is none. If the table has a problem, nothing is changed. An import can be repeated: the second one changes nothing.</source>
        <translation>Jede Zeile nennt ein Element durch Spalten wie floor, room und id. Die Spalte &quot;action&quot; sagt, was mit ihm geschieht: add, change, rename (zu new_id), move (nach new_floor, new_room oder new_sheet) oder remove. Ohne sie wird das Element geändert, oder ergänzt, wenn es noch keines gibt. Wenn die Tabelle einen Fehler hat, wird nichts geändert. Ein Import kann wiederholt werden: Der zweite ändert nichts.</translation>
    </message>
    <message>
        <source>What is copied.</source>
        <translation>Was kopiert wird.</translation>
    </message>
    <message>
        <source>The floor or sheet.</source>
        <translation>Die Etage oder das Blatt.</translation>
    </message>
    <message>
        <source>The name of the copy.</source>
        <translation>Der Name der Kopie.</translation>
    </message>
    <message>
        <source>Copy a floor or sheet.</source>
        <translation>Eine Etage oder ein Blatt kopieren.</translation>
    </message>
    <message>
        <source>All that is on it is copied. The cables that end on a floor are copied too. The copies are untested and get new names. Ports keep their names. The connections of a sheet are not copied.</source>
        <translation>Alles darauf wird kopiert, auch die Kabel, die auf einer Etage enden. Die kopierten Kabel sind ungeprüft und bekommen neue Namen. Anschlüsse behalten ihre Namen. Die Verbindungen eines Blattes werden nicht kopiert.</translation>
    </message>
    <message>
        <source>List the elements of a kind.</source>
        <translation>Die Elemente einer Art auflisten.</translation>
    </message>
    <message>
        <source>The list has the columns of &quot;table export&quot;, and also the number of cables of ports and the status and length of cables. As text, it leaves out empty columns and tags unless --columns asks for them.</source>
        <translation>Die Liste hat die Spalten von &quot;table export&quot; und dazu die Zahl der Kabel an Anschlüssen und den Stand und die Länge von Kabeln. Als Text lässt sie leere Spalten und Tags weg, außer wenn --columns sie nennt.</translation>
    </message>
    <message>
        <source>The text to look for, in upper or lower case.</source>
        <translation>Der gesuchte Text, in Groß- oder Kleinbuchstaben.</translation>
    </message>
    <message>
        <source>Find a text in all tables and values.</source>
        <translation>Einen Text in allen Tabellen und Werten suchen.</translation>
    </message>
    <message>
        <source>Names, texts, types, uses, colours and tags are searched.</source>
        <translation>Namen, Texte, Typen, Nutzungen, Farben und Tags werden durchsucht.</translation>
    </message>
    <message>
        <source>List the ports without a cable.</source>
        <translation>Die Anschlüsse ohne Kabel auflisten.</translation>
    </message>
    <message>
        <source>The name of a port, vertical run or cable. If several ports have the name, give ROOM/PORT or FLOOR/ROOM/PORT.</source>
        <translation>Der Name eines Anschlusses, einer Steigleitung oder eines Kabels. Wenn mehrere Anschlüsse den Namen haben, geben Sie ROOM/PORT oder FLOOR/ROOM/PORT an.</translation>
    </message>
    <message>
        <source>Trace a cable, even if a port has the same name.</source>
        <translation>Ein Kabel verfolgen, auch wenn ein Anschluss denselben Namen hat.</translation>
    </message>
    <message>
        <source>Trace the cables at all ports of a room, given as ROOM or FLOOR/ROOM.</source>
        <translation>Die Kabel an allen Anschlüssen eines Raums verfolgen, angegeben als ROOM oder FLOOR/ROOM.</translation>
    </message>
    <message>
        <source>Trace the connections of a network device, given as DEVICE or SHEET/DEVICE.</source>
        <translation>Die Verbindungen eines Netzwerkgeräts verfolgen, angegeben als DEVICE oder SHEET/DEVICE.</translation>
    </message>
    <message>
        <source>Show the way of cables from end to end.</source>
        <translation>Den Weg von Kabeln von Ende zu Ende zeigen.</translation>
    </message>
    <message>
        <source>Each part of the way has its length on the plan: the drops at the ends, the straight ways from place to place, and the ways between floors. If a length is unknown, the cable has at least the sum of the others. At a port where exactly two cables end, the way goes on from one to the other. The same holds for a vertical run, unless one of the cables is not connected to it. Where more cables end, the way ends, and the others are counted. For a vertical run, the cables that pass it are traced too.</source>
        <translation>Jeder Teil des Weges hat seine Länge auf dem Plan: die Deckenabgänge an den Enden, die geraden Wege von Ort zu Ort und die Wege zwischen Etagen. Wenn eine Länge unbekannt ist, hat das Kabel mindestens die Summe der übrigen. An einem Anschluss, an dem genau zwei Kabel enden, geht der Weg vom einen zum anderen weiter. Dasselbe gilt für eine Steigleitung, außer wenn eines der Kabel nicht mit ihr verbunden ist. Wo mehr Kabel enden, endet der Weg, und die anderen werden gezählt. Bei einer Steigleitung werden auch die Kabel verfolgt, die durch sie führen.</translation>
    </message>
    <message>
        <source>Add a percentage to each length of the order, such as 10%.</source>
        <translation>Zu jeder Länge der Bestellung einen Prozentsatz hinzurechnen, etwa 10%.</translation>
    </message>
    <message>
        <source>The length of the coils, such as 305m or 1000ft, or that of one type or bundle, such as CAT6=305m. It can be given several times.</source>
        <translation>Die Länge der Rollen, etwa 305m oder 1000ft, oder die für einen Typ oder ein Bündel, etwa CAT6=305m. Mehrfach möglich.</translation>
    </message>
    <message>
        <source>Add up cables and what has to be ordered.</source>
        <translation>Kabel zusammenzählen, und was zu bestellen ist.</translation>
    </message>
    <message>
        <source>The cables are counted by type, use, floor, bundle and test status, with their measured and estimated lengths, and the ports by use. Then follows the order: the estimated length of each type and the number of coils. Each run is cut from one coil, without a splice: the longest runs first, each from the first coil that has enough left (first-fit decreasing). A bundle is ordered as such: its cables with the same group number are one run, as long as the longest of them. Cables of unknown length and cables that are longer than a coil are listed apart.</source>
        <translation>Die Kabel werden nach Typ, Nutzung, Etage, Bündel und Prüfstand gezählt, mit ihren gemessenen und geschätzten Längen, und die Anschlüsse nach Nutzung. Dann folgt die Bestellung: die geschätzte Länge jedes Typs und die Zahl der Rollen. Jede Strecke wird aus einer Rolle geschnitten, ohne Spleiß: die längsten Strecken zuerst, jede aus der ersten Rolle, deren Rest reicht (First-Fit Decreasing). Ein Bündel wird als solches bestellt: Seine Kabel mit derselben Gruppennummer sind eine Strecke, so lang wie das längste von ihnen. Kabel unbekannter Länge und Kabel, die länger als eine Rolle sind, werden getrennt aufgelistet.</translation>
    </message>
    <message>
        <source>The cable schedule, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Der Kabelplan, eine CSV-Datei, oder &quot;-&quot; für die Standardeingabe.</translation>
    </message>
    <message>
        <source>Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If the schedule has a problem, the job is not changed. Types and uses that are not known, and places that lose their last cable, are warned of. Each of the first 50 problems or warnings is one line; --json prints all of them.</source>
        <translation>Etagen, Räume, Anschlüsse und Kabel, die dem Auftrag fehlen, werden ergänzt. Kabel, die abweichen, werden geändert. Wenn der Plan einen Fehler hat, wird der Auftrag nicht geändert. Vor unbekannten Typen und Nutzungen und vor Orten, die ihr letztes Kabel verlieren, wird gewarnt. Jeder der ersten 50 Fehler oder Warnungen ist eine Zeile; --json gibt alle aus.</translation>
    </message>
    <message>
        <source>The job or template file, or &quot;-&quot; for standard input.</source>
        <translation>Die Auftrags- oder Vorlagendatei oder &quot;-&quot; für die Standardeingabe.</translation>
    </message>
    <message>
        <source>The command, such as &quot;check&quot; or &quot;schedule import&quot;.</source>
        <translation>Der Befehl, etwa &quot;check&quot; oder &quot;schedule import&quot;.</translation>
    </message>
    <message>
        <source>Without a command, show the help of the program.</source>
        <translation>Ohne einen Befehl die Hilfe des Programms anzeigen.</translation>
    </message>
    <message>
        <source>Print no messages except errors.</source>
        <translation>Keine Meldungen außer Fehlern ausgeben.</translation>
    </message>
    <message>
        <source>Print the commands with their arguments and options as JSON.</source>
        <translation>Die Befehle mit ihren Argumenten und Optionen als JSON ausgeben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not comma, semicolon or tab</source>
        <translation>&quot;%1&quot; ist nicht comma, semicolon oder tab</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8, UTF-16 or windows-1252</source>
        <translation>&quot;%1&quot; ist nicht UTF-8, UTF-16 oder windows-1252</translation>
    </message>
    <message>
        <source>standard input is larger than the limit, which --max-size sets</source>
        <translation>die Standardeingabe ist größer als die Grenze, die --max-size setzt</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>%1 lesen</translation>
    </message>
    <message>
        <source>standard input cannot be changed, so -o is needed</source>
        <translation>die Standardeingabe kann nicht geändert werden, deshalb ist -o nötig</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>%1 speichern</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;; there are %2</source>
        <translation>eine Spalte &quot;%1&quot; gibt es nicht; es gibt %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a condition such as type=CAT6, type!=CAT6 or id~^A</source>
        <translation>&quot;%1&quot; ist keine Bedingung wie type=CAT6, type!=CAT6 oder id~^A</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression</source>
        <translation>&quot;%1&quot; ist kein regulärer Ausdruck</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has several meanings. Use one of these:</source>
        <translation>&quot;%1&quot; hat mehrere Bedeutungen. Verwenden Sie eine von diesen:</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1; meinten Sie &quot;%2&quot;?</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; there are %2</source>
        <translation>eine Tabelle &quot;%1&quot; gibt es nicht; es gibt %2</translation>
    </message>
    <message>
        <source>templates do not have the table &quot;%1&quot;</source>
        <translation>Vorlagen haben die Tabelle &quot;%1&quot; nicht</translation>
    </message>
    <message>
        <source>The delimiter of the fields: comma, semicolon or tab. By default, it is found in the first row.</source>
        <translation>Das Trennzeichen der Felder: comma, semicolon oder tab. Ohne Angabe wird es in der ersten Zeile gefunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the units px, ft and m</source>
        <translation>&quot;%1&quot; ist keine der Einheiten px, ft und m</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>„%1“ ist keines von %2</translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation>Die Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>passed %1, passed within accuracy %2, failed %3, others %4
</source>
        <translation>bestanden %1, innerhalb der Messgenauigkeit bestanden %2, nicht bestanden %3, andere %4
</translation>
    </message>
    <message>
        <source>new %1, of these retests %2; already known %3, left out %4; still untested %5
</source>
        <translation>neu %1, davon erneute Tests %2; schon bekannt %3, ausgelassen %4; noch ungetestet %5
</translation>
    </message>
    <message>
        <source>the files of the tests cannot be stored beside standard output</source>
        <translation>Die Dateien der Tests können nicht neben der Standardausgabe abgelegt werden</translation>
    </message>
    <message>
        <source>The test results, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Die Testergebnisse, eine CSV-Datei, oder „-“ für die Standardeingabe.</translation>
    </message>
    <message>
        <source>A mapping file: how another program names the columns, and gives units, numbers, dates and verdicts.</source>
        <translation>Eine Zuordnungsdatei: wie ein anderes Programm die Spalten nennt und Einheiten, Zahlen, Zeiten und Urteile angibt.</translation>
    </message>
    <message>
        <source>Which of several tests of a cable is the current one: latest (the default) or worst. With refuse, another test of a tested cable is a problem.</source>
        <translation>Welcher von mehreren Tests eines Kabels der aktuelle ist: latest (der neueste, die Vorgabe) oder worst (der schlechteste). Mit refuse ist ein weiterer Test eines getesteten Kabels ein Problem.</translation>
    </message>
    <message>
        <source>Leave out the rows with unknown cables, and write them to this file.</source>
        <translation>Zeilen mit unbekannten Kabeln auslassen und in diese Datei schreiben.</translation>
    </message>
    <message>
        <source>Add test results to the cables of a job.</source>
        <translation>Testergebnisse zu den Kabeln eines Auftrags hinzufügen.</translation>
    </message>
    <message>
        <source>A later test becomes the current one of its cable. The test before is kept as an earlier one. A table with the column &quot;active_port&quot; has tests of ports in the working network. If the table has a problem, nothing is added. An import can be repeated: the second one changes nothing.</source>
        <translation>Ein späterer Test wird der aktuelle seines Kabels. Der vorherige Test bleibt als früherer erhalten. Eine Tabelle mit der Spalte „active_port“ hat Tests von Anschlüssen im laufenden Netz. Hat die Tabelle ein Problem, wird nichts hinzugefügt. Ein Import kann wiederholt werden: Der zweite ändert nichts.</translation>
    </message>
    <message>
        <source>Print the tests of ports in the working network.</source>
        <translation>Die Tests von Anschlüssen im laufenden Netz ausgeben.</translation>
    </message>
    <message>
        <source>Print the test results of a job as CSV.</source>
        <translation>Die Testergebnisse eines Auftrags als CSV ausgeben.</translation>
    </message>
    <message>
        <source>Each test is one row. Earlier tests have the state &quot;earlier&quot;. &quot;results import&quot; reads the table.</source>
        <translation>Jeder Test ist eine Zeile. Frühere Tests haben den Zustand „earlier“. „results import“ liest die Tabelle.</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>nicht bestanden</translation>
    </message>
    <message>
        <source>untested</source>
        <translation>nicht geprüft</translation>
    </message>
    <message>
        <source>unknown verdict</source>
        <translation>unbekanntes Urteil</translation>
    </message>
    <message>
        <source>tested more than once</source>
        <translation>mehr als einmal geprüft</translation>
    </message>
    <message>
        <source>old</source>
        <translation>alt</translation>
    </message>
    <message>
        <source>unreadable time</source>
        <translation>Zeit nicht lesbar</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>too much skew</source>
        <translation>zu große Laufzeitdifferenz</translation>
    </message>
    <message>
        <source>wrong wiring</source>
        <translation>falsch beschaltet</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>cables</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>passed within accuracy</source>
        <translation>bestanden innerhalb der Genauigkeit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date such as 2026-01-31</source>
        <translation>&quot;%1&quot; ist kein Datum wie 2026-01-31</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;untested&quot; nor &quot;failed&quot;</source>
        <translation>&quot;%1&quot; ist weder &quot;untested&quot; noch &quot;failed&quot;</translation>
    </message>
    <message>
        <source>Also show tests before this day, such as 2026-01-31.</source>
        <translation>Auch Prüfungen vor diesem Tag zeigen, etwa 2026-01-31.</translation>
    </message>
    <message>
        <source>End with exit code 1 if there are such cables: untested, failed or both, separated by commas.</source>
        <translation>Mit dem Rückgabewert 1 enden, wenn es solche Kabel gibt: untested (nicht geprüft), failed (nicht bestanden) oder beides, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Show missing, failed and doubtful tests.</source>
        <translation>Fehlende, nicht bestandene und zweifelhafte Prüfungen zeigen.</translation>
    </message>
    <message>
        <source>Cables are shown that are untested, have failed, have a verdict that is not known, or were tested more than once, and those that are outside the limits of their test definition: the maximum length, the skew and the wiring. A limit is only checked if the job has the limit and the measurement. Earlier tests are counted, but --fail-on only looks at the current ones. The last line has the numbers of cables.</source>
        <translation>Gezeigt werden Kabel, die nicht geprüft sind, nicht bestanden haben, ein unbekanntes Urteil haben oder mehr als einmal geprüft wurden, und solche, die außerhalb der Grenzen ihrer Prüfdefinition liegen: Höchstlänge, Laufzeitdifferenz und Beschaltung. Eine Grenze wird nur geprüft, wenn der Auftrag die Grenze und den Messwert enthält. Frühere Prüfungen werden gezählt, aber --fail-on beachtet nur die aktuellen. Die letzte Zeile nennt die Anzahlen der Kabel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale such as 1:100 or 1in=20ft</source>
        <translation>&quot;%1&quot; ist kein Maßstab wie 1:100 oder 1in=20ft</translation>
    </message>
    <message>
        <source>there is no layer &quot;%1&quot;</source>
        <translation>es gibt keine Ebene &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; gives cables no colours: cable, type, use, bundle or status</source>
        <translation>&quot;%1&quot; gibt Kabeln keine Farben: cable, type, use, bundle oder status</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a direction in degrees</source>
        <translation>&quot;%1&quot; ist keine Richtung in Grad</translation>
    </message>
    <message>
        <source>%1 and %2 do not go together</source>
        <translation>%1 und %2 passen nicht zusammen</translation>
    </message>
    <message>
        <source>--%1 is for floor plans only</source>
        <translation>--%1 ist nur für Grundrisse</translation>
    </message>
    <message>
        <source>there is no %1 &quot;%2&quot;</source>
        <translation>%1 &quot;%2&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>the job has nothing to draw</source>
        <translation>der Auftrag hat nichts zu zeichnen</translation>
    </message>
    <message>
        <source>only a PDF file can have several pages; choose one with --%1: %2</source>
        <translation>nur eine PDF-Datei kann mehrere Seiten haben; wählen Sie eine mit --%1: %2</translation>
    </message>
    <message>
        <source>The drawing to write: a file whose name ends in .pdf, .svg or .png, or &quot;-&quot; to write SVG to standard output.</source>
        <translation>Die Zeichnung, die geschrieben wird: eine Datei, deren Name auf .pdf, .svg oder .png endet, oder &quot;-&quot;, um SVG in die Standardausgabe zu schreiben.</translation>
    </message>
    <message>
        <source>The floor to draw. By default, a PDF file has all floors.</source>
        <translation>Die Etage, die gezeichnet wird. Eine PDF-Datei hat sonst alle Etagen.</translation>
    </message>
    <message>
        <source>Draw this sheet with its network devices.</source>
        <translation>Dieses Blatt mit seinen Netzwerkgeräten zeichnen.</translation>
    </message>
    <message>
        <source>Draw all sheets with network devices, each on a page of its own.</source>
        <translation>Alle Blätter mit Netzwerkgeräten zeichnen, jedes auf einer eigenen Seite.</translation>
    </message>
    <message>
        <source>Draw all floors above each other, with the cables in the vertical runs.</source>
        <translation>Alle Etagen übereinander zeichnen, mit den Kabeln in den Steigleitungen.</translation>
    </message>
    <message>
        <source>The scale, such as 1:100 or 1in=20ft. By default, it is that of the job.</source>
        <translation>Der Maßstab, etwa 1:100 oder 1in=20ft. Sonst gilt der des Auftrags.</translation>
    </message>
    <message>
        <source>The layers to draw, separated by commas: background, rooms, cables, points, vertical-runs, ports, texts and labels. All of them by default.</source>
        <translation>Die Ebenen, die gezeichnet werden, durch Kommas getrennt: background, rooms, cables, points, vertical-runs, ports, texts und labels. Sonst alle.</translation>
    </message>
    <message>
        <source>What gives cables their colours: cable, type (the default), use, bundle or status.</source>
        <translation>Was Kabeln ihre Farben gibt: cable (das Kabel selbst), type (der Typ, Vorgabe), use (die Nutzung), bundle (das Bündel) oder status (der Prüfstand).</translation>
    </message>
    <message>
        <source>Draw a north arrow, turned clockwise from the top of the plan by these degrees.</source>
        <translation>Einen Nordpfeil zeichnen, der um so viel Grad im Uhrzeigersinn von oben im Plan gedreht ist.</translation>
    </message>
    <message>
        <source>Draw floor plans, sheets or the riser.</source>
        <translation>Grundrisse, Blätter oder das Steigschema zeichnen.</translation>
    </message>
    <message>
        <source>A floor plan is never fitted to the paper. In a PDF file, a plan that is larger than the paper is divided among several sheets that overlap, after one with an overview. In an SVG or PNG file, the sheet becomes larger than the paper. Labels that do not fit are shortened, moved away with a leader line, or replaced by a number in a list beside the plan. The environment variable SOURCE_DATE_EPOCH sets the date.</source>
        <translation>Ein Grundriss wird nie dem Papier angepasst. In einer PDF-Datei wird ein Plan, der größer als das Papier ist, auf mehrere Blätter verteilt, die sich überlappen, nach einem mit einer Übersicht. In einer SVG- oder PNG-Datei wird das Blatt größer als das Papier. Beschriftungen ohne Platz werden gekürzt, mit einer Bezugslinie versetzt oder durch eine Nummer in einer Liste neben dem Plan ersetzt. Die Umgebungsvariable SOURCE_DATE_EPOCH setzt das Datum.</translation>
    </message>
    <message>
        <source>The cable, by its name.</source>
        <translation>Das Kabel, mit seinem Namen.</translation>
    </message>
    <message>
        <source>Draw the response curves of a cable.</source>
        <translation>Die Messkurven eines Kabels zeichnen.</translation>
    </message>
    <message>
        <source>The curves are those of the cable&apos;s test: near-end crosstalk, echo and channel.</source>
        <translation>Die Kurven sind die der Prüfung des Kabels: Nahnebensprechen, Echo und Kanal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;portrait&quot; nor &quot;landscape&quot;</source>
        <translation>&quot;%1&quot; ist weder &quot;portrait&quot; noch &quot;landscape&quot;</translation>
    </message>
    <message>
        <source>there is no paper size &quot;%1&quot;</source>
        <translation>es gibt kein Papierformat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of dots to the inch from 10 to 1200</source>
        <translation>&quot;%1&quot; ist keine Zahl der Punkte je Zoll von 10 bis 1200</translation>
    </message>
    <message>
        <source>the name of the drawing ends in .pdf, .svg or .png</source>
        <translation>der Name der Zeichnung endet auf .pdf, .svg oder .png</translation>
    </message>
    <message>
        <source>The paper size, such as A1 or Tabloid. By default, it is that of the job.</source>
        <translation>Das Papierformat, etwa A1 oder Tabloid. Sonst gilt das des Auftrags.</translation>
    </message>
    <message>
        <source>How the paper lies: portrait or landscape.</source>
        <translation>Wie das Papier liegt: portrait (hoch) oder landscape (quer).</translation>
    </message>
    <message>
        <source>The dots to the inch of a PNG file, from 10 to 1200. By default, it is 150.</source>
        <translation>Die Punkte je Zoll einer PNG-Datei, von 10 bis 1200. Vorgabe ist 150.</translation>
    </message>
    <message>
        <source>The revision in the title block.</source>
        <translation>Die Revision im Schriftfeld.</translation>
    </message>
    <message>
        <source>The number of the sheet in the title block.</source>
        <translation>Die Nummer des Blatts im Schriftfeld.</translation>
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
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erstes</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>Druckhöhe</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; &quot;cabledoc label formats&quot; lists them</source>
        <translation>ein Format &quot;%1&quot; gibt es nicht; &quot;cabledoc label formats&quot; listet die Formate auf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of qr, code128 and none</source>
        <translation>&quot;%1&quot; ist keines von qr, code128 und none</translation>
    </message>
    <message>
        <source>the name of the labels ends in .pdf, .svg or .csv</source>
        <translation>der Name der Etikettendatei endet auf .pdf, .svg oder .csv</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;</source>
        <translation>es gibt kein Feld &quot;%1&quot;</translation>
    </message>
    <message>
        <source>only a PDF file can have several sheets, and these labels need %1</source>
        <translation>nur eine PDF-Datei kann mehrere Blätter haben, und diese Etiketten brauchen %1</translation>
    </message>
    <message>
        <source>there is nothing to label</source>
        <translation>es gibt nichts zu beschriften</translation>
    </message>
    <message>
        <source>there is no report &quot;%1&quot;</source>
        <translation>es gibt keinen Bericht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--%1 is only for the reports &quot;test&quot; and &quot;schedule&quot;</source>
        <translation>--%1 ist nur für die Berichte &quot;test&quot; und &quot;schedule&quot;</translation>
    </message>
    <message>
        <source>no cable fulfils the conditions</source>
        <translation>kein Kabel erfüllt die Bedingungen</translation>
    </message>
    <message>
        <source>the name of the report ends in .pdf or .html</source>
        <translation>der Name des Berichts endet auf .pdf oder .html</translation>
    </message>
    <message>
        <source>The table with the elements to label, such as cables (the default), ports or rooms.</source>
        <translation>Die Tabelle mit den Elementen, die Etiketten bekommen, etwa cables (die Vorgabe), ports oder rooms.</translation>
    </message>
    <message>
        <source>The labels to write: a file whose name ends in .pdf, .svg or .csv, or &quot;-&quot; to write SVG to standard output.</source>
        <translation>Die Etiketten, die geschrieben werden: eine Datei, deren Name auf .pdf, .svg oder .csv endet, oder &quot;-&quot;, um SVG in die Standardausgabe zu schreiben.</translation>
    </message>
    <message>
        <source>The format of the labels; a4-5x13 by default. &quot;label formats&quot; lists them.</source>
        <translation>Das Format der Etiketten; Vorgabe ist a4-5x13. &quot;label formats&quot; listet die Formate auf.</translation>
    </message>
    <message>
        <source>The text of a label, such as &quot;{id}\n{far_room|?}&quot;.</source>
        <translation>Der Text eines Etiketts, etwa &quot;{id}\n{far_room|?}&quot;.</translation>
    </message>
    <message>
        <source>The code beside the text: qr, code128 or none (the default).</source>
        <translation>Der Code neben dem Text: qr, code128 oder none (kein Code, die Vorgabe).</translation>
    </message>
    <message>
        <source>The text of the code. By default, it is the name of the element.</source>
        <translation>Der Text des Codes. Sonst ist es der Name des Elements.</translation>
    </message>
    <message>
        <source>Make a label for each end of a cable.</source>
        <translation>Für jedes Ende eines Kabels ein Etikett machen.</translation>
    </message>
    <message>
        <source>The number of equal labels; 1 by default.</source>
        <translation>Die Zahl gleicher Etiketten; Vorgabe ist 1.</translation>
    </message>
    <message>
        <source>The place of the first label on the first sheet, counted from 1 in rows.</source>
        <translation>Der Platz des ersten Etiketts auf dem ersten Blatt, zeilenweise ab 1 gezählt.</translation>
    </message>
    <message>
        <source>A regular expression that each text must match, such as &quot;^[0-9]+-[A-Z][0-9]+$&quot;.</source>
        <translation>Ein regulärer Ausdruck, dem jeder Text entsprechen muss, etwa &quot;^[0-9]+-[A-Z][0-9]+$&quot;.</translation>
    </message>
    <message>
        <source>Draw the edges of the labels, for a test on plain paper.</source>
        <translation>Die Umrisse der Etiketten zeichnen, für einen Probedruck auf normalem Papier.</translation>
    </message>
    <message>
        <source>The columns of the table that a CSV file has, separated by commas. By default, it has all.</source>
        <translation>Die Spalten der Tabelle, die eine CSV-Datei hat, durch Kommas getrennt. Sonst hat sie alle.</translation>
    </message>
    <message>
        <source>Print labels.</source>
        <translation>Etiketten drucken.</translation>
    </message>
    <message>
        <source>A pattern has the columns of &quot;list&quot; as fields. A text after &quot;|&quot; takes the place of an empty value, &quot;\n&quot; begins a new line, and &quot;{{&quot; and &quot;}}&quot; stand for braces. The fields near_floor, near_room and near_port are those of the end of the cable for which the label is, and far_floor, far_room and far_port those of the other end. Texts must differ from element to element. Lines that are too wide are set smaller, down to 5 points. If a label has a problem, nothing is written, and the exit code is 1. Print the file in its actual size.</source>
        <translation>Ein Muster hat die Spalten von &quot;list&quot; als Felder. Ein Text nach &quot;|&quot; steht anstelle eines leeren Werts, &quot;\n&quot; beginnt eine neue Zeile, und &quot;{{&quot; und &quot;}}&quot; stehen für geschweifte Klammern. Die Felder near_floor, near_room und near_port sind die des Kabelendes, für das das Etikett ist, und far_floor, far_room und far_port die des anderen Endes. Texte müssen sich von Element zu Element unterscheiden. Zu breite Zeilen werden kleiner gesetzt, bis hinab zu 5 Punkt. Wenn ein Etikett einen Fehler hat, wird nichts geschrieben, und der Rückgabewert ist 1. Drucken Sie die Datei in Originalgröße.</translation>
    </message>
    <message>
        <source>List the formats of labels.</source>
        <translation>Die Formate der Etiketten auflisten.</translation>
    </message>
    <message>
        <source>Lengths are in millimetres. The list has the sizes of the paper and of a label, the numbers of columns and rows, the left upper corner of the first label, the distance from one label to the next, and the height of the part that is printed. The rest of a label that is wound around a cable is transparent. A label on a tape is as long as its text needs.</source>
        <translation>Längen sind in Millimetern. Die Liste nennt die Größen des Papiers und eines Etiketts, die Zahlen der Spalten und Zeilen, die linke obere Ecke des ersten Etiketts, den Abstand von einem Etikett zum nächsten und die Höhe des Teils, der bedruckt wird. Der Rest eines Etiketts, das um ein Kabel gewickelt wird, ist durchsichtig. Ein Etikett auf einem Band ist so lang, wie es sein Text erfordert.</translation>
    </message>
    <message>
        <source>The report to write: a file whose name ends in .pdf or .html, or &quot;-&quot; to write HTML to standard output.</source>
        <translation>Der Bericht, der geschrieben wird: eine Datei, deren Name auf .pdf oder .html endet, oder &quot;-&quot;, um HTML in die Standardausgabe zu schreiben.</translation>
    </message>
    <message>
        <source>The kind of report: test (the default), summary, inventory, schedule, notes or active.</source>
        <translation>Die Art des Berichts: test (die Vorgabe), summary, inventory, schedule, notes oder active.</translation>
    </message>
    <message>
        <source>Only the cables with an end on this floor.</source>
        <translation>Nur die Kabel mit einem Ende auf dieser Etage.</translation>
    </message>
    <message>
        <source>Only the cables with an end in this room.</source>
        <translation>Nur die Kabel mit einem Ende in diesem Raum.</translation>
    </message>
    <message>
        <source>Only the cables whose test is of this day, such as 2026-01-31, or later.</source>
        <translation>Nur die Kabel, deren Prüfung von diesem Tag, etwa 2026-01-31, oder später ist.</translation>
    </message>
    <message>
        <source>Only the cables whose test is of this day or earlier.</source>
        <translation>Nur die Kabel, deren Prüfung von diesem Tag oder früher ist.</translation>
    </message>
    <message>
        <source>Begin with the cables that have failed.</source>
        <translation>Mit den Kabeln beginnen, die nicht bestanden haben.</translation>
    </message>
    <message>
        <source>The revision at the bottom of each page.</source>
        <translation>Die Revision am Fuß jeder Seite.</translation>
    </message>
    <message>
        <source>Write a report for the customer.</source>
        <translation>Einen Bericht für den Kunden schreiben.</translation>
    </message>
    <message>
        <source>The report of tests has a summary, the results of each cable, and an index from cables to pages. The cables are in the order of their names unless --sort asks for another one. Each kind of report has the paper, the orientation and the zoom of its print settings in the job. The options that choose cables are for the kinds test and schedule. The environment variable SOURCE_DATE_EPOCH sets the date.</source>
        <translation>Der Prüfbericht hat eine Zusammenfassung, die Ergebnisse jedes Kabels und einen Index von den Kabeln zu den Seiten. Die Kabel stehen in der Reihenfolge ihrer Namen, außer wenn --sort eine andere verlangt. Jede Art von Bericht hat das Papier, die Ausrichtung und den Zoom aus ihren Druckeinstellungen im Auftrag. Die Optionen, die Kabel auswählen, sind für die Arten test und schedule. Die Umgebungsvariable SOURCE_DATE_EPOCH setzt das Datum.</translation>
    </message>
    <message>
        <source>&quot;check&quot;, &quot;labels&quot; or &quot;results status&quot; found something wrong.</source>
        <translation>&quot;check&quot;, &quot;labels&quot; oder &quot;results status&quot; hat etwas gefunden.</translation>
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
    <name>Report</name>
    <message>
        <source>Cables</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>of cables</source>
        <translation>bei Kabeln</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Geschätzt</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Etage</translation>
    </message>
    <message>
        <source>Other floor</source>
        <translation>Andere Etage</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Nutzung</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Anschlüsse</translation>
    </message>
    <message>
        <source>All cables</source>
        <translation>Alle Kabel</translation>
    </message>
    <message>
        <source>Cables by type</source>
        <translation>Kabel nach Typ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Cables by use</source>
        <translation>Kabel nach Nutzung</translation>
    </message>
    <message>
        <source>Cables by floor</source>
        <translation>Kabel nach Etage</translation>
    </message>
    <message>
        <source>Cables by bundle</source>
        <translation>Kabel nach Bündel</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Bündel</translation>
    </message>
    <message>
        <source>Cables by test status</source>
        <translation>Kabel nach Prüfstand</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Ports by use</source>
        <translation>Anschlüsse nach Nutzung</translation>
    </message>
    <message>
        <source>Lengths from the plan, by type and bundle</source>
        <translation>Längen nach dem Plan, je Typ und Bündel</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Längste</translation>
    </message>
    <message>
        <source>Without a length</source>
        <translation>Ohne Länge</translation>
    </message>
    <message>
        <source>Network devices</source>
        <translation>Netzwerkgeräte</translation>
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
        <source>Rooms</source>
        <translation>Räume</translation>
    </message>
    <message>
        <source>Room</source>
        <translation>Raum</translation>
    </message>
    <message>
        <source>Ends of cables</source>
        <translation>Kabelenden</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>From floor</source>
        <translation>Von Etage</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>To floor</source>
        <translation>Nach Etage</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>Not tested.</source>
        <translation>Nicht geprüft.</translation>
    </message>
    <message>
        <source>Tested</source>
        <translation>Geprüft am</translation>
    </message>
    <message>
        <source>Speed (Mbit/s)</source>
        <translation>Datenrate (Mbit/s)</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Gegenstelle</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>Weitere Werte</translation>
    </message>
    <message>
        <source>Job information</source>
        <translation>Angaben zum Auftrag</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Bestandsübersicht</translation>
    </message>
    <message>
        <source>Cable schedule</source>
        <translation>Kabelplan</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Tests in the working network</source>
        <translation>Prüfungen im laufenden Netz</translation>
    </message>
    <message>
        <source>Revision %1</source>
        <translation>Revision %1</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Contractor</source>
        <translation>Auftragnehmer</translation>
    </message>
    <message>
        <source>Tested by</source>
        <translation>Geprüft von</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>From the tester</source>
        <translation>Laut Messgerät</translation>
    </message>
    <message>
        <source>Worst margin (dB)</source>
        <translation>Kleinste Reserve (dB)</translation>
    </message>
    <message>
        <source>Worst value (dB or ns)</source>
        <translation>Schlechtester Wert (dB oder ns)</translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation>Frequenz (MHz)</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Paar</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>%1: %2 dB</source>
        <translation>%1: %2 dB</translation>
    </message>
    <message>
        <source>Earlier tests</source>
        <translation>Frühere Prüfungen</translation>
    </message>
    <message>
        <source>Tester</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Prüfer</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Without a place</source>
        <translation>Ohne Ort</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>What was tested</source>
        <translation>Prüfumfang</translation>
    </message>
    <message>
        <source>Limits and testers</source>
        <translation>Grenzwerte und Messgeräte</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>Cables in this report: %1. Tested: %2. Not tested: %3.</source>
        <translation>Kabel in diesem Bericht: %1. Geprüft: %2. Nicht geprüft: %3.</translation>
    </message>
    <message>
        <source>Day of the tests: %1.</source>
        <translation>Tag der Prüfungen: %1.</translation>
    </message>
    <message>
        <source>Days of the tests: %1 to %2.</source>
        <translation>Tage der Prüfungen: %1 bis %2.</translation>
    </message>
    <message>
        <source>The job has further cables, which were not selected: %1.</source>
        <translation>Weitere Kabel des Auftrags, die nicht ausgewählt wurden: %1.</translation>
    </message>
    <message>
        <source>Cables that were tested more than once: %1. The last part of the page of such a cable lists its earlier tests.</source>
        <translation>Kabel, die mehr als einmal geprüft wurden: %1. Der letzte Teil der Seite eines solchen Kabels führt seine früheren Prüfungen auf.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Norm</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>passed, but closer to the limit than the tester measures</source>
        <translation>bestanden, aber die Reserve ist kleiner als die Messgenauigkeit des Geräts</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>nicht bestanden</translation>
    </message>
    <message>
        <source>not tested</source>
        <translation>nicht geprüft</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>as the tester says; does not count as passed</source>
        <translation>laut Messgerät; zählt nicht als bestanden</translation>
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
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Tester software</source>
        <translation>Gerätesoftware</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
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
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Bitfehler</translation>
    </message>
    <message>
        <source>Wire map</source>
        <translation>Verdrahtung</translation>
    </message>
    <message>
        <source>File of the tester</source>
        <translation>Datei des Messgeräts</translation>
    </message>
    <message>
        <source>Longest allowed</source>
        <translation>Höchstlänge</translation>
    </message>
    <message>
        <source>Without a room</source>
        <translation>Ohne Raum</translation>
    </message>
    <message>
        <source>Test report</source>
        <translation>Prüfbericht</translation>
    </message>
    <message>
        <source>Near-end crosstalk</source>
        <translation>Nahnebensprechen</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Echo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
</context>
<context>
    <name>Results</name>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>Die Spalte „%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>unbekannte Spalte „%1“</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>Die Spalte „%1“ fehlt</translation>
    </message>
    <message>
        <source>[%1] %2</source>
        <translation>[%1] %2</translation>
    </message>
    <message>
        <source>%1: there is no value</source>
        <translation>%1: Es gibt keinen Wert</translation>
    </message>
    <message>
        <source>%1: there is no such section</source>
        <translation>%1: Diesen Abschnitt gibt es nicht</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not one of %3</source>
        <translation>%1: „%2“ ist keines von %3</translation>
    </message>
    <message>
        <source>%1 occurs twice</source>
        <translation>%1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>%1: there is no such column</source>
        <translation>%1: Diese Spalte gibt es nicht</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not possible</source>
        <translation>%1: „%2“ ist nicht möglich</translation>
    </message>
    <message>
        <source>%1: there is no such key</source>
        <translation>%1: Diesen Schlüssel gibt es nicht</translation>
    </message>
    <message>
        <source>the mapping is not a text in UTF-8</source>
        <translation>Die Zuordnung ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>the mapping cannot be read</source>
        <translation>Die Zuordnung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>several have the id &quot;%1&quot;</source>
        <translation>Mehrere haben die Kennung „%1“</translation>
    </message>
    <message>
        <source>there is no active port &quot;%1&quot;</source>
        <translation>Es gibt keinen aktiven Anschluss „%1“</translation>
    </message>
    <message>
        <source>there is no cable &quot;%1&quot;</source>
        <translation>Es gibt kein Kabel „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not count as passed: it is not one of %2</source>
        <translation>„%1“ zählt nicht als bestanden: Es ist keines von %2</translation>
    </message>
    <message>
        <source>row %1 already has this test</source>
        <translation>Zeile %1 hat diesen Test schon</translation>
    </message>
    <message>
        <source>the job already has another test of the same time and tester</source>
        <translation>Der Auftrag hat schon einen anderen Test derselben Zeit und desselben Testers</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not &quot;%2&quot;</source>
        <translation>„%1“ ist nicht „%2“</translation>
    </message>
    <message>
        <source>several cables have the tag &quot;%1&quot;</source>
        <translation>Mehrere Kabel haben das Tag „%1“</translation>
    </message>
    <message>
        <source>the cable already has a test</source>
        <translation>Das Kabel hat schon einen Test</translation>
    </message>
    <message>
        <source>several active ports have the tag &quot;%1&quot;</source>
        <translation>Mehrere aktive Anschlüsse haben das Tag „%1“</translation>
    </message>
    <message>
        <source>active port &quot;%1&quot;: %2, %3</source>
        <translation>aktiver Anschluss „%1“: %2, %3</translation>
    </message>
    <message>
        <source>cable &quot;%1&quot;: %2, %3</source>
        <translation>Kabel „%1“: %2, %3</translation>
    </message>
    <message>
        <source>cable &quot;%1&quot;: %2, %3, as an earlier test</source>
        <translation>Kabel „%1“: %2, %3, als früherer Test</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time</source>
        <translation>„%1“ ist keine Zeit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the future</source>
        <translation>„%1“ liegt in der Zukunft</translation>
    </message>
    <message>
        <source>the row has no verdict</source>
        <translation>Die Zeile hat kein Urteil</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>Die Zeile hat mehr Felder als die Überschrift</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>„%1“ enthält ein Zeichen, das eine Datei nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from 0</source>
        <translation>„%1“ ist keine ganze Zahl ab 0</translation>
    </message>
    <message>
        <source>the cable was tested as &quot;%1&quot;, but its type is &quot;%2&quot;</source>
        <translation>Das Kabel wurde als „%1“ getestet, hat aber den Typ „%2“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a block of 96 hexadecimal digits</source>
        <translation>„%1“ ist kein Block aus 96 hexadezimalen Ziffern</translation>
    </message>
    <message>
        <source>a row with a block cannot have lengths or a wire map</source>
        <translation>Eine Zeile mit einem Block kann keine Längen und keine Verdrahtung haben</translation>
    </message>
    <message>
        <source>the unit of the length is neither &quot;ft&quot; nor &quot;m&quot;</source>
        <translation>Die Einheit der Länge ist weder „ft“ noch „m“</translation>
    </message>
    <message>
        <source>the type of the cable has no length constant between 10.0 and 65.0 pF/ft</source>
        <translation>Der Kabeltyp hat keine Längenkonstante zwischen 10,0 und 65,0 pF/ft</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a possible length</source>
        <translation>„%1“ ist keine mögliche Länge</translation>
    </message>
    <message>
        <source>&quot;%1&quot; gives a pair two far ends</source>
        <translation>„%1“ gibt einem Paar zwei ferne Enden</translation>
    </message>
    <message>
        <source>the curve does not consist of %1 numbers</source>
        <translation>Die Kurve besteht nicht aus %1 Zahlen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>Es gibt keine Datei „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the folder of the table</source>
        <translation>„%1“ ist nicht im Ordner der Tabelle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 MB</source>
        <translation>„%1“ ist größer als 64 MB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256</source>
        <translation>„%1“ ist kein SHA-256</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is another file than that of the test</source>
        <translation>„%1“ ist eine andere Datei als die des Tests</translation>
    </message>
    <message>
        <source>%1: another column has the heading &quot;%2&quot;</source>
        <translation>%1: eine andere Spalte hat die Überschrift &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>ResultsStatus</name>
    <message>
        <source>the cable is not tested</source>
        <translation>das Kabel ist nicht geprüft</translation>
    </message>
    <message>
        <source>the test has failed</source>
        <translation>die Prüfung ist nicht bestanden</translation>
    </message>
    <message>
        <source>the verdict &quot;%1&quot; is not known</source>
        <translation>das Urteil &quot;%1&quot; ist nicht bekannt</translation>
    </message>
    <message>
        <source>tests: %1, earlier tests that failed: %2</source>
        <translation>Prüfungen: %1, frühere nicht bestandene Prüfungen: %2</translation>
    </message>
    <message>
        <source>the test has no time</source>
        <translation>die Prüfung hat keine Zeit</translation>
    </message>
    <message>
        <source>the time &quot;%1&quot; cannot be read</source>
        <translation>die Zeit &quot;%1&quot; ist nicht lesbar</translation>
    </message>
    <message>
        <source>the test is of %1, before %2</source>
        <translation>die Prüfung ist vom %1, vor %2</translation>
    </message>
    <message>
        <source>pair %1 is %2 long, the maximum length of &quot;%3&quot; is %4</source>
        <translation>Paar %1 ist %2 lang, die Höchstlänge von &quot;%3&quot; ist %4</translation>
    </message>
    <message>
        <source>the skew is %1 ns, the maximum skew of &quot;%2&quot; is %3 ns</source>
        <translation>die Laufzeitdifferenz ist %1 ns, die größte von &quot;%2&quot; ist %3 ns</translation>
    </message>
    <message>
        <source>pair %1 is wired to %2, and must be wired to %3 in &quot;%4&quot;</source>
        <translation>Paar %1 ist mit %2 verbunden, nach &quot;%4&quot; muss es mit %3 verbunden sein</translation>
    </message>
</context>
<context>
    <name>Schedule</name>
    <message>
        <source>%1 has no list of cables or no list of floors</source>
        <translation>%1 hat keine Kabelliste oder keine Etagenliste</translation>
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
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>es gibt keine Prüfdefinition &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown use &quot;%1&quot;</source>
        <translation>unbekannte Nutzung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no cable ends in &quot;%1&quot; any more</source>
        <translation>in &quot;%1&quot; endet kein Kabel mehr</translation>
    </message>
    <message>
        <source>no cable ends at &quot;%1&quot; any more</source>
        <translation>an &quot;%1&quot; endet kein Kabel mehr</translation>
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
    <name>Table</name>
    <message>
        <source>the sheets have no scale for feet or metres</source>
        <translation>die Blätter haben keinen Maßstab für Fuß oder Meter</translation>
    </message>
    <message>
        <source>the floor plans have no scale for feet or metres</source>
        <translation>die Etagenpläne haben keinen Maßstab für Fuß oder Meter</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>die Spalte &quot;%1&quot; ist doppelt</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>eine Spalte &quot;%1&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>die Spalte &quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>die Zeile hat mehr Felder als die Überschrift</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; hat ein Zeichen, das in einer Datei nicht stehen kann</translation>
    </message>
    <message>
        <source>the row has no id</source>
        <translation>die Zeile hat keine ID</translation>
    </message>
    <message>
        <source>the row does not say where the element is</source>
        <translation>die Zeile sagt nicht, wo das Element ist</translation>
    </message>
    <message>
        <source>the room &quot;Undefined&quot; cannot be changed</source>
        <translation>der Raum &quot;Undefined&quot; kann nicht geändert werden</translation>
    </message>
    <message>
        <source>the row does not give a new_id</source>
        <translation>die Zeile gibt keine new_id an</translation>
    </message>
    <message>
        <source>the row does not say where the element is moved to</source>
        <translation>die Zeile sagt nicht, wohin das Element verschoben wird</translation>
    </message>
    <message>
        <source>an element that is added or removed cannot be renamed or moved</source>
        <translation>ein Element, das ergänzt oder entfernt wird, kann nicht umbenannt oder verschoben werden</translation>
    </message>
    <message>
        <source>test definition</source>
        <translation>Prüfdefinition</translation>
    </message>
    <message>
        <source>bundle</source>
        <translation>Bündel</translation>
    </message>
    <message>
        <source>floor</source>
        <translation>Etage</translation>
    </message>
    <message>
        <source>room</source>
        <translation>Raum</translation>
    </message>
    <message>
        <source>port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>vertical run</source>
        <translation>Steigleitung</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>bend</source>
        <translation>Knickpunkt</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>active port</source>
        <translation>Aktivanschluss</translation>
    </message>
    <message>
        <source>release</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is already used</source>
        <translation>der Name &quot;%1&quot; ist schon vergeben</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>%1 gibt es nicht</translation>
    </message>
    <message>
        <source>add %1</source>
        <translation>%1 ergänzen</translation>
    </message>
    <message>
        <source>rename %1 to &quot;%2&quot;</source>
        <translation>%1 umbenennen in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>move %1 to &quot;%2&quot;</source>
        <translation>%1 verschieben nach &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there already is a different %1</source>
        <translation>%1 gibt es schon, mit anderen Werten</translation>
    </message>
    <message>
        <source>change %1: %2</source>
        <translation>%1 ändern: %2</translation>
    </message>
    <message>
        <source>remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source> with its cables: %1</source>
        <translation> samt Kabeln: %1</translation>
    </message>
    <message>
        <source>there is no %1 &quot;%2&quot;</source>
        <translation>%1 &quot;%2&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an element</source>
        <translation>&quot;%1&quot; kann nicht der Name eines Elements sein</translation>
    </message>
    <message>
        <source>a job can hold at most %1 releases</source>
        <translation>ein Auftrag enthält höchstens %1 Ausgaben</translation>
    </message>
    <message>
        <source>the tag &quot;%1&quot; is already used</source>
        <translation>das Tag &quot;%1&quot; ist schon vergeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid here</source>
        <translation>&quot;%1&quot; ist hier nicht gültig</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number in the range of this column</source>
        <translation>&quot;%1&quot; ist keine ganze Zahl im Bereich dieser Spalte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number in the range of this column</source>
        <translation>&quot;%1&quot; ist keine Zahl im Bereich dieser Spalte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither 1 nor 0</source>
        <translation>&quot;%1&quot; ist weder 1 noch 0</translation>
    </message>
    <message>
        <source>there is no point, port or vertical run &quot;%1&quot;</source>
        <translation>es gibt keinen Punkt, keinen Anschluss und keine Steigleitung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no vertical run &quot;%1&quot;</source>
        <translation>es gibt keine Steigleitung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a bundle can have at most %1 types</source>
        <translation>ein Bündel kann höchstens %1 Typen haben</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>es gibt keine Prüfdefinition &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no device or bend &quot;%1&quot;</source>
        <translation>es gibt kein Gerät und keinen Knickpunkt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port or vertical run &quot;%1&quot;</source>
        <translation>es gibt keinen Anschluss und keine Steigleitung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port &quot;%1&quot;</source>
        <translation>es gibt keinen Anschluss &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no bundle &quot;%1&quot;</source>
        <translation>es gibt kein Bündel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>&quot;%1&quot; ist keine Farbe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of add, change, rename, move and remove</source>
        <translation>&quot;%1&quot; ist keines von add, change, rename, move und remove</translation>
    </message>
    <message>
        <source>row %1 already uses the name &quot;%2&quot;</source>
        <translation>schon Zeile %1 verwendet den Namen &quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown use &quot;%1&quot;</source>
        <translation>unbekannte Nutzung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>row %1 already changes this: %2</source>
        <translation>schon Zeile %1 ändert dies: %2</translation>
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
    <name>Values</name>
    <message>
        <source>&quot;%1&quot; is not a scale such as 1:100 or &quot;20 ft&quot; (to the inch), nor &quot;none&quot;</source>
        <translation>&quot;%1&quot; ist weder ein Maßstab wie 1:100 oder &quot;20 ft&quot; (je Zoll) noch &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a page such as A3 or &quot;17 x 11&quot; (in inches), nor &quot;none&quot;</source>
        <translation>&quot;%1&quot; ist weder eine Seite wie A3 oder &quot;17 x 11&quot; (in Zoll) noch &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; hat ein Zeichen, das in einer Datei nicht stehen kann</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that %2 can have</source>
        <translation>&quot;%1&quot; ist keine Zahl, die %2 haben kann</translation>
    </message>
    <message>
        <source>there is no value &quot;%1&quot;</source>
        <translation>es gibt keinen Wert &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>&quot;%1&quot; ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the paper sizes: %2</source>
        <translation>&quot;%1&quot; ist keine der Papiergrößen: %2</translation>
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
