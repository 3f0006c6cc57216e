<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>Botones y textos</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Hacer una captura de pantalla</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>A long text takes a second line</source>
        <translation>Un texto largo ocupa dos líneas</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>The title of a page</source>
        <translation>El título de una página</translation>
    </message>
    <message>
        <source>The heading of a card</source>
        <translation>El encabezado de una tarjeta</translation>
    </message>
    <message>
        <source>A text that people read, which wraps where the line ends.</source>
        <translation>Un texto para leer, que pasa a la línea siguiente.</translation>
    </message>
    <message>
        <source>A text of less importance.</source>
        <translation>Un texto menos importante.</translation>
    </message>
    <message>
        <source>A label, which ends in an ellipsis where there is no room for it</source>
        <translation>Una etiqueta, que acaba en puntos suspensivos si no hay sitio</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Iconos</translation>
    </message>
</context>
<context>
    <name>CablePage</name>
    <message>
        <source>Cable test</source>
        <translation>Prueba de cable</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cable test, %1</source>
        <translation>Prueba de cable, %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
</context>
<context>
    <name>ChangesPage</name>
    <message>
        <source>Changes that wait</source>
        <translation>Cambios pendientes</translation>
    </message>
    <message>
        <source>Nothing is sent before Apply</source>
        <translation>No se envía nada antes de «Aplicar»</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>Revertir todo</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Revisión</translation>
    </message>
</context>
<context>
    <name>DatesPage</name>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked; passed on as ISO 8601</source>
        <translation>Escritas según el país, o elegidas; se entregan como ISO 8601</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Elementos de esta página</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Vence</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Values of this page</source>
        <translation>Valores de esta página</translation>
    </message>
    <message>
        <source>Next calibration</source>
        <translation>Próxima calibración</translation>
    </message>
    <message>
        <source>In this year</source>
        <translation>En este año</translation>
    </message>
    <message>
        <source>Passed on: %1</source>
        <translation>Entregado: %1</translation>
    </message>
</context>
<context>
    <name>EntriesPage</name>
    <message>
        <source>Entries</source>
        <translation>Campos</translation>
    </message>
    <message>
        <source>ItemEntry over items of the optical service</source>
        <translation>ItemEntry para los elementos del servicio óptico</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Gallery</source>
        <translation>Galería</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>light</source>
        <translation>claro</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>oscuro</translation>
    </message>
    <message>
        <source>sunlight</source>
        <translation>sol</translation>
    </message>
</context>
<context>
    <name>GroupsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>Botones y textos</translation>
    </message>
    <message>
        <source>Buttons, icons, cards and the sizes of texts</source>
        <translation>Botones, iconos, tarjetas y tamaños de texto</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listas</translation>
    </message>
    <message>
        <source>Rows, sections and what stands there when a list is empty</source>
        <translation>Filas, secciones y lo que muestra una lista vacía</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Campos</translation>
    </message>
    <message>
        <source>The entry for every kind of item</source>
        <translation>El campo para cada tipo de elemento</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Opciones y números</translation>
    </message>
    <message>
        <source>Segments, steppers and sliders that keep an item&apos;s limits</source>
        <translation>Segmentos, pasos y deslizadores dentro de los límites del elemento</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked</source>
        <translation>Escritas según el país, o elegidas</translation>
    </message>
    <message>
        <source>Status and messages</source>
        <translation>Estado y mensajes</translation>
    </message>
    <message>
        <source>Verdicts, progress, problems and services that are away</source>
        <translation>Resultados, avance, problemas y servicios ausentes</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>The stack of pages, tabs and the line at the top</source>
        <translation>La pila de páginas, las pestañas y la línea superior</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>Cambios pendientes</translation>
    </message>
    <message>
        <source>What is applied together, each change with what became of it</source>
        <translation>Lo que se aplica junto, cada cambio con su estado</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Lists</source>
        <translation>Listas</translation>
    </message>
    <message>
        <source>Rows of 11 mm and more, which may touch</source>
        <translation>Filas de 11 mm o más, que pueden tocarse</translation>
    </message>
    <message>
        <source>JOB-4711, 3 tests</source>
        <translation>JOB-4711, 3 pruebas</translation>
    </message>
    <message>
        <source>JOB-4712, 1 test</source>
        <translation>JOB-4712, 1 prueba</translation>
    </message>
    <message>
        <source>JOB-4713, 8 tests</source>
        <translation>JOB-4713, 8 pruebas</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>A section whose contents fold away</source>
        <translation>Una sección que se pliega</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>being copied</source>
        <translation>copiándose</translation>
    </message>
    <message>
        <source>No screenshots</source>
        <translation>No hay capturas de pantalla</translation>
    </message>
    <message>
        <source>Tap the camera at the top of a page to keep what it shows.</source>
        <translation>Toque la cámara en lo alto de una página para guardar lo que muestra.</translation>
    </message>
    <message>
        <source>Take one</source>
        <translation>Hacer una</translation>
    </message>
</context>
<context>
    <name>NumbersPage</name>
    <message>
        <source>Choices and numbers</source>
        <translation>Opciones y números</translation>
    </message>
    <message>
        <source>A gesture writes one value, within the limits of the item</source>
        <translation>Un gesto escribe un valor, dentro de los límites del elemento</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>Elementos de un servicio</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Elementos de esta página</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Repeticiones</translation>
    </message>
    <message>
        <source>Brightness in per cent</source>
        <translation>Brillo en por ciento</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>Solo fallos</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Elegido: %1</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page %1 of the stack</source>
        <translation>Página %1 de la pila</translation>
    </message>
    <message>
        <source>The footer stays where it is.</source>
        <translation>El pie de página se queda en su sitio.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Tabs above the contents. The arrow keys go from tab to tab.</source>
        <translation>Pestañas sobre el contenido. Las flechas van de una pestaña a otra.</translation>
    </message>
    <message>
        <source>Tabs below the contents are the navigation of a program.</source>
        <translation>Las pestañas bajo el contenido son la navegación de un programa.</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Medición</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
</context>
<context>
    <name>StatusPage</name>
    <message>
        <source>Status and messages</source>
        <translation>Estado y mensajes</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Tiempo de ida y vuelta</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Caudal</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Atenuación</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Let the service return</source>
        <translation>Hacer volver el servicio</translation>
    </message>
    <message>
        <source>Let the service vanish</source>
        <translation>Hacer desaparecer el servicio</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avance</translation>
    </message>
    <message>
        <source>42 of 100 samples, 12 s left</source>
        <translation>42 de 100 muestras, quedan 12 s</translation>
    </message>
    <message>
        <source>Waiting for the far end</source>
        <translation>Esperando al extremo remoto</translation>
    </message>
    <message>
        <source>Problems, where they are</source>
        <translation>Los problemas, donde están</translation>
    </message>
    <message>
        <source>The name may have 50 characters, it has 86.</source>
        <translation>El nombre puede tener 50 caracteres, tiene 86.</translation>
    </message>
    <message>
        <source>The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.</source>
        <translation>La unidad está llena. Elimine archivos o guarde en la unidad USB; hasta entonces, lo medido queda como borrador.</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Site</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Atenuación</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Repeticiones</translation>
    </message>
    <message>
        <source>Server (either version)</source>
        <translation>Servidor (ambas versiones)</translation>
    </message>
    <message>
        <source>Unit address</source>
        <translation>Dirección del equipo</translation>
    </message>
    <message>
        <source>Unit address, version 6</source>
        <translation>Dirección del equipo, versión 6</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Upload to</source>
        <translation>Subir a</translation>
    </message>
    <message>
        <source>Report file</source>
        <translation>Archivo del informe</translation>
    </message>
    <message>
        <source>Upload password</source>
        <translation>Contraseña de subida</translation>
    </message>
    <message>
        <source>Call back</source>
        <translation>Devolver la llamada</translation>
    </message>
    <message>
        <source>Cabinet code</source>
        <translation>Código del armario</translation>
    </message>
    <message>
        <source>Test pattern (hexadecimal)</source>
        <translation>Patrón de prueba (hexadecimal)</translation>
    </message>
    <message>
        <source>File mode (octal)</source>
        <translation>Modo del archivo (octal)</translation>
    </message>
    <message>
        <source>Alarm lines (binary)</source>
        <translation>Líneas de alarma (binario)</translation>
    </message>
    <message>
        <source>Test time</source>
        <translation>Duración de la prueba</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <translation>Zumbador</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>Conector</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Recto</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>En ángulo</translation>
    </message>
    <message>
        <source>Bare fiber</source>
        <translation>Fibra desnuda</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>Puntos de referencia</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>Elementos de un servicio</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Elementos de esta página</translation>
    </message>
</context>
</TS>
