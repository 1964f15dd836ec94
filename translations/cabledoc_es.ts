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
    <name>CsvText</name>
    <message>
        <source>This is a file of a spreadsheet program, not CSV. Save the sheet as CSV, in UTF-8 if there is a choice, and use that file.</source>
        <translation>Es un archivo de una hoja de cálculo, no CSV. Guarde la hoja como CSV, en UTF-8 si se puede elegir, y use ese archivo.</translation>
    </message>
    <message>
        <source>a quotation mark is missing or is in the wrong place</source>
        <translation>una comilla falta o está en un lugar equivocado</translation>
    </message>
    <message>
        <source>the text is not UTF-16</source>
        <translation>el texto no está en UTF-16</translation>
    </message>
    <message>
        <source>the text is not Windows-1252</source>
        <translation>el texto no está en Windows-1252</translation>
    </message>
    <message>
        <source>the text is not UTF-8; try --encoding windows-1252</source>
        <translation>el texto no está en UTF-8; pruebe con --encoding windows-1252</translation>
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
        <translation>&quot;%1&quot;: no hay ningún dispositivo ni codo &quot;%2&quot;</translation>
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
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>no existe el archivo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>&quot;%1&quot; no se puede leer: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the content of the test</source>
        <translation>&quot;%1&quot; no tiene el contenido de la prueba</translation>
    </message>
</context>
<context>
    <name>Drawing</name>
    <message>
        <source>Passed</source>
        <translation>Superada</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Sin probar</translation>
    </message>
    <message>
        <source>Unknown result</source>
        <translation>Resultado desconocido</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No superada</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Sin tipo</translation>
    </message>
    <message>
        <source>No use</source>
        <translation>Sin uso</translation>
    </message>
    <message>
        <source>No bundle</source>
        <translation>Sin haz</translation>
    </message>
    <message>
        <source>Several of these</source>
        <translation>Varios de estos</translation>
    </message>
    <message>
        <source>No samples</source>
        <translation>Sin muestras</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Leyenda</translation>
    </message>
    <message>
        <source>First series</source>
        <translation>Primera serie</translation>
    </message>
    <message>
        <source>Second series</source>
        <translation>Segunda serie</translation>
    </message>
    <message>
        <source>Values of the tester over the numbers of the samples</source>
        <translation>Valores del comprobador sobre los números de las muestras</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Tipo: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Hora: %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Tester: %1</source>
        <translation>Comprobador: %1</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>Near-end crosstalk</source>
        <translation>Paradiafonía</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>The cable &quot;%1&quot; has no response curves.</source>
        <translation>El cable &quot;%1&quot; no tiene curvas de respuesta.</translation>
    </message>
    <message>
        <source>Response curves of %1</source>
        <translation>Curvas de respuesta de %1</translation>
    </message>
    <message>
        <source>Response curves</source>
        <translation>Curvas de respuesta</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Drawings need an application with fonts, which is a QGuiApplication.</source>
        <translation>Los dibujos necesitan una aplicación con fuentes, que es una QGuiApplication.</translation>
    </message>
    <message>
        <source>The font &quot;%1&quot; cannot be used. It is part of the package fonts-dejavu-core.</source>
        <translation>No hay ninguna fuente utilizable &quot;%1&quot;. Es parte del paquete fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>%1: the background picture %2 cannot be read</source>
        <translation>%1: no se puede leer la imagen de fondo %2</translation>
    </message>
    <message>
        <source>%1 cables</source>
        <translation>%1 cables</translation>
    </message>
    <message>
        <source>%1 (%2 cables)</source>
        <translation>%1 (%2 cables)</translation>
    </message>
    <message>
        <source>%1, from left to right: %2</source>
        <translation>%1, de izquierda a derecha: %2</translation>
    </message>
    <message>
        <source>Unknown use</source>
        <translation>Uso desconocido</translation>
    </message>
    <message>
        <source>Cables: %1</source>
        <translation>Cables: %1</translation>
    </message>
    <message>
        <source>Point on the way of cables</source>
        <translation>Punto en el camino de los cables</translation>
    </message>
    <message>
        <source>Vertical run</source>
        <translation>Montante</translation>
    </message>
    <message>
        <source>Numbers on the plan</source>
        <translation>Números en el plano</translation>
    </message>
    <message>
        <source>Rooms without a place</source>
        <translation>Salas sin sitio</translation>
    </message>
    <message>
        <source>Ports without a place</source>
        <translation>Tomas sin sitio</translation>
    </message>
    <message>
        <source>Vertical runs without a place</source>
        <translation>Montantes sin sitio</translation>
    </message>
    <message>
        <source>Points without a place</source>
        <translation>Puntos sin sitio</translation>
    </message>
    <message>
        <source>Texts without a place</source>
        <translation>Textos sin sitio</translation>
    </message>
    <message>
        <source>There is no sheet with the tag &quot;%1&quot;.</source>
        <translation>No hay ninguna hoja con la etiqueta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>%1 is reduced to %2, because it is larger than the paper</source>
        <translation>%1 se reduce a %2 porque es mayor que el papel</translation>
    </message>
    <message>
        <source>None (%1)</source>
        <translation>Ninguna (%1)</translation>
    </message>
    <message>
        <source>Devices without a place</source>
        <translation>Dispositivos sin sitio</translation>
    </message>
    <message>
        <source>Bends without a place</source>
        <translation>Codos sin sitio</translation>
    </message>
    <message>
        <source>Connections without a way</source>
        <translation>Conexiones sin camino</translation>
    </message>
    <message>
        <source>Connection of type %1</source>
        <translation>Conexión de tipo %1</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>No hay ningún tamaño de papel &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The page settings of the job give no sheet that can be drawn. Choose a paper.</source>
        <translation>Los ajustes de página del trabajo no dan una hoja que se pueda dibujar. Elija un papel.</translation>
    </message>
    <message>
        <source>the logo %1 cannot be read</source>
        <translation>no se puede leer el logotipo %1</translation>
    </message>
    <message>
        <source>There is no floor with the tag &quot;%1&quot;.</source>
        <translation>No hay ninguna planta con la etiqueta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Floor plans</source>
        <translation>Planos de planta</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Planta</translation>
    </message>
    <message>
        <source>The picture is too large. Choose fewer dots to the inch.</source>
        <translation>La imagen es demasiado grande. Elija menos puntos por pulgada.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture. Choose fewer dots to the inch.</source>
        <translation>No hay bastante memoria para la imagen. Elija menos puntos por pulgada.</translation>
    </message>
    <message>
        <source>The picture cannot be written as PNG.</source>
        <translation>La imagen no se puede escribir como PNG.</translation>
    </message>
    <message>
        <source>Riser</source>
        <translation>Esquema de montantes</translation>
    </message>
    <message>
        <source>Rooms: %1</source>
        <translation>Salas: %1</translation>
    </message>
    <message>
        <source>Ports: %1</source>
        <translation>Tomas: %1</translation>
    </message>
    <message>
        <source>Ports: %1, cables: %2</source>
        <translation>Tomas: %1, cables: %2</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>sin tipo</translation>
    </message>
    <message>
        <source>Vertical runs</source>
        <translation>Montantes</translation>
    </message>
    <message>
        <source>%1: at most %2 cables</source>
        <translation>%1: %2 cables como máximo</translation>
    </message>
    <message>
        <source>From %1 to %2: %3 cables</source>
        <translation>De %1 a %2: %3 cables</translation>
    </message>
    <message>
        <source>Cables between floors without a vertical run: %1</source>
        <translation>Cables entre plantas sin montante: %1</translation>
    </message>
    <message>
        <source>the riser does not fit on the paper, so the page is larger</source>
        <translation>el esquema de montantes no cabe en el papel, por eso la página es mayor</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>%1: list</source>
        <translation>%1: lista</translation>
    </message>
    <message>
        <source>%1 would need more than %2 sheets of this paper in this scale.</source>
        <translation>%1 necesitaría más de %2 hojas de este papel a esta escala.</translation>
    </message>
    <message>
        <source>%1: part %2</source>
        <translation>%1: parte %2</translation>
    </message>
    <message>
        <source>Sheet %1</source>
        <translation>Hoja %1</translation>
    </message>
    <message>
        <source>Overview of %1, not to scale</source>
        <translation>Vista general de %1, sin escala</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Sitio</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revisión</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>The pages cannot be written to a temporary file in %1.</source>
        <translation>Las páginas no se pueden escribir en un archivo temporal en %1.</translation>
    </message>
    <message>
        <source>no font has these characters, so they are missing: %1</source>
        <translation>ninguna fuente tiene estos caracteres, por lo que faltan: %1</translation>
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
    <name>Labels</name>
    <message>
        <source>Code 128 only holds characters of ASCII, and not &quot;%1&quot;; a QR code can hold it</source>
        <translation>Code 128 solo admite caracteres ASCII, y no &quot;%1&quot;; un código QR admite este texto</translation>
    </message>
    <message>
        <source>the code is empty</source>
        <translation>el código está vacío</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long for a code</source>
        <translation>&quot;%1&quot; es demasiado largo para un código</translation>
    </message>
    <message>
        <source>the code with its light zone needs %1 mm, and the label has room for %2 mm</source>
        <translation>el código con su zona de silencio necesita %1 mm, y la etiqueta tiene sitio para %2 mm</translation>
    </message>
    <message>
        <source>%1 lines are %2 mm high at 5 points, and the label has room for %3 mm</source>
        <translation>%1 líneas miden %2 mm de alto a 5 puntos, y la etiqueta tiene sitio para %3 mm</translation>
    </message>
    <message>
        <source>no font has the character %1</source>
        <translation>ninguna fuente tiene el carácter %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 mm wide at 5 points, and the label has room for %3 mm</source>
        <translation>&quot;%1&quot; mide %2 mm de ancho a 5 puntos, y la etiqueta tiene sitio para %3 mm</translation>
    </message>
    <message>
        <source>the pattern has a &quot;}&quot; without a &quot;{&quot;; write &quot;}}&quot; for a brace</source>
        <translation>el patrón tiene una &quot;}&quot; sin &quot;{&quot;; escriba &quot;}}&quot; para una llave</translation>
    </message>
    <message>
        <source>the pattern has a &quot;{&quot; without a &quot;}&quot;; write &quot;{{&quot; for a brace</source>
        <translation>el patrón tiene una &quot;{&quot; sin &quot;}&quot;; escriba &quot;{{&quot; para una llave</translation>
    </message>
    <message>
        <source>the pattern has a field without a name</source>
        <translation>el patrón tiene un campo sin nombre</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;</source>
        <translation>no hay ningún campo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression</source>
        <translation>&quot;%1&quot; no es una expresión regular</translation>
    </message>
    <message>
        <source>only cables have two ends</source>
        <translation>solo los cables tienen dos extremos</translation>
    </message>
    <message>
        <source>a sheet has the places 1 to %1</source>
        <translation>una hoja tiene las posiciones 1 a %1</translation>
    </message>
    <message>
        <source>the label has no text</source>
        <translation>la etiqueta no tiene texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a label with the same text</source>
        <translation>&quot;%1&quot; tiene una etiqueta con el mismo texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the same code</source>
        <translation>&quot;%1&quot; tiene el mismo código</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form %2</source>
        <translation>&quot;%1&quot; no tiene la forma %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
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
        <source>Print JSON instead of text.</source>
        <translation>Mostrar JSON en lugar de texto.</translation>
    </message>
    <message>
        <source>The largest file to read, such as 500M; 4G by default.</source>
        <translation>El mayor archivo que se lee, como 500M; si no, 4G.</translation>
    </message>
    <message>
        <source>Show what a job file holds.</source>
        <translation>Mostrar lo que contiene un trabajo.</translation>
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
        <source>Only show what would change.</source>
        <translation>Mostrar solo lo que cambiaría.</translation>
    </message>
    <message>
        <source>Bring a job up to a cable schedule.</source>
        <translation>Poner un trabajo al día con un plan de cableado.</translation>
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
    <message>
        <source>--csv and --json cannot be used together</source>
        <translation>--csv y --json no se pueden usar juntos</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>no hay ninguna opción &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>standard input, &quot;-&quot;, can be read only once</source>
        <translation>la entrada estándar, &quot;-&quot;, solo se puede leer una vez</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not end in &quot;.%2&quot;</source>
        <translation>&quot;%1&quot; no termina en &quot;.%2&quot;</translation>
    </message>
    <message>
        <source>a file and JSON cannot both be written to standard output</source>
        <translation>no se pueden escribir un archivo y JSON a la vez en la salida estándar</translation>
    </message>
    <message>
        <source>the output would replace &quot;%1&quot;, which is read</source>
        <translation>la salida reemplazaría &quot;%1&quot;, que se lee</translation>
    </message>
    <message>
        <source>there is no floor &quot;%1&quot;</source>
        <translation>no hay ninguna planta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there already is a floor &quot;%1&quot;</source>
        <translation>ya hay una planta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>no hay ninguna hoja &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there already is a sheet &quot;%1&quot;</source>
        <translation>ya hay una hoja &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;floor&quot; nor &quot;sheet&quot;</source>
        <translation>&quot;%1&quot; no es ni &quot;floor&quot; ni &quot;sheet&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name</source>
        <translation>&quot;%1&quot; no puede ser un nombre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>there is no value &quot;%1&quot;</source>
        <translation>no hay ningún valor &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--floor and --floors cannot be given together</source>
        <translation>--floor y --floors no se pueden usar juntos</translation>
    </message>
    <message>
        <source>a floor must have a name</source>
        <translation>una planta debe tener un nombre</translation>
    </message>
    <message>
        <source>there cannot be two floors &quot;%1&quot;</source>
        <translation>no puede haber dos plantas &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job file cannot hold</source>
        <translation>&quot;%1&quot; tiene un carácter que un archivo de trabajo no puede contener</translation>
    </message>
    <message>
        <source>a template has no floors</source>
        <translation>una plantilla no tiene plantas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not of the form NAME=VALUE</source>
        <translation>&quot;%1&quot; no tiene la forma NAME=VALUE</translation>
    </message>
    <message>
        <source>%1 elements have no name of their own and are left out; --tags exports them too</source>
        <translation>elementos sin nombre propio que se omiten: %1; --tags también los exporta</translation>
    </message>
    <message>
        <source>%1 added, %2 changed, %3 renamed, %4 moved, %5 removed
</source>
        <translation>añadidos: %1, cambiados: %2, renombrados: %3, movidos: %4, eliminados: %5
</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>without</source>
        <translation>sin</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimada</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Other floor</source>
        <translation>Otra planta</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Haz</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Más larga</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Bobina</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>Bobinas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Resto</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocidos</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Demasiado largos</translation>
    </message>
    <message>
        <source>All cables</source>
        <translation>Todos los cables</translation>
    </message>
    <message>
        <source>Cables by type</source>
        <translation>Cables por tipo</translation>
    </message>
    <message>
        <source>Cables by use</source>
        <translation>Cables por uso</translation>
    </message>
    <message>
        <source>Cables by floor</source>
        <translation>Cables por planta</translation>
    </message>
    <message>
        <source>Cables by bundle</source>
        <translation>Cables por haz</translation>
    </message>
    <message>
        <source>Cables by test status</source>
        <translation>Cables por estado de prueba</translation>
    </message>
    <message>
        <source>Ports by use</source>
        <translation>Tomas por uso</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Pedido</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>The lengths are estimated from the plan.</source>
        <translation>Las longitudes se estiman a partir del plano.</translation>
    </message>
    <message>
        <source>They include %1 % spare.</source>
        <translation>Incluyen un %1 % de reserva.</translation>
    </message>
    <message>
        <source>The cables of a bundle with the same group number are one run of the bundle.</source>
        <translation>Los cables de un haz con el mismo número de grupo son una tirada del haz.</translation>
    </message>
    <message>
        <source>Each run is cut from one coil, without a splice: the longest runs first, each from the first coil that has enough left (first-fit decreasing).</source>
        <translation>Cada tirada se corta de una sola bobina, sin empalme: primero las más largas, cada una de la primera bobina en la que queda suficiente (first-fit decreasing).</translation>
    </message>
    <message>
        <source>Lengths are in %1. &quot;without&quot; counts the cables without such a length. The difference is measured minus estimated, for cables that have both.</source>
        <translation>Las longitudes están en %1. &quot;sin&quot; cuenta los cables sin esa longitud. La diferencia es medida menos estimada, para los cables que tienen ambas.</translation>
    </message>
    <message>
        <source>Cables of unknown length, which are not in the order: %1</source>
        <translation>Cables de longitud desconocida, que no están en el pedido: %1</translation>
    </message>
    <message>
        <source>Cables that are longer than a coil: %1</source>
        <translation>Cables más largos que una bobina: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a percentage such as 10%</source>
        <translation>&quot;%1&quot; no es un porcentaje como 10%</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a coil such as 305m, 1000ft or CAT6=305m</source>
        <translation>&quot;%1&quot; no es una bobina como 305m, 1000ft o CAT6=305m</translation>
    </message>
    <message>
        <source>no cable has the type or bundle &quot;%1&quot;</source>
        <translation>ningún cable tiene el tipo o el haz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port, vertical run or cable &quot;%1&quot;</source>
        <translation>no hay ninguna toma, montante ni cable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no cable &quot;%1&quot;</source>
        <translation>no hay ningún cable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no room &quot;%1&quot;</source>
        <translation>no hay ninguna sala &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no network device &quot;%1&quot;</source>
        <translation>no hay ningún dispositivo de red &quot;%1&quot;</translation>
    </message>
    <message>
        <source>exactly one of PORT or CABLE, --cable, --room and --device is needed</source>
        <translation>hace falta exactamente uno de PORT o CABLE, --cable, --room y --device</translation>
    </message>
    <message>
        <source>no port</source>
        <translation>ninguna toma</translation>
    </message>
    <message>
        <source>missing: %1</source>
        <translation>falta: %1</translation>
    </message>
    <message>
        <source>point %1</source>
        <translation>punto %1</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>toma %1</translation>
    </message>
    <message>
        <source>vertical run %1</source>
        <translation>montante %1</translation>
    </message>
    <message>
        <source>drop</source>
        <translation>bajada</translation>
    </message>
    <message>
        <source>between the floors</source>
        <translation>entre las plantas</translation>
    </message>
    <message>
        <source>between the floors, without a vertical run</source>
        <translation>entre las plantas, sin montante</translation>
    </message>
    <message>
        <source>straight on</source>
        <translation>en línea recta</translation>
    </message>
    <message>
        <source>straight on, the floor plan has no scale</source>
        <translation>en línea recta, el plano de planta no tiene escala</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>al menos %1</translation>
    </message>
    <message>
        <source>%1 cables: %2</source>
        <translation>%1 cables: %2</translation>
    </message>
    <message>
        <source>The last cable leads back to the first one.</source>
        <translation>El último cable vuelve al primero.</translation>
    </message>
    <message>
        <source>Cable %1</source>
        <translation>Cable %1</translation>
    </message>
    <message>
        <source>(other cables that end here: %1)</source>
        <translation>(otros cables que terminan aquí: %1)</translation>
    </message>
    <message>
        <source>No cable: %1</source>
        <translation>Sin cable: %1</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>ningún dispositivo</translation>
    </message>
    <message>
        <source>%1, bend %2</source>
        <translation>%1, codo %2</translation>
    </message>
    <message>
        <source>%1, device %2</source>
        <translation>%1, dispositivo %2</translation>
    </message>
    <message>
        <source>%1, device %2 (%3)</source>
        <translation>%1, dispositivo %2 (%3)</translation>
    </message>
    <message>
        <source>connection %1</source>
        <translation>conexión %1</translation>
    </message>
    <message>
        <source>No connection: %1</source>
        <translation>Sin conexión: %1</translation>
    </message>
    <message>
        <source>The job file, or &quot;-&quot; for standard input.</source>
        <translation>El archivo de trabajo, o &quot;-&quot; para la entrada estándar.</translation>
    </message>
    <message>
        <source>Print CSV instead of text.</source>
        <translation>Mostrar CSV en lugar de texto.</translation>
    </message>
    <message>
        <source>The encoding of the CSV file: UTF-8, UTF-16 or windows-1252. By default, it is UTF-8 or UTF-16.</source>
        <translation>La codificación del archivo CSV: UTF-8, UTF-16 o windows-1252. Si no, es UTF-8 o UTF-16.</translation>
    </message>
    <message>
        <source>Remove the apostrophes that --protect-formulas adds.</source>
        <translation>Quitar los apóstrofos que añade --protect-formulas.</translation>
    </message>
    <message>
        <source>The delimiter of the fields: comma (the default), semicolon or tab.</source>
        <translation>El separador de los campos: comma (el valor por defecto), semicolon o tab.</translation>
    </message>
    <message>
        <source>Begin with a byte order mark, which some spreadsheets need to recognise UTF-8.</source>
        <translation>Empezar con una marca de orden de bytes, que algunas hojas de cálculo necesitan para reconocer UTF-8.</translation>
    </message>
    <message>
        <source>Put an apostrophe before fields that a spreadsheet would run as formulas.</source>
        <translation>Poner un apóstrofo delante de los campos que una hoja de cálculo ejecutaría como fórmulas.</translation>
    </message>
    <message>
        <source>Write to this file instead of standard output.</source>
        <translation>Escribir en este archivo en lugar de la salida estándar.</translation>
    </message>
    <message>
        <source>Save the changed job as this file, or to standard output if it is &quot;-&quot;. FILE.job stays as it is.</source>
        <translation>Guardar el trabajo cambiado como este archivo, o en la salida estándar si es &quot;-&quot;. FILE.job queda como está.</translation>
    </message>
    <message>
        <source>Replace the file that is written if it exists.</source>
        <translation>Reemplazar el archivo que se escribe si ya existe.</translation>
    </message>
    <message>
        <source>The file to write, or &quot;-&quot; for standard output.</source>
        <translation>El archivo nuevo, o &quot;-&quot; para la salida estándar.</translation>
    </message>
    <message>
        <source>The job or template file, or &quot;-&quot; for a job from standard input.</source>
        <translation>El archivo de trabajo o de plantilla, o &quot;-&quot; para un trabajo de la entrada estándar.</translation>
    </message>
    <message>
        <source>Save the changed file as this one. FILE stays as it is.</source>
        <translation>Guardar el archivo cambiado como este. FILE queda como está.</translation>
    </message>
    <message>
        <source>The table: </source>
        <translation>La tabla: </translation>
    </message>
    <message>
        <source>. Templates have the first two.</source>
        <translation>. Las plantillas tienen las dos primeras.</translation>
    </message>
    <message>
        <source>The unit of positions and heights: px (pixels, and feet for heights; the default), ft or m. Positions in ft or m need a scale.</source>
        <translation>La unidad de posiciones y alturas: px (píxeles, y pies para las alturas; el valor por defecto), ft o m. Las posiciones en ft o m necesitan una escala.</translation>
    </message>
    <message>
        <source>The columns to show, separated by commas.</source>
        <translation>Las columnas que se muestran, separadas por comas.</translation>
    </message>
    <message>
        <source>Only show what fulfils the condition: type=CAT6, type!=CAT6, id~PATTERN or id!~PATTERN, where the pattern is a regular expression. Can be given several times.</source>
        <translation>Mostrar solo lo que cumple la condición: type=CAT6, type!=CAT6, id~PATTERN o id!~PATTERN, donde el patrón es una expresión regular. Se puede dar varias veces.</translation>
    </message>
    <message>
        <source>The columns to sort by, separated by commas. A &quot;-&quot; before a name turns its order round.</source>
        <translation>Las columnas por las que se ordena, separadas por comas. Un &quot;-&quot; delante de un nombre invierte su orden.</translation>
    </message>
    <message>
        <source>The name of a floor. This option can be given for each floor.</source>
        <translation>El nombre de una planta. Esta opción se puede dar para cada planta.</translation>
    </message>
    <message>
        <source>The number of floors without --floor, from 1 (the default) to 1000.</source>
        <translation>El número de plantas sin --floor, de 1 (el valor por defecto) a 1000.</translation>
    </message>
    <message>
        <source>Make a new job or template.</source>
        <translation>Crear un trabajo o una plantilla.</translation>
    </message>
    <message>
        <source>If the name ends in &quot;.bkt&quot;, the file is a template. Otherwise it is a job with one sheet, and &quot;.job&quot; is added to a name that lacks it.</source>
        <translation>Si el nombre termina en &quot;.bkt&quot;, el archivo es una plantilla. Si no, es un trabajo con una hoja, y a un nombre sin &quot;.job&quot; se le añade.</translation>
    </message>
    <message>
        <source>The floors and sheets are listed in the order of the file. Cables, connections and active ports are counted.</source>
        <translation>Las plantas y hojas se listan en el orden del archivo. Los cables, las conexiones y las tomas activas se cuentan.</translation>
    </message>
    <message>
        <source>The job and template files. One of them may be &quot;-&quot; for standard input.</source>
        <translation>Los archivos de trabajo y de plantilla. Uno de ellos puede ser &quot;-&quot; para la entrada estándar.</translation>
    </message>
    <message>
        <source>Report what is wrong with files.</source>
        <translation>Señalar lo que está mal en archivos.</translation>
    </message>
    <message>
        <source>Each of the first 50 findings in a file is one line; --json prints all of them. The files are not changed. The exit code is that of the worst file.</source>
        <translation>Cada uno de los primeros 50 hallazgos de un archivo es una línea; --json los muestra todos. Los archivos no se modifican. El código de salida es el del peor archivo.</translation>
    </message>
    <message>
        <source>The values to show, such as contractor.company, site or scale.floor-plan. All values by default.</source>
        <translation>Los valores que se muestran, como contractor.company, site o scale.floor-plan. Si no, todos.</translation>
    </message>
    <message>
        <source>Show single values.</source>
        <translation>Mostrar valores sueltos.</translation>
    </message>
    <message>
        <source>There are values of the contractor, the site, the notes, the settings and the pictures of floors. A single value is printed as it is. Several are printed as NAME=VALUE.</source>
        <translation>Hay valores del contratista, del emplazamiento, de las notas, de los ajustes y de las imágenes de plantas. Un solo valor se muestra tal cual. Varios se muestran como NAME=VALUE.</translation>
    </message>
    <message>
        <source>A name as &quot;get&quot; shows it, and its new value.</source>
        <translation>Un nombre como lo muestra &quot;get&quot;, y su nuevo valor.</translation>
    </message>
    <message>
        <source>Set single values.</source>
        <translation>Fijar valores sueltos.</translation>
    </message>
    <message>
        <source>A scale is 1:100, &quot;20 ft&quot; (to the inch of the drawing) or none. A page is the name of a paper size such as A3, &quot;17 x 11&quot; (in inches) or none. If one of the values is wrong, nothing is changed.</source>
        <translation>Una escala es 1:100, &quot;20 ft&quot; (por pulgada del dibujo) o none. Una página es el nombre de un tamaño de papel como A3, &quot;17 x 11&quot; (en pulgadas) o none. Si uno de los valores es incorrecto, no se cambia nada.</translation>
    </message>
    <message>
        <source>Add a column with the tags, and the elements without a name.</source>
        <translation>Añadir una columna con las etiquetas, y los elementos sin nombre.</translation>
    </message>
    <message>
        <source>Print a table as CSV.</source>
        <translation>Mostrar una tabla como CSV.</translation>
    </message>
    <message>
        <source>&quot;table import&quot; reads it.</source>
        <translation>&quot;table import&quot; la lee.</translation>
    </message>
    <message>
        <source>The table, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>La tabla, un archivo CSV, o &quot;-&quot; para la entrada estándar.</translation>
    </message>
    <message>
        <source>Change elements by a table.</source>
        <translation>Cambiar elementos según una tabla.</translation>
    </message>
    <message>
        <source>Each row names an element by its columns, such as floor, room and id. The column &quot;action&quot; says what happens to it: add, change, rename (to new_id), move (to new_floor, new_room or new_sheet) or remove. Without it, the element is changed, or added if there is none. If the table has a problem, nothing is changed. An import can be repeated: the second one changes nothing.</source>
        <translation>Cada fila nombra un elemento con columnas como floor, room e id. La columna &quot;action&quot; dice qué se hace con él: add, change, rename (a new_id), move (a new_floor, new_room o new_sheet) o remove. Sin ella, el elemento se cambia, o se añade si no existe. Si la tabla tiene un problema, no se cambia nada. Una importación se puede repetir: la segunda no cambia nada.</translation>
    </message>
    <message>
        <source>What is copied.</source>
        <translation>Lo que se copia.</translation>
    </message>
    <message>
        <source>The floor or sheet.</source>
        <translation>La planta o la hoja.</translation>
    </message>
    <message>
        <source>The name of the copy.</source>
        <translation>El nombre de la copia.</translation>
    </message>
    <message>
        <source>Copy a floor or sheet.</source>
        <translation>Copiar una planta o una hoja.</translation>
    </message>
    <message>
        <source>All that is on it is copied. The cables that end on a floor are copied too. The copies are untested and get new names. Ports keep their names. The connections of a sheet are not copied.</source>
        <translation>Se copia cuanto contiene. También se copian los cables que terminan en una planta. Sus copias están sin probar y reciben nombres nuevos. Las tomas conservan sus nombres. Las conexiones de una hoja no se copian.</translation>
    </message>
    <message>
        <source>List the elements of a kind.</source>
        <translation>Mostrar los elementos de una clase.</translation>
    </message>
    <message>
        <source>The list has the columns of &quot;table export&quot;, and also the number of cables of ports and the status and length of cables. As text, it leaves out empty columns and tags unless --columns asks for them.</source>
        <translation>La lista tiene las columnas de &quot;table export&quot;, y además el número de cables de las tomas y el estado y la longitud de los cables. Como texto, omite las columnas vacías y las etiquetas si --columns no las pide.</translation>
    </message>
    <message>
        <source>The text to look for, in upper or lower case.</source>
        <translation>El texto que se busca, en mayúsculas o minúsculas.</translation>
    </message>
    <message>
        <source>Find a text in all tables and values.</source>
        <translation>Buscar un texto en todas las tablas y valores.</translation>
    </message>
    <message>
        <source>Names, texts, types, uses, colours and tags are searched.</source>
        <translation>Se buscan nombres, textos, tipos, usos, colores y etiquetas.</translation>
    </message>
    <message>
        <source>List the ports without a cable.</source>
        <translation>Mostrar las tomas sin cable.</translation>
    </message>
    <message>
        <source>The name of a port, vertical run or cable. If several ports have the name, give ROOM/PORT or FLOOR/ROOM/PORT.</source>
        <translation>El nombre de una toma, un montante o un cable. Si varias tomas tienen el nombre, indique ROOM/PORT o FLOOR/ROOM/PORT.</translation>
    </message>
    <message>
        <source>Trace a cable, even if a port has the same name.</source>
        <translation>Seguir un cable, aunque una toma tenga el mismo nombre.</translation>
    </message>
    <message>
        <source>Trace the cables at all ports of a room, given as ROOM or FLOOR/ROOM.</source>
        <translation>Seguir los cables de todas las tomas de una sala, dada como ROOM o FLOOR/ROOM.</translation>
    </message>
    <message>
        <source>Trace the connections of a network device, given as DEVICE or SHEET/DEVICE.</source>
        <translation>Seguir las conexiones de un dispositivo de red, dado como DEVICE o SHEET/DEVICE.</translation>
    </message>
    <message>
        <source>Show the way of cables from end to end.</source>
        <translation>Mostrar el recorrido de cables de extremo a extremo.</translation>
    </message>
    <message>
        <source>Each part of the way has its length on the plan: the drops at the ends, the straight ways from place to place, and the ways between floors. If a length is unknown, the cable has at least the sum of the others. At a port where exactly two cables end, the way goes on from one to the other. The same holds for a vertical run, unless one of the cables is not connected to it. Where more cables end, the way ends, and the others are counted. For a vertical run, the cables that pass it are traced too.</source>
        <translation>Cada parte del recorrido tiene su longitud en el plano: las bajadas en los extremos, los tramos rectos de un lugar a otro y los tramos entre plantas. Si una longitud es desconocida, el cable tiene al menos la suma de las demás. En una toma donde terminan exactamente dos cables, el recorrido sigue de uno al otro. Lo mismo vale para un montante, salvo que uno de los cables no esté conectado a él. Donde terminan más cables, el recorrido termina y los demás se cuentan. En un montante, también se siguen los cables que pasan por él.</translation>
    </message>
    <message>
        <source>Add a percentage to each length of the order, such as 10%.</source>
        <translation>Sumar un porcentaje a cada longitud del pedido, como 10%.</translation>
    </message>
    <message>
        <source>The length of the coils, such as 305m or 1000ft, or that of one type or bundle, such as CAT6=305m. It can be given several times.</source>
        <translation>La longitud de las bobinas, como 305m o 1000ft, o la de un tipo o un haz, como CAT6=305m. Se puede dar varias veces.</translation>
    </message>
    <message>
        <source>Add up cables and what has to be ordered.</source>
        <translation>Sumar los cables y lo que hay que pedir.</translation>
    </message>
    <message>
        <source>The cables are counted by type, use, floor, bundle and test status, with their measured and estimated lengths, and the ports by use. Then follows the order: the estimated length of each type and the number of coils. Each run is cut from one coil, without a splice: the longest runs first, each from the first coil that has enough left (first-fit decreasing). A bundle is ordered as such: its cables with the same group number are one run, as long as the longest of them. Cables of unknown length and cables that are longer than a coil are listed apart.</source>
        <translation>Los cables se cuentan por tipo, uso, planta, haz y estado de prueba, con sus longitudes medidas y estimadas, y las tomas por uso. Después viene el pedido: la longitud estimada de cada tipo y el número de bobinas. Cada tirada se corta de una sola bobina, sin empalme: primero las más largas, cada una de la primera bobina en la que queda suficiente (first-fit decreasing). Un haz se pide como tal: sus cables con el mismo número de grupo son una tirada, tan larga como el más largo de ellos. Los cables de longitud desconocida y los que son más largos que una bobina se listan aparte.</translation>
    </message>
    <message>
        <source>The cable schedule, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>El plan de cableado, un archivo CSV, o &quot;-&quot; para la entrada estándar.</translation>
    </message>
    <message>
        <source>Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If the schedule has a problem, the job is not changed. Types and uses that are not known, and places that lose their last cable, are warned of. Each of the first 50 problems or warnings is one line; --json prints all of them.</source>
        <translation>Las plantas, salas, tomas y cables que le faltan al trabajo se añaden. Los cables que difieren se cambian. Si el plan tiene un problema, el trabajo no se cambia. Se advierte de los tipos y usos desconocidos y de los lugares que pierden su último cable. Cada uno de los primeros 50 problemas o advertencias es una línea; --json los muestra todos.</translation>
    </message>
    <message>
        <source>The job or template file, or &quot;-&quot; for standard input.</source>
        <translation>El archivo de trabajo o de plantilla, o &quot;-&quot; para la entrada estándar.</translation>
    </message>
    <message>
        <source>The command, such as &quot;check&quot; or &quot;schedule import&quot;.</source>
        <translation>La orden, como &quot;check&quot; o &quot;schedule import&quot;.</translation>
    </message>
    <message>
        <source>Without a command, show the help of the program.</source>
        <translation>Sin una orden, mostrar la ayuda del programa.</translation>
    </message>
    <message>
        <source>Print no messages except errors.</source>
        <translation>No mostrar ningún mensaje salvo los errores.</translation>
    </message>
    <message>
        <source>Print the commands with their arguments and options as JSON.</source>
        <translation>Mostrar las órdenes con sus argumentos y opciones como JSON.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not comma, semicolon or tab</source>
        <translation>&quot;%1&quot; no es comma, semicolon ni tab</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8, UTF-16 or windows-1252</source>
        <translation>&quot;%1&quot; no es UTF-8, UTF-16 ni windows-1252</translation>
    </message>
    <message>
        <source>standard input is larger than the limit, which --max-size sets</source>
        <translation>la entrada estándar es mayor que el límite, que fija --max-size</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>leyendo %1</translation>
    </message>
    <message>
        <source>standard input cannot be changed, so -o is needed</source>
        <translation>la entrada estándar no se puede cambiar, por lo que hace falta -o</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>guardando %1</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;; there are %2</source>
        <translation>no hay ninguna columna &quot;%1&quot;; hay %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a condition such as type=CAT6, type!=CAT6 or id~^A</source>
        <translation>&quot;%1&quot; no es una condición como type=CAT6, type!=CAT6 o id~^A</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression</source>
        <translation>&quot;%1&quot; no es una expresión regular</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has several meanings. Use one of these:</source>
        <translation>&quot;%1&quot; tiene varios significados. Use uno de estos:</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>advertencia: %1</translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1; ¿quería decir &quot;%2&quot;?</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; there are %2</source>
        <translation>no hay ninguna tabla &quot;%1&quot;; hay %2</translation>
    </message>
    <message>
        <source>templates do not have the table &quot;%1&quot;</source>
        <translation>las plantillas no tienen la tabla &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The delimiter of the fields: comma, semicolon or tab. By default, it is found in the first row.</source>
        <translation>El separador de los campos: comma, semicolon o tab. Por defecto se detecta en la primera fila.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the units px, ft and m</source>
        <translation>&quot;%1&quot; no es una de las unidades px, ft y m</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>&quot;%1&quot; no es ninguno de %2</translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation>no se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>passed %1, passed within accuracy %2, failed %3, others %4
</source>
        <translation>superadas %1, superadas dentro de la precisión %2, no superadas %3, otras %4
</translation>
    </message>
    <message>
        <source>new %1, of these retests %2; already known %3, left out %4; still untested %5
</source>
        <translation>nuevas %1, de ellas repetidas %2; ya conocidas %3, omitidas %4; aún sin probar %5
</translation>
    </message>
    <message>
        <source>the files of the tests cannot be stored beside standard output</source>
        <translation>los archivos de las pruebas no se pueden guardar junto a la salida estándar</translation>
    </message>
    <message>
        <source>The test results, a CSV file, or &quot;-&quot; for standard input.</source>
        <translation>Los resultados de las pruebas, un archivo CSV, o &quot;-&quot; para la entrada estándar.</translation>
    </message>
    <message>
        <source>A mapping file: how another program names the columns, and gives units, numbers, dates and verdicts.</source>
        <translation>Un archivo de correspondencias: cómo otro programa llama a las columnas e indica unidades, números, fechas y veredictos.</translation>
    </message>
    <message>
        <source>Which of several tests of a cable is the current one: latest (the default) or worst. With refuse, another test of a tested cable is a problem.</source>
        <translation>Cuál de varias pruebas de un cable es la actual: latest (la última, por defecto) o worst (la peor). Con refuse, otra prueba de un cable ya probado es un problema.</translation>
    </message>
    <message>
        <source>Leave out the rows with unknown cables, and write them to this file.</source>
        <translation>Omitir las filas con cables desconocidos y escribirlas en este archivo.</translation>
    </message>
    <message>
        <source>Add test results to the cables of a job.</source>
        <translation>Añadir resultados de pruebas a los cables de un trabajo.</translation>
    </message>
    <message>
        <source>A later test becomes the current one of its cable. The test before is kept as an earlier one. A table with the column &quot;active_port&quot; has tests of ports in the working network. If the table has a problem, nothing is added. An import can be repeated: the second one changes nothing.</source>
        <translation>Una prueba posterior pasa a ser la actual de su cable. La prueba previa se conserva como anterior. Una tabla con la columna &quot;active_port&quot; tiene pruebas de tomas en la red en funcionamiento. Si la tabla tiene un problema, no se añade nada. La importación se puede repetir: la segunda no cambia nada.</translation>
    </message>
    <message>
        <source>Print the tests of ports in the working network.</source>
        <translation>Mostrar las pruebas de tomas en la red en funcionamiento.</translation>
    </message>
    <message>
        <source>Print the test results of a job as CSV.</source>
        <translation>Mostrar los resultados de pruebas de un trabajo como CSV.</translation>
    </message>
    <message>
        <source>Each test is one row. Earlier tests have the state &quot;earlier&quot;. &quot;results import&quot; reads the table.</source>
        <translation>Cada prueba es una fila. Las pruebas anteriores tienen el estado &quot;earlier&quot;. &quot;results import&quot; lee la tabla.</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>no superadas</translation>
    </message>
    <message>
        <source>untested</source>
        <translation>sin probar</translation>
    </message>
    <message>
        <source>unknown verdict</source>
        <translation>veredicto desconocido</translation>
    </message>
    <message>
        <source>tested more than once</source>
        <translation>probados más de una vez</translation>
    </message>
    <message>
        <source>old</source>
        <translation>antiguas</translation>
    </message>
    <message>
        <source>unreadable time</source>
        <translation>hora ilegible</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>demasiado largos</translation>
    </message>
    <message>
        <source>too much skew</source>
        <translation>desfase excesivo</translation>
    </message>
    <message>
        <source>wrong wiring</source>
        <translation>mal conectados</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Hallazgo</translation>
    </message>
    <message>
        <source>cables</source>
        <translation>cables</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>superadas</translation>
    </message>
    <message>
        <source>passed within accuracy</source>
        <translation>superadas dentro de la precisión</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date such as 2026-01-31</source>
        <translation>&quot;%1&quot; no es una fecha como 2026-01-31</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;untested&quot; nor &quot;failed&quot;</source>
        <translation>&quot;%1&quot; no es ni &quot;untested&quot; ni &quot;failed&quot;</translation>
    </message>
    <message>
        <source>Also show tests before this day, such as 2026-01-31.</source>
        <translation>Mostrar también las pruebas anteriores a este día, como 2026-01-31.</translation>
    </message>
    <message>
        <source>End with exit code 1 if there are such cables: untested, failed or both, separated by commas.</source>
        <translation>Terminar con el código 1 si hay cables así: untested (sin probar), failed (no superados) o ambos, separados por comas.</translation>
    </message>
    <message>
        <source>Show missing, failed and doubtful tests.</source>
        <translation>Mostrar las pruebas que faltan, no superadas o dudosas.</translation>
    </message>
    <message>
        <source>Cables are shown that are untested, have failed, have a verdict that is not known, or were tested more than once, and those that are outside the limits of their test definition: the maximum length, the skew and the wiring. A limit is only checked if the job has the limit and the measurement. Earlier tests are counted, but --fail-on only looks at the current ones. The last line has the numbers of cables.</source>
        <translation>Se muestran los cables que no se han probado, no han superado la prueba, tienen un veredicto desconocido o se han probado más de una vez, y los que están fuera de los límites de su definición de prueba: la longitud máxima, el desfase y el conexionado. Un límite solo se comprueba si el trabajo tiene el límite y la medida. Las pruebas anteriores se cuentan, pero --fail-on solo mira las actuales. La última línea tiene los números de cables.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale such as 1:100 or 1in=20ft</source>
        <translation>&quot;%1&quot; no es una escala como 1:100 o 1in=20ft</translation>
    </message>
    <message>
        <source>there is no layer &quot;%1&quot;</source>
        <translation>no hay ninguna capa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; gives cables no colours: cable, type, use, bundle or status</source>
        <translation>&quot;%1&quot; no da colores a los cables: cable, type, use, bundle o status</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a direction in degrees</source>
        <translation>&quot;%1&quot; no es una dirección en grados</translation>
    </message>
    <message>
        <source>%1 and %2 do not go together</source>
        <translation>%1 y %2 no van juntos</translation>
    </message>
    <message>
        <source>--%1 is for floor plans only</source>
        <translation>--%1 es solo para planos de planta</translation>
    </message>
    <message>
        <source>there is no %1 &quot;%2&quot;</source>
        <translation>no existe %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the job has nothing to draw</source>
        <translation>el trabajo no tiene nada que dibujar</translation>
    </message>
    <message>
        <source>only a PDF file can have several pages; choose one with --%1: %2</source>
        <translation>solo un archivo PDF puede tener varias páginas; elija una con --%1: %2</translation>
    </message>
    <message>
        <source>The drawing to write: a file whose name ends in .pdf, .svg or .png, or &quot;-&quot; to write SVG to standard output.</source>
        <translation>El dibujo que se escribe: un archivo cuyo nombre termina en .pdf, .svg o .png, o &quot;-&quot; para escribir SVG en la salida estándar.</translation>
    </message>
    <message>
        <source>The floor to draw. By default, a PDF file has all floors.</source>
        <translation>La planta que se dibuja. Por omisión, un archivo PDF tiene todas las plantas.</translation>
    </message>
    <message>
        <source>Draw this sheet with its network devices.</source>
        <translation>Dibujar esta hoja con sus dispositivos de red.</translation>
    </message>
    <message>
        <source>Draw all sheets with network devices, each on a page of its own.</source>
        <translation>Dibujar todas las hojas con dispositivos de red, cada una en su propia página.</translation>
    </message>
    <message>
        <source>Draw all floors above each other, with the cables in the vertical runs.</source>
        <translation>Dibujar todas las plantas una sobre otra, con los cables de los montantes.</translation>
    </message>
    <message>
        <source>The scale, such as 1:100 or 1in=20ft. By default, it is that of the job.</source>
        <translation>La escala, como 1:100 o 1in=20ft. Por omisión, es la del trabajo.</translation>
    </message>
    <message>
        <source>The layers to draw, separated by commas: background, rooms, cables, points, vertical-runs, ports, texts and labels. All of them by default.</source>
        <translation>Las capas que se dibujan, separadas por comas: background, rooms, cables, points, vertical-runs, ports, texts y labels. Por omisión, todas.</translation>
    </message>
    <message>
        <source>What gives cables their colours: cable, type (the default), use, bundle or status.</source>
        <translation>Qué da color a los cables: cable (el propio cable), type (el tipo, por omisión), use (el uso), bundle (el haz) o status (el estado de la prueba).</translation>
    </message>
    <message>
        <source>Draw a north arrow, turned clockwise from the top of the plan by these degrees.</source>
        <translation>Dibujar una flecha del norte, girada estos grados en sentido horario desde la parte superior del plano.</translation>
    </message>
    <message>
        <source>Draw floor plans, sheets or the riser.</source>
        <translation>Dibujar planos de planta, hojas o el esquema de montantes.</translation>
    </message>
    <message>
        <source>A floor plan is never fitted to the paper. In a PDF file, a plan that is larger than the paper is divided among several sheets that overlap, after one with an overview. In an SVG or PNG file, the sheet becomes larger than the paper. Labels that do not fit are shortened, moved away with a leader line, or replaced by a number in a list beside the plan. The environment variable SOURCE_DATE_EPOCH sets the date.</source>
        <translation>Un plano de planta nunca se ajusta al papel. En un archivo PDF, un plano mayor que el papel se divide en varias hojas que se solapan, tras una con una vista general. En un archivo SVG o PNG, la hoja se hace mayor que el papel. Los rótulos que no caben se acortan, se apartan con una línea de referencia o se sustituyen por un número en una lista junto al plano. La variable de entorno SOURCE_DATE_EPOCH fija la fecha.</translation>
    </message>
    <message>
        <source>The cable, by its name.</source>
        <translation>El cable, por su nombre.</translation>
    </message>
    <message>
        <source>Draw the response curves of a cable.</source>
        <translation>Dibujar las curvas de respuesta de un cable.</translation>
    </message>
    <message>
        <source>The curves are those of the cable&apos;s test: near-end crosstalk, echo and channel.</source>
        <translation>Las curvas son las de la prueba del cable: paradiafonía, eco y canal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;portrait&quot; nor &quot;landscape&quot;</source>
        <translation>&quot;%1&quot; no es ni &quot;portrait&quot; ni &quot;landscape&quot;</translation>
    </message>
    <message>
        <source>there is no paper size &quot;%1&quot;</source>
        <translation>no hay ningún tamaño de papel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of dots to the inch from 10 to 1200</source>
        <translation>&quot;%1&quot; no es un número de puntos por pulgada de 10 a 1200</translation>
    </message>
    <message>
        <source>the name of the drawing ends in .pdf, .svg or .png</source>
        <translation>el nombre del dibujo termina en .pdf, .svg o .png</translation>
    </message>
    <message>
        <source>The paper size, such as A1 or Tabloid. By default, it is that of the job.</source>
        <translation>El tamaño de papel, como A1 o Tabloid. Por omisión, es el del trabajo.</translation>
    </message>
    <message>
        <source>How the paper lies: portrait or landscape.</source>
        <translation>Cómo está el papel: portrait (vertical) o landscape (horizontal).</translation>
    </message>
    <message>
        <source>The dots to the inch of a PNG file, from 10 to 1200. By default, it is 150.</source>
        <translation>Los puntos por pulgada de un archivo PNG, de 10 a 1200. Por omisión, son 150.</translation>
    </message>
    <message>
        <source>The revision in the title block.</source>
        <translation>La revisión del cajetín.</translation>
    </message>
    <message>
        <source>The number of the sheet in the title block.</source>
        <translation>El número de la hoja en el cajetín.</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primera</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>Altura impresa</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; &quot;cabledoc label formats&quot; lists them</source>
        <translation>no hay ningún formato &quot;%1&quot;; &quot;cabledoc label formats&quot; muestra los formatos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of qr, code128 and none</source>
        <translation>&quot;%1&quot; no es qr, code128 ni none</translation>
    </message>
    <message>
        <source>the name of the labels ends in .pdf, .svg or .csv</source>
        <translation>el nombre del archivo de etiquetas termina en .pdf, .svg o .csv</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;</source>
        <translation>no hay ningún campo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>only a PDF file can have several sheets, and these labels need %1</source>
        <translation>solo un archivo PDF puede tener varias hojas, y estas etiquetas necesitan %1</translation>
    </message>
    <message>
        <source>there is nothing to label</source>
        <translation>no hay nada que etiquetar</translation>
    </message>
    <message>
        <source>there is no report &quot;%1&quot;</source>
        <translation>no hay ningún informe &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--%1 is only for the reports &quot;test&quot; and &quot;schedule&quot;</source>
        <translation>--%1 es solo para los informes &quot;test&quot; y &quot;schedule&quot;</translation>
    </message>
    <message>
        <source>no cable fulfils the conditions</source>
        <translation>ningún cable cumple las condiciones</translation>
    </message>
    <message>
        <source>the name of the report ends in .pdf or .html</source>
        <translation>el nombre del informe termina en .pdf o .html</translation>
    </message>
    <message>
        <source>The table with the elements to label, such as cables (the default), ports or rooms.</source>
        <translation>La tabla con los elementos que se etiquetan, como cables (por omisión), ports o rooms.</translation>
    </message>
    <message>
        <source>The labels to write: a file whose name ends in .pdf, .svg or .csv, or &quot;-&quot; to write SVG to standard output.</source>
        <translation>Las etiquetas que se escriben: un archivo cuyo nombre termina en .pdf, .svg o .csv, o &quot;-&quot; para escribir SVG en la salida estándar.</translation>
    </message>
    <message>
        <source>The format of the labels; a4-5x13 by default. &quot;label formats&quot; lists them.</source>
        <translation>El formato de las etiquetas; por omisión, a4-5x13. &quot;label formats&quot; muestra los formatos.</translation>
    </message>
    <message>
        <source>The text of a label, such as &quot;{id}\n{far_room|?}&quot;.</source>
        <translation>El texto de una etiqueta, como &quot;{id}\n{far_room|?}&quot;.</translation>
    </message>
    <message>
        <source>The code beside the text: qr, code128 or none (the default).</source>
        <translation>El código junto al texto: qr, code128 o none (sin código, por omisión).</translation>
    </message>
    <message>
        <source>The text of the code. By default, it is the name of the element.</source>
        <translation>El texto del código. Por omisión, es el nombre del elemento.</translation>
    </message>
    <message>
        <source>Make a label for each end of a cable.</source>
        <translation>Hacer una etiqueta para cada extremo de un cable.</translation>
    </message>
    <message>
        <source>The number of equal labels; 1 by default.</source>
        <translation>El número de etiquetas iguales; por omisión, 1.</translation>
    </message>
    <message>
        <source>The place of the first label on the first sheet, counted from 1 in rows.</source>
        <translation>La posición de la primera etiqueta en la primera hoja, contada por filas a partir de 1.</translation>
    </message>
    <message>
        <source>A regular expression that each text must match, such as &quot;^[0-9]+-[A-Z][0-9]+$&quot;.</source>
        <translation>Una expresión regular que debe cumplir cada texto, como &quot;^[0-9]+-[A-Z][0-9]+$&quot;.</translation>
    </message>
    <message>
        <source>Draw the edges of the labels, for a test on plain paper.</source>
        <translation>Dibujar los bordes de las etiquetas, para una prueba en papel normal.</translation>
    </message>
    <message>
        <source>The columns of the table that a CSV file has, separated by commas. By default, it has all.</source>
        <translation>Las columnas de la tabla que tiene un archivo CSV, separadas por comas. Por omisión, las tiene todas.</translation>
    </message>
    <message>
        <source>Print labels.</source>
        <translation>Imprimir etiquetas.</translation>
    </message>
    <message>
        <source>A pattern has the columns of &quot;list&quot; as fields. A text after &quot;|&quot; takes the place of an empty value, &quot;\n&quot; begins a new line, and &quot;{{&quot; and &quot;}}&quot; stand for braces. The fields near_floor, near_room and near_port are those of the end of the cable for which the label is, and far_floor, far_room and far_port those of the other end. Texts must differ from element to element. Lines that are too wide are set smaller, down to 5 points. If a label has a problem, nothing is written, and the exit code is 1. Print the file in its actual size.</source>
        <translation>Un patrón tiene como campos las columnas de &quot;list&quot;. Un texto después de &quot;|&quot; ocupa el lugar de un valor vacío, &quot;\n&quot; empieza una línea nueva, y &quot;{{&quot; y &quot;}}&quot; representan llaves. Los campos near_floor, near_room y near_port son los del extremo del cable al que corresponde la etiqueta, y far_floor, far_room y far_port los del otro extremo. Los textos deben ser distintos de un elemento a otro. Las líneas demasiado anchas se componen con letra más pequeña, hasta 5 puntos. Si una etiqueta tiene un problema, no se escribe nada y el código de salida es 1. Imprima el archivo a tamaño real.</translation>
    </message>
    <message>
        <source>List the formats of labels.</source>
        <translation>Mostrar los formatos de las etiquetas.</translation>
    </message>
    <message>
        <source>Lengths are in millimetres. The list has the sizes of the paper and of a label, the numbers of columns and rows, the left upper corner of the first label, the distance from one label to the next, and the height of the part that is printed. The rest of a label that is wound around a cable is transparent. A label on a tape is as long as its text needs.</source>
        <translation>Las longitudes están en milímetros. La lista tiene los tamaños del papel y de una etiqueta, los números de columnas y filas, la esquina superior izquierda de la primera etiqueta, la distancia de una etiqueta a la siguiente y la altura de la parte que se imprime. El resto de una etiqueta que se enrolla en un cable es transparente. Una etiqueta en cinta es tan larga como necesita su texto.</translation>
    </message>
    <message>
        <source>The report to write: a file whose name ends in .pdf or .html, or &quot;-&quot; to write HTML to standard output.</source>
        <translation>El informe que se escribe: un archivo cuyo nombre termina en .pdf o .html, o &quot;-&quot; para escribir HTML en la salida estándar.</translation>
    </message>
    <message>
        <source>The kind of report: test (the default), summary, inventory, schedule, notes or active.</source>
        <translation>La clase de informe: test (por omisión), summary, inventory, schedule, notes o active.</translation>
    </message>
    <message>
        <source>Only the cables with an end on this floor.</source>
        <translation>Solo los cables con un extremo en esta planta.</translation>
    </message>
    <message>
        <source>Only the cables with an end in this room.</source>
        <translation>Solo los cables con un extremo en esta sala.</translation>
    </message>
    <message>
        <source>Only the cables whose test is of this day, such as 2026-01-31, or later.</source>
        <translation>Solo los cables cuya prueba es de este día, como 2026-01-31, o posterior.</translation>
    </message>
    <message>
        <source>Only the cables whose test is of this day or earlier.</source>
        <translation>Solo los cables cuya prueba es de este día o anterior.</translation>
    </message>
    <message>
        <source>Begin with the cables that have failed.</source>
        <translation>Empezar por los cables que no han superado la prueba.</translation>
    </message>
    <message>
        <source>The revision at the bottom of each page.</source>
        <translation>La revisión al pie de cada página.</translation>
    </message>
    <message>
        <source>Write a report for the customer.</source>
        <translation>Escribir un informe para el cliente.</translation>
    </message>
    <message>
        <source>The report of tests has a summary, the results of each cable, and an index from cables to pages. The cables are in the order of their names unless --sort asks for another one. Each kind of report has the paper, the orientation and the zoom of its print settings in the job. The options that choose cables are for the kinds test and schedule. The environment variable SOURCE_DATE_EPOCH sets the date.</source>
        <translation>El informe de pruebas tiene un resumen, los resultados de cada cable y un índice de cables con sus páginas. Los cables van en el orden de sus nombres si --sort no pide otro. Cada clase de informe tiene el papel, la orientación y el zoom de sus ajustes de impresión en el trabajo. Las opciones que eligen cables son para las clases test y schedule. La variable de entorno SOURCE_DATE_EPOCH fija la fecha.</translation>
    </message>
    <message>
        <source>&quot;check&quot;, &quot;labels&quot; or &quot;results status&quot; found something wrong.</source>
        <translation>&quot;check&quot;, &quot;labels&quot; o &quot;results status&quot; encontró algo mal.</translation>
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
    <name>Report</name>
    <message>
        <source>Cables</source>
        <translation>Cables</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>of cables</source>
        <translation>en cables</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimada</translation>
    </message>
    <message>
        <source>Floor</source>
        <translation>Planta</translation>
    </message>
    <message>
        <source>Other floor</source>
        <translation>Otra planta</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Tomas</translation>
    </message>
    <message>
        <source>All cables</source>
        <translation>Todos los cables</translation>
    </message>
    <message>
        <source>Cables by type</source>
        <translation>Cables por tipo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Cables by use</source>
        <translation>Cables por uso</translation>
    </message>
    <message>
        <source>Cables by floor</source>
        <translation>Cables por planta</translation>
    </message>
    <message>
        <source>Cables by bundle</source>
        <translation>Cables por haz</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Haz</translation>
    </message>
    <message>
        <source>Cables by test status</source>
        <translation>Cables por estado de prueba</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Ports by use</source>
        <translation>Tomas por uso</translation>
    </message>
    <message>
        <source>Lengths from the plan, by type and bundle</source>
        <translation>Longitudes según el plano, por tipo y haz</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Más larga</translation>
    </message>
    <message>
        <source>Without a length</source>
        <translation>Sin longitud</translation>
    </message>
    <message>
        <source>Network devices</source>
        <translation>Dispositivos de red</translation>
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
        <source>Rooms</source>
        <translation>Salas</translation>
    </message>
    <message>
        <source>Room</source>
        <translation>Sala</translation>
    </message>
    <message>
        <source>Ends of cables</source>
        <translation>Extremos de cable</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Cable</translation>
    </message>
    <message>
        <source>From floor</source>
        <translation>De planta</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Toma</translation>
    </message>
    <message>
        <source>To floor</source>
        <translation>A planta</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Veredicto</translation>
    </message>
    <message>
        <source>Not tested.</source>
        <translation>Sin probar.</translation>
    </message>
    <message>
        <source>Tested</source>
        <translation>Probado el</translation>
    </message>
    <message>
        <source>Speed (Mbit/s)</source>
        <translation>Velocidad (Mbit/s)</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Dúplex</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Extremo remoto</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>Otros valores</translation>
    </message>
    <message>
        <source>Job information</source>
        <translation>Información del trabajo</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message>
        <source>Cable schedule</source>
        <translation>Plan de cableado</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Tests in the working network</source>
        <translation>Pruebas en la red en funcionamiento</translation>
    </message>
    <message>
        <source>Revision %1</source>
        <translation>Revisión %1</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Sitio</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Contractor</source>
        <translation>Contratista</translation>
    </message>
    <message>
        <source>Tested by</source>
        <translation>Probado por</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>From the tester</source>
        <translation>Según el comprobador</translation>
    </message>
    <message>
        <source>Worst margin (dB)</source>
        <translation>Peor margen (dB)</translation>
    </message>
    <message>
        <source>Worst value (dB or ns)</source>
        <translation>Peor valor (dB o ns)</translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation>Frecuencia (MHz)</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Extremo</translation>
    </message>
    <message>
        <source>%1: %2 dB</source>
        <translation>%1: %2 dB</translation>
    </message>
    <message>
        <source>Earlier tests</source>
        <translation>Pruebas anteriores</translation>
    </message>
    <message>
        <source>Tester</source>
        <translation>Comprobador</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Without a place</source>
        <translation>Sin ubicación</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>What was tested</source>
        <translation>Alcance de las pruebas</translation>
    </message>
    <message>
        <source>Limits and testers</source>
        <translation>Límites y comprobadores</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No superados</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Sin probar</translation>
    </message>
    <message>
        <source>Cables in this report: %1. Tested: %2. Not tested: %3.</source>
        <translation>Cables en este informe: %1. Probados: %2. Sin probar: %3.</translation>
    </message>
    <message>
        <source>Day of the tests: %1.</source>
        <translation>Fecha de las pruebas: %1.</translation>
    </message>
    <message>
        <source>Days of the tests: %1 to %2.</source>
        <translation>Fechas de las pruebas: de %1 a %2.</translation>
    </message>
    <message>
        <source>The job has further cables, which were not selected: %1.</source>
        <translation>Otros cables del trabajo, que no se seleccionaron: %1.</translation>
    </message>
    <message>
        <source>Cables that were tested more than once: %1. The last part of the page of such a cable lists its earlier tests.</source>
        <translation>Cables probados más de una vez: %1. La última parte de la página de cada uno de estos cables muestra sus pruebas anteriores.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>superada</translation>
    </message>
    <message>
        <source>passed, but closer to the limit than the tester measures</source>
        <translation>superada, pero más cerca del límite de lo que permite la precisión del comprobador</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>no superada</translation>
    </message>
    <message>
        <source>not tested</source>
        <translation>sin probar</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>as the tester says; does not count as passed</source>
        <translation>según el comprobador; no cuenta como superada</translation>
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
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Tester software</source>
        <translation>Software del comprobador</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
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
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Errores de bit</translation>
    </message>
    <message>
        <source>Wire map</source>
        <translation>Mapa de cableado</translation>
    </message>
    <message>
        <source>File of the tester</source>
        <translation>Archivo del comprobador</translation>
    </message>
    <message>
        <source>Longest allowed</source>
        <translation>Máx. permitida</translation>
    </message>
    <message>
        <source>Without a room</source>
        <translation>Sin sala</translation>
    </message>
    <message>
        <source>Test report</source>
        <translation>Informe de pruebas</translation>
    </message>
    <message>
        <source>Near-end crosstalk</source>
        <translation>Paradiafonía</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Eco</translation>
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
        <translation>la columna &quot;%1&quot; aparece dos veces</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>columna desconocida &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>falta la columna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>[%1] %2</source>
        <translation>[%1] %2</translation>
    </message>
    <message>
        <source>%1: there is no value</source>
        <translation>%1: no hay ningún valor</translation>
    </message>
    <message>
        <source>%1: there is no such section</source>
        <translation>%1: esa sección no existe</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not one of %3</source>
        <translation>%1: &quot;%2&quot; no es ninguno de %3</translation>
    </message>
    <message>
        <source>%1 occurs twice</source>
        <translation>%1 aparece dos veces</translation>
    </message>
    <message>
        <source>%1: there is no such column</source>
        <translation>%1: esa columna no existe</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not possible</source>
        <translation>%1: &quot;%2&quot; no es posible</translation>
    </message>
    <message>
        <source>%1: there is no such key</source>
        <translation>%1: esa clave no existe</translation>
    </message>
    <message>
        <source>the mapping is not a text in UTF-8</source>
        <translation>las correspondencias no son un texto en UTF-8</translation>
    </message>
    <message>
        <source>the mapping cannot be read</source>
        <translation>no se pueden leer las correspondencias</translation>
    </message>
    <message>
        <source>several have the id &quot;%1&quot;</source>
        <translation>varios tienen el identificador &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no active port &quot;%1&quot;</source>
        <translation>no existe la toma activa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no cable &quot;%1&quot;</source>
        <translation>no existe el cable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not count as passed: it is not one of %2</source>
        <translation>&quot;%1&quot; no cuenta como superada: no es ninguno de %2</translation>
    </message>
    <message>
        <source>row %1 already has this test</source>
        <translation>la fila %1 ya tiene esta prueba</translation>
    </message>
    <message>
        <source>the job already has another test of the same time and tester</source>
        <translation>el trabajo ya tiene otra prueba de la misma hora y el mismo comprobador</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not &quot;%2&quot;</source>
        <translation>&quot;%1&quot; no es &quot;%2&quot;</translation>
    </message>
    <message>
        <source>several cables have the tag &quot;%1&quot;</source>
        <translation>varios cables tienen la etiqueta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the cable already has a test</source>
        <translation>el cable ya tiene una prueba</translation>
    </message>
    <message>
        <source>several active ports have the tag &quot;%1&quot;</source>
        <translation>varias tomas activas tienen la etiqueta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>active port &quot;%1&quot;: %2, %3</source>
        <translation>toma activa &quot;%1&quot;: %2, %3</translation>
    </message>
    <message>
        <source>cable &quot;%1&quot;: %2, %3</source>
        <translation>cable &quot;%1&quot;: %2, %3</translation>
    </message>
    <message>
        <source>cable &quot;%1&quot;: %2, %3, as an earlier test</source>
        <translation>cable &quot;%1&quot;: %2, %3, como prueba anterior</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time</source>
        <translation>&quot;%1&quot; no es una fecha y hora</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the future</source>
        <translation>&quot;%1&quot; está en el futuro</translation>
    </message>
    <message>
        <source>the row has no verdict</source>
        <translation>la fila no tiene veredicto</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>la fila tiene más campos que el encabezado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; contiene un carácter que un archivo no puede guardar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from 0</source>
        <translation>&quot;%1&quot; no es un número entero a partir de 0</translation>
    </message>
    <message>
        <source>the cable was tested as &quot;%1&quot;, but its type is &quot;%2&quot;</source>
        <translation>el cable se probó como &quot;%1&quot;, pero su tipo es &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a block of 96 hexadecimal digits</source>
        <translation>&quot;%1&quot; no es un bloque de 96 dígitos hexadecimales</translation>
    </message>
    <message>
        <source>a row with a block cannot have lengths or a wire map</source>
        <translation>una fila con un bloque no puede tener longitudes ni mapa de cableado</translation>
    </message>
    <message>
        <source>the unit of the length is neither &quot;ft&quot; nor &quot;m&quot;</source>
        <translation>la unidad de la longitud no es &quot;ft&quot; ni &quot;m&quot;</translation>
    </message>
    <message>
        <source>the type of the cable has no length constant between 10.0 and 65.0 pF/ft</source>
        <translation>el tipo del cable no tiene una constante de longitud entre 10,0 y 65,0 pF/ft</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a possible length</source>
        <translation>&quot;%1&quot; no es una longitud posible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; gives a pair two far ends</source>
        <translation>&quot;%1&quot; da a un par dos extremos lejanos</translation>
    </message>
    <message>
        <source>the curve does not consist of %1 numbers</source>
        <translation>la curva no consta de %1 números</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>&quot;%1&quot; no es un número</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>no existe el archivo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the folder of the table</source>
        <translation>&quot;%1&quot; no está en la carpeta de la tabla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 MB</source>
        <translation>&quot;%1&quot; es mayor que 64 MB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256</source>
        <translation>&quot;%1&quot; no es un SHA-256</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is another file than that of the test</source>
        <translation>&quot;%1&quot; es un archivo distinto del de la prueba</translation>
    </message>
    <message>
        <source>%1: another column has the heading &quot;%2&quot;</source>
        <translation>%1: otra columna tiene el encabezado &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>ResultsStatus</name>
    <message>
        <source>the cable is not tested</source>
        <translation>el cable no se ha probado</translation>
    </message>
    <message>
        <source>the test has failed</source>
        <translation>la prueba no se ha superado</translation>
    </message>
    <message>
        <source>the verdict &quot;%1&quot; is not known</source>
        <translation>el veredicto &quot;%1&quot; no se conoce</translation>
    </message>
    <message>
        <source>tests: %1, earlier tests that failed: %2</source>
        <translation>pruebas: %1, pruebas anteriores no superadas: %2</translation>
    </message>
    <message>
        <source>the test has no time</source>
        <translation>la prueba no tiene hora</translation>
    </message>
    <message>
        <source>the time &quot;%1&quot; cannot be read</source>
        <translation>la hora &quot;%1&quot; no se puede leer</translation>
    </message>
    <message>
        <source>the test is of %1, before %2</source>
        <translation>la prueba es de %1, antes de %2</translation>
    </message>
    <message>
        <source>pair %1 is %2 long, the maximum length of &quot;%3&quot; is %4</source>
        <translation>el par %1 mide %2, la longitud máxima de &quot;%3&quot; es %4</translation>
    </message>
    <message>
        <source>the skew is %1 ns, the maximum skew of &quot;%2&quot; is %3 ns</source>
        <translation>el desfase es de %1 ns, el máximo de &quot;%2&quot; es de %3 ns</translation>
    </message>
    <message>
        <source>pair %1 is wired to %2, and must be wired to %3 in &quot;%4&quot;</source>
        <translation>el par %1 está conectado a %2 y, según &quot;%4&quot;, debe estarlo a %3</translation>
    </message>
</context>
<context>
    <name>Schedule</name>
    <message>
        <source>%1 has no list of cables or no list of floors</source>
        <translation>%1 no tiene lista de cables o no tiene lista de plantas</translation>
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
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>no hay ninguna definición de prueba &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown use &quot;%1&quot;</source>
        <translation>uso desconocido &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no cable ends in &quot;%1&quot; any more</source>
        <translation>ya no termina ningún cable en &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no cable ends at &quot;%1&quot; any more</source>
        <translation>ya no llega ningún cable a &quot;%1&quot;</translation>
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
    <name>Table</name>
    <message>
        <source>the sheets have no scale for feet or metres</source>
        <translation>las hojas no tienen escala para pies o metros</translation>
    </message>
    <message>
        <source>the floor plans have no scale for feet or metres</source>
        <translation>los planos de planta no tienen escala para pies o metros</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; occurs twice</source>
        <translation>la columna &quot;%1&quot; está repetida</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;</source>
        <translation>no hay ninguna columna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>falta la columna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the row has more fields than the heading</source>
        <translation>la fila tiene más campos que el encabezado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; tiene un carácter que un archivo no puede contener</translation>
    </message>
    <message>
        <source>the row has no id</source>
        <translation>la fila no tiene identificador</translation>
    </message>
    <message>
        <source>the row does not say where the element is</source>
        <translation>la fila no dice dónde está el elemento</translation>
    </message>
    <message>
        <source>the room &quot;Undefined&quot; cannot be changed</source>
        <translation>la sala &quot;Undefined&quot; no se puede cambiar</translation>
    </message>
    <message>
        <source>the row does not give a new_id</source>
        <translation>la fila no indica new_id</translation>
    </message>
    <message>
        <source>the row does not say where the element is moved to</source>
        <translation>la fila no dice adónde se mueve el elemento</translation>
    </message>
    <message>
        <source>an element that is added or removed cannot be renamed or moved</source>
        <translation>un elemento que se añade o se elimina no se puede renombrar ni mover</translation>
    </message>
    <message>
        <source>test definition</source>
        <translation>definición de prueba</translation>
    </message>
    <message>
        <source>bundle</source>
        <translation>haz</translation>
    </message>
    <message>
        <source>floor</source>
        <translation>planta</translation>
    </message>
    <message>
        <source>room</source>
        <translation>sala</translation>
    </message>
    <message>
        <source>port</source>
        <translation>toma</translation>
    </message>
    <message>
        <source>vertical run</source>
        <translation>montante</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>hoja</translation>
    </message>
    <message>
        <source>device</source>
        <translation>dispositivo</translation>
    </message>
    <message>
        <source>bend</source>
        <translation>codo</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>conexión</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>cable</translation>
    </message>
    <message>
        <source>active port</source>
        <translation>toma activa</translation>
    </message>
    <message>
        <source>release</source>
        <translation>revisión</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is already used</source>
        <translation>el nombre &quot;%1&quot; ya se usa</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>no existe: %1</translation>
    </message>
    <message>
        <source>add %1</source>
        <translation>añadir %1</translation>
    </message>
    <message>
        <source>rename %1 to &quot;%2&quot;</source>
        <translation>renombrar %1 como &quot;%2&quot;</translation>
    </message>
    <message>
        <source>move %1 to &quot;%2&quot;</source>
        <translation>mover %1 a &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there already is a different %1</source>
        <translation>ya existe con otros valores: %1</translation>
    </message>
    <message>
        <source>change %1: %2</source>
        <translation>cambiar %1: %2</translation>
    </message>
    <message>
        <source>remove %1</source>
        <translation>eliminar %1</translation>
    </message>
    <message>
        <source> with its cables: %1</source>
        <translation> con sus cables: %1</translation>
    </message>
    <message>
        <source>there is no %1 &quot;%2&quot;</source>
        <translation>no existe: %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of an element</source>
        <translation>&quot;%1&quot; no puede ser el nombre de un elemento</translation>
    </message>
    <message>
        <source>a job can hold at most %1 releases</source>
        <translation>un trabajo no contiene más de %1 revisiones</translation>
    </message>
    <message>
        <source>the tag &quot;%1&quot; is already used</source>
        <translation>la etiqueta &quot;%1&quot; ya se usa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid here</source>
        <translation>&quot;%1&quot; no es válido aquí</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number in the range of this column</source>
        <translation>&quot;%1&quot; no es un número entero en el intervalo de esta columna</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number in the range of this column</source>
        <translation>&quot;%1&quot; no es un número en el intervalo de esta columna</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither 1 nor 0</source>
        <translation>&quot;%1&quot; no es ni 1 ni 0</translation>
    </message>
    <message>
        <source>there is no point, port or vertical run &quot;%1&quot;</source>
        <translation>no hay ningún punto, toma ni montante &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no vertical run &quot;%1&quot;</source>
        <translation>no hay ningún montante &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a bundle can have at most %1 types</source>
        <translation>un haz puede tener como máximo %1 tipos</translation>
    </message>
    <message>
        <source>there is no test definition &quot;%1&quot;</source>
        <translation>no hay ninguna definición de prueba &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no device or bend &quot;%1&quot;</source>
        <translation>no hay ningún dispositivo ni codo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port or vertical run &quot;%1&quot;</source>
        <translation>no hay ninguna toma ni montante &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no port &quot;%1&quot;</source>
        <translation>no hay ninguna toma &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no bundle &quot;%1&quot;</source>
        <translation>no hay ningún haz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour</source>
        <translation>&quot;%1&quot; no es un color</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of add, change, rename, move and remove</source>
        <translation>&quot;%1&quot; no es add, change, rename, move ni remove</translation>
    </message>
    <message>
        <source>row %1 already uses the name &quot;%2&quot;</source>
        <translation>la fila %1 ya usa el nombre &quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown use &quot;%1&quot;</source>
        <translation>uso desconocido &quot;%1&quot;</translation>
    </message>
    <message>
        <source>row %1 already changes this: %2</source>
        <translation>la fila %1 ya cambia esto: %2</translation>
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
    <name>Values</name>
    <message>
        <source>&quot;%1&quot; is not a scale such as 1:100 or &quot;20 ft&quot; (to the inch), nor &quot;none&quot;</source>
        <translation>&quot;%1&quot; no es una escala como 1:100 o &quot;20 ft&quot; (por pulgada), ni &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a page such as A3 or &quot;17 x 11&quot; (in inches), nor &quot;none&quot;</source>
        <translation>&quot;%1&quot; no es una página como A3 o &quot;17 x 11&quot; (en pulgadas), ni &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a file cannot hold</source>
        <translation>&quot;%1&quot; tiene un carácter que un archivo no puede contener</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that %2 can have</source>
        <translation>&quot;%1&quot; no es un número que %2 pueda tener</translation>
    </message>
    <message>
        <source>there is no value &quot;%1&quot;</source>
        <translation>no hay ningún valor &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>&quot;%1&quot; no es un número entero</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the paper sizes: %2</source>
        <translation>&quot;%1&quot; no es uno de los tamaños de papel: %2</translation>
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
