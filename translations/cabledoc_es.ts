<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>BKXMLEditor</name>
    <message>
        <source>The file name contains a NUL character.</source>
        <translation>El nombre del archivo contiene un carácter NUL.</translation>
    </message>
    <message>
        <source>The file could not be loaded, so it is not replaced. Save under another name.</source>
        <translation>No se pudo cargar el archivo. No se reemplaza; guarde con otro nombre.</translation>
    </message>
</context>
<context>
    <name>BktEditor</name>
    <message>
        <source>%1 is a bad version number in BktEditor::checkVersion.</source>
        <translation>%1 no es un número de versión válido (BktEditor::checkVersion).</translation>
    </message>
    <message>
        <source>Unable to create template with NULL filename</source>
        <translation>No se puede crear una plantilla sin nombre de archivo</translation>
    </message>
    <message>
        <source>Empty or null filename in BktEditor::Load</source>
        <translation>BktEditor::Load sin nombre de archivo</translation>
    </message>
    <message>
        <source>Bkt file %1 does not exist</source>
        <translation>El archivo de plantilla %1 no existe</translation>
    </message>
    <message>
        <source>Error parsing Bkt file %1
 on line %2,
 column %3,
%4</source>
        <translation>Error en el archivo de plantilla %1
 en la línea %2,
 columna %3,
%4</translation>
    </message>
    <message>
        <source>Unable to parse Bkt file %1</source>
        <translation>No se puede leer el archivo de plantilla %1</translation>
    </message>
    <message>
        <source>Filename is empty.</source>
        <translation>El nombre de archivo está vacío.</translation>
    </message>
    <message>
        <source>Unable to Save file (NULL)</source>
        <translation>No se puede guardar sin nombre de archivo</translation>
    </message>
</context>
<context>
    <name>DeviceType</name>
    <message>
        <source>Computer</source>
        <translation>Ordenador</translation>
    </message>
    <message>
        <source>Laptop</source>
        <translation>Portátil</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Conmutador</translation>
    </message>
    <message>
        <source>Router</source>
        <translation>Enrutador</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Módem</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Punto de acceso</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>Televisor</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Altavoz</translation>
    </message>
    <message>
        <source>Patch panel</source>
        <translation>Panel de parcheo</translation>
    </message>
    <message>
        <source>Rack</source>
        <translation>Armario rack</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
</context>
<context>
    <name>DocumentCheck</name>
    <message>
        <source>A file name is needed</source>
        <translation>No se ha indicado ningún archivo</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 no existe</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, línea %2, columna %3: %4</translation>
    </message>
    <message>
        <source>%1 is not an XML file</source>
        <translation>%1 no es un archivo XML</translation>
    </message>
    <message>
        <source>the file does not begin with the element &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>el archivo no empieza ni con el elemento &quot;%1&quot; ni con &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known version</source>
        <translation>&quot;%1&quot; no es una versión conocida</translation>
    </message>
    <message>
        <source>version %1 is older than %2</source>
        <translation>la versión %1 es anterior a %2</translation>
    </message>
    <message>
        <source>it has the same tag as the element in line %1</source>
        <translation>su etiqueta es la de la línea %1</translation>
    </message>
    <message>
        <source>it has the same id &quot;%1&quot; as the element in line %2</source>
        <translation>su identificador &quot;%1&quot; es el de la línea %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>no hay ninguna definición de prueba &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no port &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: no hay ninguna toma &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no port or vertical run &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: no hay ninguna toma ni montante &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no point, port or vertical run &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: no hay ningún punto, toma ni montante &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there is no bundle &quot;%1&quot;</source>
        <translation>no hay ningún haz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no cable &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: no hay ningún cable &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: there is no device or bend &quot;%2&quot;</source>
        <translation>&quot;%1&quot;: no hay ningún dispositivo ni punto &quot;%2&quot;</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains &quot;%2&quot;, which a save cannot write</source>
        <translation>&quot;%1&quot; contiene &quot;%2&quot;, que se pierde al guardar</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: &quot;%2&quot; is not a usable number</source>
        <translation>&quot;%1&quot;: &quot;%2&quot; no es un número que se pueda usar</translation>
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
        <translation>Cable</translation>
    </message>
    <message>
        <source>Filename given to JobEditor is a directory</source>
        <translation>El nombre de archivo dado a JobEditor es un directorio</translation>
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
        <translation>New(const &amp;Qstring) sin nombre de archivo</translation>
    </message>
    <message>
        <source>A job is open. Unload it before making a new one.</source>
        <translation>Hay un trabajo abierto. Hay que cerrarlo antes de crear otro.</translation>
    </message>
    <message>
        <source>Floor_</source>
        <extracomment>What generated names of floors begin with, such as &quot;Floor_1&quot;; no characters beyond Latin-1.</extracomment>
        <translation>Planta_</translation>
    </message>
    <message>
        <source>Sheet_</source>
        <extracomment>What generated names of sheets begin with; no characters beyond Latin-1.</extracomment>
        <translation>Hoja_</translation>
    </message>
    <message>
        <source>Empty or null filename in JobEditor::Load</source>
        <translation>JobEditor::Load sin nombre de archivo</translation>
    </message>
    <message>
        <source>Job file %1 does not exist</source>
        <translation>El archivo de trabajo %1 no existe</translation>
    </message>
    <message>
        <source>Error parsing job file %1
 on line %2,
 column %3,
%4</source>
        <translation>Error en el archivo de trabajo %1
 en la línea %2,
 columna %3,
%4</translation>
    </message>
    <message>
        <source>Unable to parse job file %1</source>
        <translation>No se puede leer el archivo de trabajo %1</translation>
    </message>
    <message>
        <source>Incompatible version of job file %1</source>
        <translation>Versión incompatible del archivo de trabajo %1</translation>
    </message>
    <message>
        <source>Filename is Empty</source>
        <translation>El nombre de archivo está vacío</translation>
    </message>
    <message>
        <source>Filename given is a directory</source>
        <translation>El nombre de archivo es el de un directorio</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an XML element</source>
        <translation>&quot;%1&quot; no puede ser el nombre de un elemento XML</translation>
    </message>
    <message>
        <source>A job can hold at most %1 releases</source>
        <translation>Un trabajo no contiene más de %1 revisiones</translation>
    </message>
    <message>
        <source>Unable to open file.</source>
        <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
        <source>This is the job&apos;s own file. Choose another name for the template.</source>
        <translation>Este es el archivo del propio trabajo. Una plantilla necesita otro nombre.</translation>
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
        <translation>Datos</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>TV</source>
        <translation>TV</translation>
    </message>
    <message>
        <source>Cable box</source>
        <translation>Decodificador</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Fire alarm</source>
        <translation>Alarma de incendios</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentación</translation>
    </message>
    <message>
        <source>Spare</source>
        <translation>Reserva</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size such as 500M</source>
        <translation>&quot;%1&quot; no es un tamaño como 500M</translation>
    </message>
    <message>
        <source>%1 is needed</source>
        <translation>hace falta %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>&quot;%1&quot; es un argumento de más</translation>
    </message>
    <message>
        <source>&quot;cabledoc %1 --help&quot; shows how to use it</source>
        <translation>&quot;cabledoc %1 --help&quot; muestra cómo se usa</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Cable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Length (m)</source>
        <translation>Longitud (m)</translation>
    </message>
    <message>
        <source>Length (ft)</source>
        <translation>Longitud (ft)</translation>
    </message>
    <message>
        <source>both names must end in &quot;.job&quot;, or both in &quot;.bkt&quot;</source>
        <translation>los dos nombres deben terminar en &quot;.job&quot;, o los dos en &quot;.bkt&quot;</translation>
    </message>
    <message>
        <source>the name of a template must end in &quot;.bkt&quot;</source>
        <translation>el nombre de una plantilla debe terminar en &quot;.bkt&quot;</translation>
    </message>
    <message>
        <source>Test status</source>
        <translation>Estado de prueba</translation>
    </message>
    <message>
        <source>Cables</source>
        <translation>Cables</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Planta</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Ceiling</source>
        <translation>Techo</translation>
    </message>
    <message>
        <source>Rooms</source>
        <translation>Salas</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Tomas</translation>
    </message>
    <message>
        <source>Vertical runs</source>
        <translation>Montantes</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Conexiones</translation>
    </message>
    <message>
        <source>Active ports</source>
        <translation>Tomas activas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from 1 to %2</source>
        <translation>&quot;%1&quot; no es un número de 1 a %2</translation>
    </message>
    <message>
        <source>floors %1, rooms %2, ports %3, cables %4 to add; %5 cables to change
</source>
        <translation>por añadir: plantas %1, salas %2, tomas %3, cables %4; por cambiar: cables %5
</translation>
    </message>
    <message>
        <source>floors %1, rooms %2, ports %3, cables %4 added; %5 cables changed
</source>
        <translation>añadidos: plantas %1, salas %2, tomas %3, cables %4; cambiados: cables %5
</translation>
    </message>
    <message>
        <source>The job or template file.</source>
        <translation>El archivo de trabajo o de plantilla.</translation>
    </message>
    <message>
        <source>The job file.</source>
        <translation>El archivo de trabajo.</translation>
    </message>
    <message>
        <source>Print JSON instead of text.</source>
        <translation>Mostrar JSON en lugar de texto.</translation>
    </message>
    <message>
        <source>The largest file to read, such as 500M; 4G by default.</source>
        <translation>El mayor archivo que se lee, como 500M; si no, 4G.</translation>
    </message>
    <message>
        <source>The file to write. An existing file is not replaced.</source>
        <translation>El archivo nuevo. Uno existente no se reemplaza.</translation>
    </message>
    <message>
        <source>The number of floors, from 1 (the default) to 1000.</source>
        <translation>El número de plantas, de 1 (el valor por defecto) a 1000.</translation>
    </message>
    <message>
        <source>Make a new job file.</source>
        <translation>Crear un archivo de trabajo.</translation>
    </message>
    <message>
        <source>It has one sheet. An existing file is not replaced. &quot;.job&quot; is added to a name that lacks it.</source>
        <translation>Tiene una hoja. Un archivo existente no se reemplaza. A un nombre sin &quot;.job&quot; se le añade.</translation>
    </message>
    <message>
        <source>Show what a job file holds.</source>
        <translation>Mostrar lo que contiene un trabajo.</translation>
    </message>
    <message>
        <source>The floors and sheets are listed in the order of their tags. Cables, connections and active ports are counted.</source>
        <translation>Las plantas y hojas se listan en el orden de sus etiquetas. Los cables, las conexiones y las tomas activas se cuentan.</translation>
    </message>
    <message>
        <source>Print lengths in metres instead of feet.</source>
        <translation>Mostrar las longitudes en metros en lugar de pies.</translation>
    </message>
    <message>
        <source>List the cables of a job.</source>
        <translation>Mostrar los cables de un trabajo.</translation>
    </message>
    <message>
        <source>The list shows their ends, the status of their tests and their measured lengths.</source>
        <translation>La lista muestra sus extremos, el estado de sus pruebas y sus longitudes medidas.</translation>
    </message>
    <message>
        <source>Report what is wrong with a file.</source>
        <translation>Señalar lo que está mal en un archivo.</translation>
    </message>
    <message>
        <source>Each of the first 50 findings is one line; --json prints all of them. The file is not changed.</source>
        <translation>Cada uno de los primeros 50 hallazgos es una línea; --json los muestra todos. El archivo no se modifica.</translation>
    </message>
    <message>
        <source>Convert a file of an earlier version.</source>
        <translation>Convertir un archivo de una versión anterior.</translation>
    </message>
    <message>
        <source>The new file has the current version. FILE is not changed.</source>
        <translation>El archivo nuevo tiene la versión actual. FILE no se modifica.</translation>
    </message>
    <message>
        <source>The template. It is not changed.</source>
        <translation>La plantilla. No se modifica.</translation>
    </message>
    <message>
        <source>Only add the default test definitions and the bundles that the job lacks.</source>
        <translation>Añadir solo las definiciones de prueba predeterminadas y los haces que le faltan al trabajo.</translation>
    </message>
    <message>
        <source>Apply a template to a job.</source>
        <translation>Aplicar una plantilla a un trabajo.</translation>
    </message>
    <message>
        <source>The contractor and the settings of the job are replaced. Test definitions and bundles that the job lacks are added.</source>
        <translation>El contratista y los ajustes del trabajo se reemplazan. Las definiciones de prueba y los haces que le faltan al trabajo se añaden.</translation>
    </message>
    <message>
        <source>Make a template of a job.</source>
        <translation>Hacer una plantilla de un trabajo.</translation>
    </message>
    <message>
        <source>The template gets the contractor, the settings, the test definitions and the bundles of the job.</source>
        <translation>La plantilla recibe el contratista, los ajustes, las definiciones de prueba y los haces del trabajo.</translation>
    </message>
    <message>
        <source>The cable schedule, a CSV file. It is not changed.</source>
        <translation>El plan de cableado, un archivo CSV. No se modifica.</translation>
    </message>
    <message>
        <source>Only show what would change.</source>
        <translation>Mostrar solo lo que cambiaría.</translation>
    </message>
    <message>
        <source>Bring a job up to a cable schedule.</source>
        <translation>Poner un trabajo al día con un plan de cableado.</translation>
    </message>
    <message>
        <source>Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If the schedule has a problem, the job is not changed. Each of the first 50 problems is one line; --json prints all of them.</source>
        <translation>Las plantas, salas, tomas y cables que le faltan al trabajo se añaden. Los cables que difieren se cambian. Si el plan tiene un problema, el trabajo no se cambia. Cada uno de los primeros 50 problemas es una línea; --json los muestra todos.</translation>
    </message>
    <message>
        <source>Print the cable schedule of a job as CSV.</source>
        <translation>Mostrar el plan de cableado de un trabajo como CSV.</translation>
    </message>
    <message>
        <source>The file cannot be locked: no file can be created in its folder</source>
        <translation>No se puede bloquear el archivo: en su carpeta no se puede crear ningún archivo</translation>
    </message>
    <message>
        <source>Another program is changing the file: %1, process %2 on %3. If it is not, delete %4</source>
        <translation>Otro programa está cambiando el archivo: %1, proceso %2 en %3. Si no es así, borre %4</translation>
    </message>
    <message>
        <source>%1 exists and is left as it is</source>
        <translation>%1 ya existe y queda como está</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Show the help of a command.</source>
        <translation>Mostrar la ayuda de una orden.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>The command did its work.</source>
        <translation>La orden ha hecho su trabajo.</translation>
    </message>
    <message>
        <source>&quot;check&quot; found something wrong.</source>
        <translation>&quot;check&quot; ha encontrado algo.</translation>
    </message>
    <message>
        <source>The command line is wrong.</source>
        <translation>La línea de órdenes es incorrecta.</translation>
    </message>
    <message>
        <source>A file could not be loaded.</source>
        <translation>No se pudo cargar un archivo.</translation>
    </message>
    <message>
        <source>A file could not be saved.</source>
        <translation>No se pudo guardar un archivo.</translation>
    </message>
    <message>
        <source>The command did its work, but standard output could not be written.</source>
        <translation>La orden ha hecho su trabajo, pero no se pudo escribir la salida estándar.</translation>
    </message>
    <message>
        <source>Usage: cabledoc COMMAND ...
</source>
        <translation>Uso: cabledoc COMMAND ...
</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Códigos de salida:</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opciones]</translation>
    </message>
    <message>
        <source>Usage: cabledoc %1
</source>
        <translation>Uso: cabledoc %1
</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>a command is needed</source>
        <translation>hace falta una orden</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>no hay ninguna orden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>salida estándar: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>January</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>enero</translation>
    </message>
    <message>
        <source>February</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>febrero</translation>
    </message>
    <message>
        <source>March</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>marzo</translation>
    </message>
    <message>
        <source>April</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>abril</translation>
    </message>
    <message>
        <source>May</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>mayo</translation>
    </message>
    <message>
        <source>June</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>junio</translation>
    </message>
    <message>
        <source>July</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>julio</translation>
    </message>
    <message>
        <source>August</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>agosto</translation>
    </message>
    <message>
        <source>September</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>October</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>octubre</translation>
    </message>
    <message>
        <source>November</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>December</source>
        <comment>TranslatableDate::longMonthName()</comment>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>Monday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <comment>TranslatableDate::longDayName()</comment>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>ene</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>may</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
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
        <translation>dic</translation>
    </message>
</context>
<context>
    <name>Schedule</name>
    <message>
        <source>%1 has no list of cables or no list of floors</source>
        <translation>%1 no tiene lista de cables o no tiene lista de plantas</translation>
    </message>
    <message>
        <source>a quotation mark is missing or is in the wrong place</source>
        <translation>una comilla falta o está en un lugar equivocado</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>falta la columna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>no hay ninguna columna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>la columna &quot;%1&quot; está repetida</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>la fila tiene más campos que el encabezado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>&quot;%1&quot; no es un color</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>el texto no está en UTF-8</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job file cannot hold</source>
        <translation>&quot;%1&quot; tiene un carácter que un archivo de trabajo no puede contener</translation>
    </message>
    <message>
        <source>the cable has no id</source>
        <translation>el cable no tiene identificador</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is already used in row %2</source>
        <translation>el identificador &quot;%1&quot; es el de la fila %2</translation>
    </message>
    <message>
        <source>the end has a floor or room, but no port</source>
        <translation>el extremo tiene planta o sala, pero no toma</translation>
    </message>
    <message>
        <source>the end has a port, but no floor</source>
        <translation>el extremo tiene toma, pero no planta</translation>
    </message>
</context>
<context>
    <name>SettingsStrings</name>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
</context>
<context>
    <name>TestDef</name>
    <message>
        <source>Cable has no pairs please
 specify which pairs are in use.</source>
        <translation>El cable no tiene pares.
Indique qué pares se usan.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires
all 4 pairs be in use.</source>
        <translation>1 Gbit/s exige que
se usen los 4 pares.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires
no splits.</source>
        <translation>1 Gbit/s exige que
no haya pares divididos.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run 1 Gbit/s.</source>
        <translation>Asignación de pares no válida:
solo un cable directo o cruzado
puede probarse a 1 Gbit/s.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that length constant
is between 10.0 and 65.0 (pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>1 Gbit/s exige una constante de longitud
entre 10,0 y 65,0 (pF/ft) o 32,8 y 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that skew must be measured
and be at most 50ns.</source>
        <translation>1 Gbit/s exige que se mida el desfase de propagación
y que sea como máximo de 50 ns.</translation>
    </message>
    <message>
        <source>1 Gbit/s requires that SNR must be measured
and be at least 20dB.</source>
        <translation>1 Gbit/s exige que se mida la SNR
y que sea como mínimo de 20 dB.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires pairs
 1-2 and 3-6 be in use.</source>
        <translation>100 Mbit/s exige que se usen
los pares 1-2 y 3-6.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires no 
splits on pairs 1-2 and 3-6.</source>
        <translation>100 Mbit/s exige que los pares
1-2 y 3-6 no estén divididos.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run 100 Mbits/s.</source>
        <translation>Asignación de pares no válida:
solo un cable directo o cruzado
puede probarse a 100 Mbit/s.</translation>
    </message>
    <message>
        <source>100 Mbits/s requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>100 Mbit/s exige una constante de longitud
entre 10,0 y 65,0 (pF/ft) o 32,8 y 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>100 Mbits/s requires that SNR must be measured
and be at least 20dB.</source>
        <translation>100 Mbit/s exige que se mida la SNR
y que sea como mínimo de 20 dB.</translation>
    </message>
    <message>
        <source>Skew test requires
all 4 pairs be in use.</source>
        <translation>La prueba de desfase de propagación exige
que se usen los 4 pares.</translation>
    </message>
    <message>
        <source>Skew test requires
no splits.</source>
        <translation>La prueba de desfase de propagación exige
que no haya pares divididos.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run Skew test.</source>
        <translation>Asignación de pares no válida:
solo un cable directo o cruzado
permite la prueba de desfase de propagación.</translation>
    </message>
    <message>
        <source>Skew test requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)</source>
        <translation>La prueba de desfase de propagación exige una constante de longitud
entre 10,0 y 65,0 (pF/ft) o 32,8 y 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>SNR test requires pairs
 1-2 and 3-6 be in use.</source>
        <translation>La prueba de SNR exige que se usen
los pares 1-2 y 3-6.</translation>
    </message>
    <message>
        <source>SNR test requires no 
splits on pairs 1-2 and 3-6.</source>
        <translation>La prueba de SNR exige que los pares
1-2 y 3-6 no estén divididos.</translation>
    </message>
    <message>
        <source>Invalid pair-mapping
not a valid straight through or
crossover cable can&apos;t run SNR test.</source>
        <translation>Asignación de pares no válida:
solo un cable directo o cruzado
permite la prueba de SNR.</translation>
    </message>
    <message>
        <source>SNR test requires that length constant
is between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m).</source>
        <translation>La prueba de SNR exige una constante de longitud
entre 10,0 y 65,0 (pF/ft) o 32,8 y 213,2 (pF/m).</translation>
    </message>
    <message>
        <source>Can&apos;t map 2 pairs on near end to
same pair on far end.</source>
        <translation>Dos pares del extremo cercano no pueden ir
al mismo par del extremo lejano.</translation>
    </message>
    <message>
        <source>Invalid color.</source>
        <translation>Color no válido.</translation>
    </message>
    <message>
        <source>SNR and BERT tests may fail with
cable length greater than 330ft (100m).</source>
        <translation>Las pruebas de SNR y BERT pueden fallar con cables
de más de 330 ft (100 m).</translation>
    </message>
</context>
<context>
    <name>XmlFile</name>
    <message>
        <source>The file contains a control character that XML does not allow.</source>
        <translation>Hay un carácter de control que XML no permite.</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes.</source>
        <translation>Un elemento tiene más de %1 atributos.</translation>
    </message>
    <message>
        <source>Elements are nested more than %1 levels deep.</source>
        <translation>Hay elementos anidados a más de %1 niveles.</translation>
    </message>
    <message>
        <source>Only a document type without declarations is supported.</source>
        <translation>Un tipo de documento solo se admite sin declaraciones.</translation>
    </message>
    <message>
        <source>The document is empty.</source>
        <translation>El documento está vacío.</translation>
    </message>
    <message>
        <source>The document has more than one root element.</source>
        <translation>El documento tiene más de un elemento raíz.</translation>
    </message>
    <message>
        <source>The file begins with the byte order mark of %1. Save it in the encoding ISO-8859-1 (Latin-1), without a mark.</source>
        <translation>El archivo empieza con la marca de orden de bytes de %1. Guárdelo en la codificación ISO-8859-1 (Latin-1), sin marca.</translation>
    </message>
    <message>
        <source>This is the name of a folder.</source>
        <translation>Una carpeta tiene este nombre.</translation>
    </message>
    <message>
        <source>This name belongs to something that is not a file.</source>
        <translation>Algo que no es un archivo tiene este nombre.</translation>
    </message>
    <message>
        <source>A file with this name already exists. It is not replaced.</source>
        <translation>Ya hay un archivo con este nombre. No se reemplaza.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>The file is %1 in size, and the limit is %2. A document of this size needs about %3 of memory.</source>
        <translation>El archivo tiene %1 y el límite es %2. Un documento de este tamaño necesita unos %3 de memoria.</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read. It is not replaced.</source>
        <translation>Otro programa ha cambiado el archivo desde que se leyó. No se reemplaza.</translation>
    </message>
</context>
</TS>
