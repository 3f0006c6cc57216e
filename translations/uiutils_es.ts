<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>ActionForm</name>
    <message>
        <source>Argument</source>
        <translation>Argumento</translation>
    </message>
    <message>
        <source>Carry out</source>
        <translation>Ejecutar</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. Name another folder.</source>
        <translation>El nombre de la carpeta %1, indicado con --root o UIUTILS_ROOT, no está escrito en la codificación de los nombres de archivo. Indique otra carpeta.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Try --help for the options.</source>
        <translation>Pruebe --help para ver las opciones.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Publish the services described in &lt;folder&gt;; may be given more than once (default: %1).</source>
        <translation>Publicar los servicios descritos en &lt;folder&gt;; se puede indicar varias veces (predeterminado: %1).</translation>
    </message>
    <message>
        <source>--%1 needs a name.</source>
        <translation>--%1 necesita un nombre.</translation>
    </message>
    <message>
        <source>Show what a screen of that size and density shows, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, such as 800x480@133 (default: %1).</source>
        <translation>Mostrar lo que muestra una pantalla de ese tamaño y densidad, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, por ejemplo 800x480@133 (predeterminado: %1).</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>pantalla</translation>
    </message>
    <message>
        <source>--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as 1024x600@170.</source>
        <translation>--screen necesita un tamaño de %1 a %2 píxeles y una densidad de %3 a %4 puntos por pulgada, por ejemplo 1024x600@170.</translation>
    </message>
    <message>
        <source>--from needs a number of seconds.</source>
        <translation>--from necesita un número de segundos.</translation>
    </message>
    <message>
        <source>--speed needs a number from 0.001 to 1000000.</source>
        <translation>--speed necesita un número de 0.001 a 1000000.</translation>
    </message>
</context>
<context>
    <name>ControlsStyle</name>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>No conforme</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>Measures TCP over this machine&apos;s loopback interface and saves a report of it, the way a test application of the instrument does.
With a display a window opens. Without one, or with --tour, the program runs by itself.

Exit status: 0 done, 1 failed, 2 wrong command line.</source>
        <translation>Mide TCP por la interfaz de bucle de esta máquina y guarda un informe, como lo hace una aplicación de prueba del equipo.
Con una pantalla se abre una ventana. Sin ella, o con --tour, el programa se ejecuta solo.

Código de salida: 0 hecho, 1 ha fallado, 2 línea de órdenes incorrecta.</translation>
    </message>
    <message>
        <source>Keep everything that is written below &lt;folder&gt; (default: %1).</source>
        <translation>Guardar todo lo que se escribe bajo &lt;folder&gt; (predeterminado: %1).</translation>
    </message>
    <message>
        <source>Take &lt;number&gt; samples of each quantity, %1 to %2 (default: as the settings say).</source>
        <translation>Tomar &lt;number&gt; muestras de cada magnitud, de %1 a %2 (predeterminado: según los ajustes).</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>Measure, save a report, take a picture of each page and quit.</source>
        <translation>Medir, guardar un informe, tomar una imagen de cada página y salir.</translation>
    </message>
    <message>
        <source>Wait until another application changes the user&apos;s name, the services end and return; take a picture of each and quit. Needs KIV_PLATFORM=bus.</source>
        <translation>Esperar a que otra aplicación cambie el nombre del usuario y a que los servicios terminen y vuelvan; tomar una imagen de cada paso y salir. Necesita KIV_PLATFORM=bus.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Argumento inesperado «%1».</translation>
    </message>
    <message>
        <source>--samples needs a number from %1 to %2.</source>
        <translation>--samples necesita un número de %1 a %2.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created, because %2 is a file. Name another folder with --root.</source>
        <translation>No se puede crear la carpeta %1 porque %2 es un archivo. Indique otra carpeta con --root.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created in %2. Check that you may write there, or name another folder with --root.</source>
        <translation>No se puede crear la carpeta %1 en %2. Compruebe que puede escribir allí, o indique otra carpeta con --root.</translation>
    </message>
    <message>
        <source>Everything is written below %1</source>
        <translation>Todo se escribe bajo %1</translation>
    </message>
    <message>
        <source>The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>No se pudo cargar la página principal por el motivo indicado arriba. Compruebe que están instalados los módulos QML QtQuick, QtQuick.Controls, QtQuick.Layouts y QtQuick.Window.</translation>
    </message>
    <message>
        <source>Pictures:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>Informes:</translation>
    </message>
    <message>
        <source>Screenshots:</source>
        <translation>Capturas de pantalla:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>Texts were typed on the on-screen keyboard.</source>
        <translation>Los textos se escribieron con el teclado en pantalla.</translation>
    </message>
</context>
<context>
    <name>DeskDrawer</name>
    <message>
        <source>Desk</source>
        <translation>Taller</translation>
    </message>
    <message>
        <source>What happens to an instrument in the field, at the press of a button.</source>
        <translation>Lo que le pasa a un equipo en campo, con pulsar un botón.</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>Unidad USB</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Pull unnoticed</source>
        <translation>Quitar sin aviso</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Make space</source>
        <translation>Liberar espacio</translation>
    </message>
    <message>
        <source>Fill the disk</source>
        <translation>Llenar el disco</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Drain the battery</source>
        <translation>Descargar batería</translation>
    </message>
    <message>
        <source>Charge the battery</source>
        <translation>Cargar batería</translation>
    </message>
    <message>
        <source>Cut the link</source>
        <translation>Cortar el enlace</translation>
    </message>
    <message>
        <source>Restore the link</source>
        <translation>Restaurar el enlace</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Servicios</translation>
    </message>
    <message>
        <source>They live in another process.</source>
        <translation>Se ejecutan en otro proceso.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lento</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>Desaparecer</translation>
    </message>
    <message>
        <source>Inspector (F12)</source>
        <translation>Inspector (F12)</translation>
    </message>
</context>
<context>
    <name>DigitsEntry</name>
    <message>
        <source>Only digits can be used here</source>
        <translation>Aquí solo se admiten dígitos</translation>
    </message>
</context>
<context>
    <name>DurableFile</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>The path holds a NUL character</source>
        <translation>La ruta contiene un carácter NUL</translation>
    </message>
    <message>
        <source>Cannot create a file in the folder of %1: %2</source>
        <translation>No se puede crear un archivo en la carpeta de %1: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>No se puede reemplazar %1: %2</translation>
    </message>
    <message>
        <source>Cannot make sure that %1 survives a power cut: %2</source>
        <translation>No se puede garantizar que %1 sobreviva a un corte de corriente: %2</translation>
    </message>
</context>
<context>
    <name>DurationEntry</name>
    <message>
        <source>Hours, minutes and seconds, such as 1:30:00</source>
        <translation>Horas, minutos y segundos, por ejemplo 1:30:00</translation>
    </message>
    <message>
        <source>This is too long</source>
        <translation>Es demasiado largo</translation>
    </message>
</context>
<context>
    <name>Entry</name>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>No está listo</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>Obligatorio</translation>
    </message>
</context>
<context>
    <name>FieldEntry</name>
    <message>
        <source>chars</source>
        <translation>caract.</translation>
    </message>
    <message>
        <source>This must be filled in</source>
        <translation>Este campo es obligatorio</translation>
    </message>
    <message>
        <source>This does not have the required form</source>
        <translation>No tiene la forma requerida</translation>
    </message>
    <message>
        <source>Changed meanwhile to %1</source>
        <translation>Cambiado entretanto a %1</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>otro valor</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>Ocultar %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Mostrar %1</translation>
    </message>
    <message>
        <source>Number pad for %1</source>
        <translation>Teclado numérico para %1</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>No está listo</translation>
    </message>
</context>
<context>
    <name>FileDetailsPage</name>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Copy to USB</source>
        <translation>Copiar a USB</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, comprimido</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>The list of reports that stay here cannot be used.</source>
        <translation>No se puede usar la lista de informes que se quedan aquí.</translation>
    </message>
    <message>
        <source>The cloud may take it.</source>
        <translation>La nube puede tomarlo.</translation>
    </message>
    <message>
        <source>It stays on the unit.</source>
        <translation>Se queda en el equipo.</translation>
    </message>
    <message>
        <source>Keep here</source>
        <translation>Conservar aquí</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Ficha</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
</context>
<context>
    <name>FileSystemUsage</name>
    <message>
        <source>Not Enough Space</source>
        <translation>Espacio insuficiente</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>Directory</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>I/O Error</source>
        <translation>Error de E/S</translation>
    </message>
    <message>
        <source>Drive %1 is full</source>
        <translation>La unidad %1 está llena</translation>
    </message>
    <message>
        <source>Read Error</source>
        <translation>Error de lectura</translation>
    </message>
    <message>
        <source>There was an error reading %1</source>
        <translation>Se produjo un error al leer %1</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>Error de escritura</translation>
    </message>
    <message>
        <source>There was an error writing to %1</source>
        <translation>Se produjo un error al escribir %1</translation>
    </message>
    <message>
        <source>Not enough disk space for %1 - would need %2</source>
        <translation>No hay espacio suficiente para %1: se necesitan %2</translation>
    </message>
    <message>
        <source>Not Enough Space</source>
        <translation>Espacio insuficiente</translation>
    </message>
    <message>
        <source>Do you want to overwrite all files/directories?</source>
        <translation>¿Desea sobrescribir todos los archivos y carpetas?</translation>
    </message>
    <message>
        <source>Do you want to overwrite %1 %2?</source>
        <translation>¿Desea sobrescribir %1 %2?</translation>
    </message>
    <message>
        <source>File Exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Do you want to delete these %1 files?</source>
        <translation>¿Desea eliminar estos %1 archivos?</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 %2?</source>
        <translation>¿Desea eliminar %1 %2?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar: %1</translation>
    </message>
    <message>
        <source>Report Exists</source>
        <translation>El informe ya existe</translation>
    </message>
    <message>
        <source>Do you want to overwrite report %1?</source>
        <translation>¿Desea sobrescribir el informe %1?</translation>
    </message>
    <message>
        <source>Do you want to overwrite screenshot %1?</source>
        <translation>¿Desea sobrescribir la captura de pantalla %1?</translation>
    </message>
    <message>
        <source>Internal:</source>
        <translation>Interna:</translation>
    </message>
    <message>
        <source>USB:</source>
        <translation>USB:</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>control characters</source>
        <translation>caracteres de control</translation>
    </message>
    <message>
        <source>The name may have %1 characters, it has %2</source>
        <translation>El nombre puede tener %1 caracteres, tiene %2</translation>
    </message>
    <message>
        <source>The name must not contain %1</source>
        <translation>El nombre no debe contener %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file name</source>
        <translation>«%1» no es un nombre de archivo</translation>
    </message>
    <message>
        <source>The name is empty</source>
        <translation>El nombre está vacío</translation>
    </message>
    <message>
        <source>The name must not begin with a space</source>
        <translation>El nombre no debe empezar por un espacio</translation>
    </message>
    <message>
        <source>The name must not end with a space</source>
        <translation>El nombre no debe acabar en un espacio</translation>
    </message>
    <message>
        <source>The name must not end with a point</source>
        <translation>El nombre no debe acabar en un punto</translation>
    </message>
    <message>
        <source>Computers do not allow the name &quot;%1&quot;</source>
        <translation>Los ordenadores no admiten el nombre «%1»</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n captura</numerusform>
            <numerusform>%n capturas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>%n informe</numerusform>
            <numerusform>%n informes</numerusform>
        </translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Name or format</source>
        <translation>Nombre o formato</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, comprimido</translation>
    </message>
    <message>
        <source>No report is found</source>
        <translation>No se encontró ningún informe</translation>
    </message>
    <message>
        <source>There is no USB drive</source>
        <translation>No hay unidad USB</translation>
    </message>
    <message>
        <source>Nothing is saved yet</source>
        <translation>Aún no hay nada guardado</translation>
    </message>
    <message>
        <source>There are no screenshots</source>
        <translation>No hay capturas de pantalla</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>%1, %2 % of the drive in use</source>
        <translation>%1, %2 % de la unidad en uso</translation>
    </message>
</context>
<context>
    <name>FontTexts</name>
    <message>
        <source>The font is broken</source>
        <translation>La fuente está dañada</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Choose a job.</source>
        <translation>Elija un trabajo.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Measure. The set-up is ready.</source>
        <translation>Mida. La configuración está lista.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medir</translation>
    </message>
    <message>
        <source>Save the report of this run.</source>
        <translation>Guarde el informe de esta medición.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>The report is saved. Take the next job.</source>
        <translation>El informe está guardado. Pase al siguiente trabajo.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Trabajos</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Sin trabajo</translation>
    </message>
    <message>
        <source>No job is open. Results are saved without one.</source>
        <translation>No hay ningún trabajo abierto. Los resultados se guardan sin trabajo.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Sin guardar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Results of %1 were not saved.</source>
        <translation>Los resultados de %1 no se guardaron.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Aún sin aplicar</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicado</translation>
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
        <source>%1 samples</source>
        <translation>%1 muestras</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aún ninguno</translation>
    </message>
    <message>
        <source>Nothing to save</source>
        <translation>Nada que guardar</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>All that is saved</source>
        <translation>Todo lo guardado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Of the unit</source>
        <translation>Del equipo</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>KIV_PLATFORM is &quot;%1&quot;. Set it to &quot;embedded&quot; or &quot;bus&quot;, or leave it out.</source>
        <translation>KIV_PLATFORM es «%1». Póngalo en «embedded» o «bus», o quítelo.</translation>
    </message>
    <message>
        <source>No service could be loaded from %1. Name a folder with service files, with --services where the program has that option, or with KIV_SERVICES.</source>
        <translation>No se pudo cargar ningún servicio de %1. Indique una carpeta con archivos de servicio con --services, si el programa tiene esa opción, o con KIV_SERVICES.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>Reports have no icons: the folder %1 cannot be created. Check that you may write there.</source>
        <translation>Los informes no tienen iconos: no se puede crear la carpeta %1. Compruebe que puede escribir en ella.</translation>
    </message>
    <message>
        <source>Reports have no icons: those of the library are not installed.</source>
        <translation>Los informes no tienen iconos: los de la biblioteca no están instalados.</translation>
    </message>
    <message>
        <source>An image of reports is missing. %1</source>
        <translation>Falta una imagen de los informes. %1</translation>
    </message>
    <message>
        <source>There is no service %1.</source>
        <translation>No existe el servicio %1.</translation>
    </message>
    <message>
        <source>There is no service on the bus yet. Start kivd; its services are shown when they come.</source>
        <translation>Aún no hay ningún servicio en el bus. Inicie kivd; sus servicios se muestran cuando aparecen.</translation>
    </message>
    <message>
        <source>Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may write there.</source>
        <translation>No se pueden mostrar los informes guardados: no se puede crear el enlace %1 al visor de PDF. Compruebe que puede escribir allí.</translation>
    </message>
    <message>
        <source>KIV_SIMULATION is &quot;%1&quot;. Set it to &quot;on&quot; or &quot;off&quot;, or leave it out.</source>
        <translation>KIV_SIMULATION es «%1». Póngalo en «on» u «off», o quítelo.</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Passing</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Failing</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>The service has come</source>
        <translation>El servicio ha llegado</translation>
    </message>
    <message>
        <source>The service has gone</source>
        <translation>El servicio se ha ido</translation>
    </message>
    <message>
        <source>The item has come</source>
        <translation>El elemento ha llegado</translation>
    </message>
    <message>
        <source>The item has gone</source>
        <translation>El elemento se ha ido</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>No listo</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>Aplicable</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>No aplicable</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>Disponibilidad</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Applicability</source>
        <translation>Aplicabilidad</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Rejected by hand</source>
        <translation>Rechazado a mano</translation>
    </message>
    <message>
        <source>The service does not live here.</source>
        <translation>El servicio no se ejecuta aquí.</translation>
    </message>
    <message>
        <source>The item cannot have this value.</source>
        <translation>El elemento no puede tener este valor.</translation>
    </message>
    <message>
        <source>The item cannot have these limits.</source>
        <translation>El elemento no puede tener estos límites.</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>%n campo</numerusform>
            <numerusform>%n campos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 changes in %3 s</source>
        <translation>%1: %2 cambios en %3&#xa0;s</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Servicios</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
</context>
<context>
    <name>Instrument</name>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Configuración</translation>
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
    <name>InstrumentBar</name>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Sin trabajo</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>Unidad USB</translation>
    </message>
    <message>
        <source>No USB drive</source>
        <translation>Sin unidad USB</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Caído</translation>
    </message>
    <message>
        <source>%1 G</source>
        <translation>%1 G</translation>
    </message>
    <message>
        <source>%1 M</source>
        <translation>%1 M</translation>
    </message>
    <message>
        <source>Battery, charging</source>
        <translation>Batería, cargando</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
</context>
<context>
    <name>ItemDetails</name>
    <message>
        <source>No item chosen</source>
        <translation>Ningún elemento elegido</translation>
    </message>
    <message>
        <source>Choose one in the list.</source>
        <translation>Elija uno de la lista.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
</context>
<context>
    <name>ItemFace</name>
    <message>
        <source>The entry was rejected.</source>
        <translation>La entrada fue rechazada.</translation>
    </message>
</context>
<context>
    <name>ItemHands</name>
    <message>
        <source>By hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>What a service reports can be set by hand where the service lives in this process. This one lives in another.</source>
        <translation>Lo que informa un servicio se puede fijar a mano si el servicio se ejecuta en este proceso. Este se ejecuta en otro.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>Aplicable</translation>
    </message>
    <message>
        <source>The service decides by an expression.</source>
        <translation>El servicio decide con una expresión.</translation>
    </message>
    <message>
        <source>Value that the service reports</source>
        <translation>Valor que informa el servicio</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>Más corto</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Más largo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
</context>
<context>
    <name>ItemHistory</name>
    <message>
        <source>No values yet</source>
        <translation>Aún no hay valores</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>Historial de %1</translation>
    </message>
</context>
<context>
    <name>ItemStepper</name>
    <message>
        <source>Less: %1</source>
        <translation>Menos: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>Más: %1</translation>
    </message>
</context>
<context>
    <name>ItemsPage</name>
    <message>
        <source>Search items</source>
        <translation>Buscar elementos</translation>
    </message>
    <message>
        <source>Favourites only</source>
        <translation>Solo favoritos</translation>
    </message>
    <message>
        <source>%1 of %2 items</source>
        <translation>%1 de %2 elementos</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Remove %1 from the favourites</source>
        <translation>Quitar %1 de los favoritos</translation>
    </message>
    <message>
        <source>Add %1 to the favourites</source>
        <translation>Añadir %1 a los favoritos</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Ningún elemento</translation>
    </message>
    <message>
        <source>The items are shown when their services come.</source>
        <translation>Los elementos se muestran cuando llegan sus servicios.</translation>
    </message>
    <message>
        <source>No item matches the search.</source>
        <translation>Ningún elemento coincide con la búsqueda.</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Planned</source>
        <translation>Planificado</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Apply or revert the set-up first: it would be applied with the job.</source>
        <translation>Aplique o revierta antes la configuración: se aplicaría con el trabajo.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Trabajos</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n trabajo</numerusform>
            <numerusform>%n trabajos</numerusform>
        </translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Job, customer or circuit</source>
        <translation>Trabajo, cliente o circuito</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abiertos</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>No job is found</source>
        <translation>No se encontró ningún trabajo</translation>
    </message>
    <message>
        <source>There are no jobs</source>
        <translation>No hay trabajos</translation>
    </message>
    <message>
        <source>Other words, or all jobs, may find one.</source>
        <translation>Con otras palabras, o con todos los trabajos, quizá se encuentre alguno.</translation>
    </message>
    <message>
        <source>The services of jobs and of the unit are not published.</source>
        <translation>Los servicios de trabajos y del equipo no están publicados.</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>KivAggregateData</name>
    <message>
        <source>%1 has no member %2.</source>
        <translation>%1 no tiene el miembro %2.</translation>
    </message>
</context>
<context>
    <name>KivData</name>
    <message>
        <source>%1 max chars</source>
        <translation>máx. %1 caract.</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 caract.</translation>
    </message>
    <message>
        <source>%1 - %2 chars</source>
        <translation>%1 – %2 caract.</translation>
    </message>
    <message>
        <source>%1 max digits</source>
        <translation>máx. %1 dígitos</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 dígitos</translation>
    </message>
    <message>
        <source>%1 - %2 digits</source>
        <translation>%1 – %2 dígitos</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>solo %1</translation>
    </message>
    <message>
        <source>Please enter IP address</source>
        <translation>Introduzca la dirección IP</translation>
    </message>
    <message>
        <source>Please enter IPv6 address</source>
        <translation>Introduzca la dirección IPv6</translation>
    </message>
    <message>
        <source>Please enter URL</source>
        <translation>Introduzca la URL</translation>
    </message>
    <message>
        <source>Please enter DNS name</source>
        <translation>Introduzca el nombre DNS</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>No native speaker has checked this translation.</source>
        <translation>Ningún hablante nativo ha revisado esta traducción.</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in that language.</extracomment>
        <translation>Español</translation>
    </message>
</context>
<context>
    <name>ListEntry</name>
    <message>
        <source>New element of %1</source>
        <translation>Nuevo elemento de %1</translation>
    </message>
    <message>
        <source>Element %1 of %2</source>
        <translation>Elemento %1 de %2</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>No está listo</translation>
    </message>
    <message>
        <source>chars</source>
        <translation>caract.</translation>
    </message>
    <message>
        <source>Remove element %1 of %2</source>
        <translation>Quitar el elemento %1 de %2</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Añadir a %1</translation>
    </message>
</context>
<context>
    <name>LivePlot</name>
    <message>
        <source>%1: no data</source>
        <translation>%1: sin datos</translation>
    </message>
    <message>
        <source>%1: %2 to %3, from %4 to %5</source>
        <translation>%1: %2 a %3, de %4 a %5</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>No conforme</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Marginal</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>At the cursor: %1.</source>
        <translation>En el cursor: %1.</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>No changes yet</source>
        <translation>Aún no hay cambios</translation>
    </message>
    <message>
        <source>What services report is shown as it comes.</source>
        <translation>Lo que informan los servicios se muestra al instante.</translation>
    </message>
    <message>
        <source>Changes: %L1</source>
        <translation>Cambios: %L1</translation>
    </message>
    <message>
        <source>fallen out: %L1</source>
        <translation>caídos: %L1</translation>
    </message>
    <message>
        <source>missed while paused: %L1</source>
        <translation>perdidos en pausa: %L1</translation>
    </message>
    <message>
        <source>Save as recording</source>
        <translation>Guardar como grabación</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>TCP loopback test</source>
        <translation>Prueba de bucle TCP</translation>
    </message>
    <message>
        <source>The file is damaged. What could be read of it is shown; something may be missing.</source>
        <translation>El archivo está dañado. Se muestra lo que se pudo leer; puede faltar algo.</translation>
    </message>
    <message>
        <source>Opening the file …</source>
        <translation>Abriendo el archivo …</translation>
    </message>
</context>
<context>
    <name>MomentEntry</name>
    <message>
        <source>Not before %1</source>
        <translation>No antes de %1</translation>
    </message>
    <message>
        <source>Not after %1</source>
        <translation>No después de %1</translation>
    </message>
    <message>
        <source>This is not a date, such as %1</source>
        <translation>No es una fecha como %1</translation>
    </message>
    <message>
        <source>This is not a time, such as %1</source>
        <translation>No es una hora como %1</translation>
    </message>
    <message>
        <source>This is not a date and time, such as %1</source>
        <translation>No es una fecha con hora como %1</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Elegir: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>p. ej. %1</translation>
    </message>
</context>
<context>
    <name>MomentPicker</name>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
</context>
<context>
    <name>NotificationDialog</name>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>NotificationMark</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>NotificationTray</name>
    <message>
        <source>Notifications (%1)</source>
        <translation>Notificaciones (%1)</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Borrar todas</translation>
    </message>
    <message>
        <source>Dismiss %1</source>
        <translation>Descartar %1</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>Sin notificaciones</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
</context>
<context>
    <name>NumberEntry</name>
    <message>
        <source>Use &quot;%1&quot; as the decimal separator</source>
        <translation>Use «%1» como separador decimal</translation>
    </message>
    <message>
        <source>This is not a number</source>
        <translation>No es un número</translation>
    </message>
    <message>
        <source>A whole number is required</source>
        <translation>Se requiere un número entero</translation>
    </message>
    <message>
        <source>Decimals: at most %1</source>
        <translation>Decimales: %1 como máximo</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Cambiar el signo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>e, exponent of ten</source>
        <translation>e, exponente de diez</translation>
    </message>
</context>
<context>
    <name>Overlays</name>
    <message>
        <source>Desk</source>
        <translation>Taller</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 no está instalado</translation>
    </message>
</context>
<context>
    <name>PDFFile</name>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>The path contains a NUL character</source>
        <translation>La ruta contiene un carácter NUL</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>It has more than 64 MiB</source>
        <translation>Tiene más de 64 MiB</translation>
    </message>
    <message>
        <source>Reading the file takes too long</source>
        <translation>La lectura del archivo tarda demasiado</translation>
    </message>
    <message>
        <source>The file cannot be tried first: %1</source>
        <translation>El archivo no se puede probar antes: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>El archivo está vacío</translation>
    </message>
    <message>
        <source>The file is not safe to read</source>
        <translation>El archivo no es seguro de leer</translation>
    </message>
    <message>
        <source>%1 gives no answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>The file is encrypted, and writing it would damage it</source>
        <translation>El archivo está cifrado y escribirlo lo dañaría</translation>
    </message>
    <message>
        <source>The file does not begin like a PDF file</source>
        <translation>El archivo no empieza como un archivo PDF</translation>
    </message>
    <message>
        <source>The PDF file has no end</source>
        <translation>El archivo PDF no tiene final</translation>
    </message>
    <message>
        <source>The PDF file has no table of its objects</source>
        <translation>El archivo PDF no tiene tabla de objetos</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>Paths</name>
    <message>
        <source>UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the instrument&apos;s files are read or written. Name another folder.</source>
        <translation>UIUTILS_ROOT indica una carpeta que no está escrita en la codificación de los nombres de archivo (%1). No se lee ni se escribe ningún archivo del equipo. Indique otra carpeta.</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>No se pudo cargar la pantalla por el motivo indicado arriba. Compruebe que están instalados los módulos QML QtQuick, QtQuick.Controls, QtQuick.Layouts y QtQuick.Window.</translation>
    </message>
    <message>
        <source>There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws on this screen, such as eglfs or linuxfb.</source>
        <translation>No hay pantalla en la que mostrar %1. Defina DISPLAY o WAYLAND_DISPLAY, o QT_QPA_PLATFORM con lo que dibuja en esta pantalla, como eglfs o linuxfb.</translation>
    </message>
    <message>
        <source>Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.

Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.</source>
        <translation>Muestra un archivo PDF, también comprimido (.pdf.gz), en una pantalla táctil o en una ventana.

Código de salida: 0 hecho, 1 no se pudo mostrar el archivo, 2 línea de órdenes incorrecta.</translation>
    </message>
    <message>
        <source>The PDF file to show.</source>
        <translation>El archivo PDF que se muestra.</translation>
    </message>
    <message>
        <source>The screen has &lt;number&gt; dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural size there.</source>
        <translation>La pantalla tiene &lt;number&gt; puntos por pulgada, de 1 a %1 (predeterminado: %2). Al 100 % una página tiene su tamaño natural.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>Fill the screen, without a frame. Under a window system that arranges windows itself, the window is one among others.</source>
        <translation>Llenar la pantalla, sin marco. En un sistema que coloca él mismo las ventanas, es una ventana más.</translation>
    </message>
    <message>
        <source>Call the window &lt;title&gt; (default: the file&apos;s name).</source>
        <translation>Llamar &lt;title&gt; a la ventana (predeterminado: el nombre del archivo).</translation>
    </message>
    <message>
        <source>title</source>
        <translation>título</translation>
    </message>
    <message>
        <source>Use the input plug-in &lt;name:device&gt;; may be given more than once. Has no effect if a window system provides the input or the device does not exist.</source>
        <translation>Usar el complemento de entrada &lt;name:device&gt;; se puede indicar varias veces. Sin efecto si un sistema de ventanas da la entrada o el dispositivo no existe.</translation>
    </message>
    <message>
        <source>name:device</source>
        <translation>name:device</translation>
    </message>
    <message>
        <source>Name one PDF file to show.</source>
        <translation>Indique un archivo PDF.</translation>
    </message>
    <message>
        <source>--dpy needs a number from 1 to %1.</source>
        <translation>--dpy necesita un número de 1 a %1.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>The file holds more than %1 MiB, which is more than this unit can show.</source>
        <translation>El archivo tiene más de %1&#xa0;MiB, más de lo que este equipo puede mostrar.</translation>
    </message>
    <message>
        <source>This is not a PDF file.</source>
        <translation>No es un archivo PDF.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>El archivo está dañado o incompleto.</translation>
    </message>
    <message>
        <source>The file is encrypted and can only be opened with a password.</source>
        <translation>El archivo está cifrado y solo se abre con una contraseña.</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>El archivo no tiene páginas.</translation>
    </message>
    <message>
        <source>The file has more than %1 pages, which is more than this unit can show.</source>
        <translation>El archivo tiene más de %1 páginas, más de lo que este equipo puede mostrar.</translation>
    </message>
    <message>
        <source>It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or save the report again.</source>
        <translation>Quizá se eliminó o se movió, o estaba en una unidad USB que se retiró. Elija otro archivo o guarde el informe de nuevo.</translation>
    </message>
    <message>
        <source>Check that the drive is in place and that you may read the file.</source>
        <translation>Compruebe que la unidad está conectada y que puede leer el archivo.</translation>
    </message>
    <message>
        <source>Copy it to a computer and open it there.</source>
        <translation>Cópielo en un ordenador y ábralo allí.</translation>
    </message>
    <message>
        <source>Choose a file that was saved as PDF.</source>
        <translation>Elija un archivo guardado como PDF.</translation>
    </message>
    <message>
        <source>Save the report again, or copy the file again from where it came.</source>
        <translation>Guarde el informe de nuevo, o vuelva a copiar el archivo de donde vino.</translation>
    </message>
    <message>
        <source>Open it on a computer, or ask whoever made it for a file without a password.</source>
        <translation>Ábralo en un ordenador, o pida a su autor un archivo sin contraseña.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;.</source>
        <translation>No existe el idioma «%1».</translation>
    </message>
    <message>
        <source>Speak the language of that code, such as &quot;de&quot; (default: that of the environment).</source>
        <translation>Hablar el idioma de ese código, como «de» (por defecto: el del entorno).</translation>
    </message>
    <message>
        <source>code</source>
        <translation>código</translation>
    </message>
</context>
<context>
    <name>PendingChangeRow</name>
    <message>
        <source>Changed meanwhile</source>
        <translation>Cambiado entretanto</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Ahora: %1</translation>
    </message>
    <message>
        <source>You have set: %1</source>
        <translation>Ha ajustado: %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Set again</source>
        <translation>Ajustar de nuevo</translation>
    </message>
</context>
<context>
    <name>PendingChangesView</name>
    <message>
        <source>Nothing waits</source>
        <translation>No hay nada pendiente</translation>
    </message>
    <message>
        <source>Settings that you change are listed here until they are applied.</source>
        <translation>Los ajustes que cambie aparecen aquí hasta que se apliquen.</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>Cambios pendientes</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Technician</source>
        <translation>Técnico</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Known customers</source>
        <translation>Clientes conocidos</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>sin definir</translation>
    </message>
    <message>
        <source>Name, address or circuit</source>
        <translation>Nombre, dirección o circuito</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n trabajo</numerusform>
            <numerusform>%n trabajos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>PlotImage</name>
    <message>
        <source>at least %1 %2</source>
        <translation>mínimo %1 %2</translation>
    </message>
    <message>
        <source>at most %1 %2</source>
        <translation>máximo %1 %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Sin datos</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>fuera de un límite</translation>
    </message>
    <message>
        <source>beyond a warning level</source>
        <translation>fuera de un nivel de advertencia</translation>
    </message>
</context>
<context>
    <name>PlovJsonDocument</name>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1: no es un archivo normal</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: no se puede abrir: %2</translation>
    </message>
    <message>
        <source>%1: larger than the %2 MiB that a document may have</source>
        <translation>%1: supera los %2&#xa0;MiB que puede tener un documento</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1: holds more than the %2 objects and lists that a document may have</source>
        <translation>%1: contiene más de los %2 objetos y listas que puede tener un documento</translation>
    </message>
    <message>
        <source>%1:1:1: the root of the document is not an object</source>
        <translation>%1:1:1: la raíz del documento no es un objeto</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <source>The pages are being made</source>
        <translation>Se están creando las páginas</translation>
    </message>
    <message>
        <source>There are no pages</source>
        <translation>No hay páginas</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>PreviewPages</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
</context>
<context>
    <name>QuantityCard</name>
    <message>
        <source>%1, median: %2</source>
        <translation>%1, mediana: %2</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>Aún no hay muestras</translation>
    </message>
    <message>
        <source>%1 to %2, jitter %3</source>
        <translation>%1 a %2, fluctuación %3</translation>
    </message>
</context>
<context>
    <name>RadixEntry</name>
    <message>
        <source>Only the digits %1 can be used here</source>
        <translation>Aquí solo se admiten los dígitos %1</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 has no service that can be replayed.</source>
        <translation>%1 no contiene ningún servicio que se pueda reproducir.</translation>
    </message>
    <message>
        <source>broken lines: %1</source>
        <translation>líneas dañadas: %1</translation>
    </message>
    <message>
        <source>lines whose time goes backwards: %1</source>
        <translation>líneas cuyo tiempo retrocede: %1</translation>
    </message>
    <message>
        <source>lines about items or services that are not there: %1</source>
        <translation>líneas sobre elementos o servicios que no existen: %1</translation>
    </message>
    <message>
        <source>lines that do not fit their item: %1</source>
        <translation>líneas que no encajan con su elemento: %1</translation>
    </message>
    <message>
        <source>lines beyond the limits: %1</source>
        <translation>líneas que superan los límites: %1</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>termina a la mitad</translation>
    </message>
    <message>
        <source>The recording is not sound and was played as far as it can be: %1.</source>
        <translation>La grabación no está íntegra y se ha reproducido hasta donde es posible: %1.</translation>
    </message>
    <message>
        <source>%1 exists. Name another file, or remove that one.</source>
        <translation>%1 ya existe. Indique otro archivo o elimine ese.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>%1 is written too slowly. The recording ends here.</source>
        <translation>%1 se escribe demasiado despacio. La grabación termina aquí.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The recording ends here.</source>
        <translation>No se puede escribir %1: %2. La grabación termina aquí.</translation>
    </message>
    <message>
        <source>%1 is not a recording of services.</source>
        <translation>%1 no es una grabación de servicios.</translation>
    </message>
    <message>
        <source>%1 was recorded by a newer program, which writes another form. Use that one.</source>
        <translation>%1 se grabó con un programa más reciente, que escribe otra forma. Utilice ese.</translation>
    </message>
    <message>
        <source>This is a recording: nothing can be started or stopped in it.</source>
        <translation>Esto es una grabación: en ella no se puede iniciar ni detener nada.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>ID: </source>
        <translation>ID: </translation>
    </message>
    <message>
        <source>Tech: </source>
        <translation>Téc.: </translation>
    </message>
    <message>
        <source>BAN: </source>
        <translation>BAN: </translation>
    </message>
    <message>
        <source>The schema %1 cannot be used: %2</source>
        <translation>No se puede usar el esquema %1: %2</translation>
    </message>
    <message>
        <source>The report does not match the job schema: %1</source>
        <translation>El informe no cumple el esquema del trabajo: %1</translation>
    </message>
    <message>
        <source>There is no active job</source>
        <translation>No hay ningún trabajo activo</translation>
    </message>
    <message>
        <source>The job has rejected the report: %1</source>
        <translation>El trabajo ha rechazado el informe: %1</translation>
    </message>
    <message>
        <source>The list of reports that are not synced was not changed.</source>
        <translation>La lista de informes no sincronizados no se ha modificado.</translation>
    </message>
    <message>
        <source>The data of the job is not complete: it has no ID</source>
        <translation>Los datos del trabajo están incompletos: no tiene ID</translation>
    </message>
    <message>
        <source>Job Manager</source>
        <translation>Gestor de trabajos</translation>
    </message>
    <message>
        <source>View Report</source>
        <translation>Ver informe</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TODOS</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Sync with Meridex</source>
        <translation>Sincronizar con Meridex</translation>
    </message>
    <message>
        <source>Report Copied</source>
        <translation>Informe copiado</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>the USB drive is not there</source>
        <translation>la unidad USB no está conectada</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>it has more than 1 MiB</source>
        <translation>tiene más de 1 MiB</translation>
    </message>
    <message>
        <source>it would have more than 1 MiB</source>
        <translation>tendría más de 1 MiB</translation>
    </message>
    <message>
        <source>Cannot lock %1: %2</source>
        <translation>No se puede bloquear %1: %2</translation>
    </message>
    <message>
        <source>%1 contains a line feed</source>
        <translation>%1 contiene un salto de línea</translation>
    </message>
    <message>
        <source>Cannot compress %1: %2</source>
        <translation>No se puede comprimir %1: %2</translation>
    </message>
    <message>
        <source>gzip is missing or has failed</source>
        <translation>gzip falta o ha fallado</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>%1 is still on the list of reports that are not synced.</source>
        <translation>%1 sigue en la lista de informes no sincronizados.</translation>
    </message>
    <message>
        <source>The cloud may take %1, although it is not to be synced.</source>
        <translation>La nube puede tomar %1, aunque no debe sincronizarse.</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>Informe guardado</translation>
    </message>
    <message>
        <source>Report %1 saved
Folder: %2</source>
        <translation>Informe %1 guardado
Carpeta: %2</translation>
    </message>
    <message>
        <source>No format is chosen to save the report in.</source>
        <translation>No se ha elegido ningún formato para guardar el informe.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot; to save the report in.</source>
        <translation>No existe el formato «%1» para guardar el informe.</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>Error de escritura</translation>
    </message>
    <message>
        <source>There is not enough space to save the report.</source>
        <translation>No hay espacio suficiente para guardar el informe.</translation>
    </message>
    <message>
        <source>The results are too large to be kept before they are saved</source>
        <translation>Los resultados son demasiado grandes para conservarlos antes de guardarlos</translation>
    </message>
    <message>
        <source>There is not enough space to keep the results until they are saved</source>
        <translation>No hay espacio suficiente para conservar los resultados hasta guardarlos</translation>
    </message>
    <message>
        <source>The results cannot be kept until they are saved: the disk does not take them</source>
        <translation>Los resultados no se pueden conservar hasta guardarlos: el disco no los acepta</translation>
    </message>
    <message>
        <source>%1 files would be overwritten:</source>
        <translation>Se sobrescribirían %1 archivos:</translation>
    </message>
    <message>
        <source>The name does not have the required form</source>
        <translation>El nombre no tiene la forma requerida</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>un carácter NUL</translation>
    </message>
</context>
<context>
    <name>ReportBuilder</name>
    <message>
        <source>Loopback TCP</source>
        <translation>TCP en bucle</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>%1, median</source>
        <translation>%1, mediana</translation>
    </message>
    <message>
        <source>%1, minimum</source>
        <translation>%1, mínimo</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>%1, máximo</translation>
    </message>
    <message>
        <source>%1, jitter</source>
        <translation>%1, fluctuación</translation>
    </message>
    <message>
        <source>%1, limit</source>
        <translation>%1, límite</translation>
    </message>
    <message>
        <source>%1 of each sample</source>
        <translation>%1 de cada muestra</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>Muestra %1</translation>
    </message>
</context>
<context>
    <name>ReportPDF</name>
    <message>
        <source>there is not enough memory for its pages</source>
        <translation>no hay memoria suficiente para sus páginas</translation>
    </message>
    <message>
        <source>Unit ID: %1</source>
        <translation>ID del equipo: %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Cannot print %1: %2</source>
        <translation>No se puede imprimir %1: %2</translation>
    </message>
    <message>
        <source>another file is being printed</source>
        <translation>se está imprimiendo otro archivo</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>el programa no tiene fuentes porque no es una QGuiApplication</translation>
    </message>
    <message>
        <source>Solvant Report</source>
        <translation>Informe de Solvant</translation>
    </message>
    <message>
        <source>%1 - Continued</source>
        <translation>%1 (continuación)</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Guardado en %1</translation>
    </message>
    <message>
        <source>Will be saved in %1</source>
        <translation>Se guardará en %1</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>There is no USB drive: files stay on the unit.</source>
        <translation>No hay unidad USB: los archivos se quedan en el equipo.</translation>
    </message>
    <message>
        <source>On the report</source>
        <translation>En el informe</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Sin trabajo</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>Median %1, limit %2</source>
        <translation>Mediana %1, %2</translation>
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
        <source>Sample %1</source>
        <translation>Muestra %1</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>Aún no hay muestras</translation>
    </message>
    <message>
        <source>Nothing failed</source>
        <translation>Ningún fallo</translation>
    </message>
    <message>
        <source>All samples meet the limit.</source>
        <translation>Todas las muestras cumplen el límite.</translation>
    </message>
    <message>
        <source>Go to Run</source>
        <translation>Ir a la medición</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>En orden</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Menores</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Mayores</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Revisar</translation>
    </message>
    <message>
        <source>All of it is applied together, or nothing.</source>
        <translation>Se aplica todo junto, o nada.</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>Revertir todo</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>Run</source>
        <translation>Medición</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>%1, server at %2</source>
        <translation>%1, servidor: %2</translation>
    </message>
</context>
<context>
    <name>SaveProgress</name>
    <message>
        <source>Cancelling the save</source>
        <translation>Cancelando el guardado</translation>
    </message>
    <message>
        <source>Saving the report</source>
        <translation>Guardando el informe</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SchemaValidator</name>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>%1 is not a file in the folder of the schema</source>
        <translation>%1 no es un archivo de la carpeta del esquema</translation>
    </message>
    <message>
        <source>document type declarations are not accepted</source>
        <translation>no se aceptan declaraciones de tipo de documento</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>no se puede leer %1</translation>
    </message>
    <message>
        <source>%1 is not an XML schema</source>
        <translation>%1 no es un esquema XML</translation>
    </message>
    <message>
        <source>there is no schema to check against</source>
        <translation>no hay ningún esquema con el que comprobar</translation>
    </message>
    <message>
        <source>the text cannot be read as XML</source>
        <translation>el texto no se puede leer como XML</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Plegado</translation>
    </message>
</context>
<context>
    <name>ServiceBanner</name>
    <message>
        <source>&quot;%1&quot; does not answer. What is shown may be old; the page goes on by itself when the service is back.</source>
        <translation>«%1» no responde. Lo que se muestra puede ser antiguo; la página sigue sola cuando el servicio vuelve.</translation>
    </message>
</context>
<context>
    <name>ServiceBus</name>
    <message>
        <source>The service %1 is run by another user and is not used.</source>
        <translation>El servicio %1 lo ejecuta otro usuario y no se usa.</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>No se puede acceder al servicio %1. Inténtelo de nuevo cuando esté en marcha.</translation>
    </message>
    <message>
        <source>There is no object %1.</source>
        <translation>No existe el objeto %1.</translation>
    </message>
    <message>
        <source>The name of the service %1 is too long for a bus.</source>
        <translation>El nombre del servicio %1 es demasiado largo para un bus.</translation>
    </message>
    <message>
        <source>A service %1 is published already.</source>
        <translation>Ya se ha publicado un servicio %1.</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>se cerró la conexión</translation>
    </message>
    <message>
        <source>it does not take the connection</source>
        <translation>no acepta la conexión</translation>
    </message>
    <message>
        <source>The system bus cannot be reached: %1.</source>
        <translation>No se puede acceder al bus del sistema: %1.</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1.</source>
        <translation>No se puede acceder al bus de sesión: %1.</translation>
    </message>
    <message>
        <source>The service %1 does not say which version of the interface it has: %2</source>
        <translation>El servicio %1 no indica la versión de su interfaz: %2</translation>
    </message>
    <message>
        <source>The service %1 has version %2 of the interface, and this program knows version %3. Use programs of one release.</source>
        <translation>El servicio %1 tiene la versión %2 de la interfaz y este programa conoce la versión %3. Use programas de la misma entrega.</translation>
    </message>
    <message>
        <source>The service %1 takes no more clients: %2</source>
        <translation>El servicio %1 no acepta más clientes: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: %2</source>
        <translation>No se pueden leer los elementos del servicio %1: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: they are not what the interface says.</source>
        <translation>No se pueden leer los elementos del servicio %1: no se ajustan a la interfaz.</translation>
    </message>
    <message>
        <source>%1 cannot be set: the value is too large, or a text of it holds a NUL.</source>
        <translation>No se puede ajustar %1: el valor es demasiado grande o uno de sus textos contiene NUL.</translation>
    </message>
    <message>
        <source>%1 was not sent: its argument is too large, or holds a NUL.</source>
        <translation>No se envió %1: su argumento es demasiado grande o contiene NUL.</translation>
    </message>
    <message>
        <source>The service %1 has not answered an earlier request yet. Try again when it does.</source>
        <translation>El servicio %1 aún no ha respondido a una petición anterior. Inténtelo después.</translation>
    </message>
    <message>
        <source>The service %1 ended before it answered. Try again when it runs.</source>
        <translation>El servicio %1 terminó antes de responder. Inténtelo de nuevo cuando esté en marcha.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>El servicio %1 no respondió en %2&#xa0;ms. Aún puede ejecutar la petición.</translation>
    </message>
    <message>
        <source>There are no properties of %1.</source>
        <translation>%1 no tiene propiedades.</translation>
    </message>
    <message>
        <source>There is no property %1.</source>
        <translation>No existe la propiedad %1.</translation>
    </message>
    <message>
        <source>The properties of a service are read-only.</source>
        <translation>Las propiedades de un servicio son de solo lectura.</translation>
    </message>
    <message>
        <source>There is no method %1.%2.</source>
        <translation>No existe el método %1.%2.</translation>
    </message>
    <message>
        <source>%1 takes arguments of the signature &quot;%2&quot;, not &quot;%3&quot;.</source>
        <translation>%1 acepta argumentos con la firma «%2», no «%3».</translation>
    </message>
    <message>
        <source>The items of the service are too large for a message.</source>
        <translation>Los elementos del servicio son demasiado grandes para un mensaje.</translation>
    </message>
    <message>
        <source>The service has as many clients as it can serve.</source>
        <translation>El servicio tiene tantos clientes como puede atender.</translation>
    </message>
    <message>
        <source>The value cannot be read.</source>
        <translation>No se puede leer el valor.</translation>
    </message>
    <message>
        <source>The service has too much to do. Try again later.</source>
        <translation>El servicio está saturado. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The service %1 was withdrawn before it could answer.</source>
        <translation>El servicio %1 se retiró antes de poder responder.</translation>
    </message>
    <message>
        <source>The service %1 answered something that the interface does not know.</source>
        <translation>El servicio %1 ha respondido algo que la interfaz no conoce.</translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Inaccesible</translation>
    </message>
    <message>
        <source>answers slowly</source>
        <translation>responde despacio</translation>
    </message>
    <message>
        <source>rejects every change</source>
        <translation>rechaza todo cambio</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lento</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Rechazar</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>Desaparecer</translation>
    </message>
    <message>
        <source>The service lives in another process. It can be watched and edited, not disturbed.</source>
        <translation>El servicio se ejecuta en otro proceso. Se puede observar y editar, no perturbar.</translation>
    </message>
    <message>
        <source>A transaction runs</source>
        <translation>Hay una transacción en curso</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>No enviado</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Ahora: %1</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>Aún no ha cambiado nada.</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>Cambios pendientes</translation>
    </message>
</context>
<context>
    <name>ServiceFile</name>
    <message>
        <source>the id %1 stands twice</source>
        <translation>el id %1 aparece dos veces</translation>
    </message>
    <message>
        <source>the id %1 lacks its category or the colon at its end, or has more than %2 characters</source>
        <translation>al id %1 le falta la categoría o los dos puntos finales, o tiene más de %2 caracteres</translation>
    </message>
    <message>
        <source>the type %1 of %2 is unknown</source>
        <translation>el tipo %1 de %2 es desconocido</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an array</source>
        <translation>el tipo %1 y el id %2 no coinciden en si es una lista de valores</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an action</source>
        <translation>el tipo %1 y el id %2 no coinciden en si es una acción</translation>
    </message>
    <message>
        <source>an aggregate or table without members</source>
        <translation>un agregado o una tabla sin miembros</translation>
    </message>
    <message>
        <source>the type %1 has no members</source>
        <translation>el tipo %1 no tiene miembros</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is empty or appears twice</source>
        <translation>el nombre «%1» está vacío o aparece dos veces</translation>
    </message>
    <message>
        <source>a member cannot have the type %1</source>
        <translation>un miembro no puede tener el tipo %1</translation>
    </message>
    <message>
        <source>the type %1 has no choices</source>
        <translation>el tipo %1 no tiene opciones</translation>
    </message>
    <message>
        <source>only an action can have &quot;does&quot;, not the type %1</source>
        <translation>solo una acción puede tener «does», no el tipo %1</translation>
    </message>
    <message>
        <source>a negative delay</source>
        <translation>un retardo negativo</translation>
    </message>
    <message>
        <source>only a text that is a result can be clearable</source>
        <translation>solo un texto que sea un resultado puede ser borrable</translation>
    </message>
    <message>
        <source>a precision outside 0 to %1</source>
        <translation>una precisión fuera de 0 a %1</translation>
    </message>
    <message>
        <source>/does/set: there is no item %1</source>
        <translation>/does/set: no existe el elemento %1</translation>
    </message>
    <message>
        <source>/does/set: the value of %1: %2</source>
        <translation>/does/set: el valor de %1: %2</translation>
    </message>
    <message>
        <source>a mount point begins with a slash</source>
        <translation>un punto de montaje empieza con una barra</translation>
    </message>
    <message>
        <source>/service: a name has 1 to %1 characters</source>
        <translation>/service: un nombre tiene de 1 a %1 caracteres</translation>
    </message>
    <message>
        <source>the id %1 appears twice</source>
        <translation>el id %1 aparece dos veces</translation>
    </message>
    <message>
        <source>the value %1 appears twice or is negative</source>
        <translation>el valor %1 aparece dos veces o es negativo</translation>
    </message>
    <message>
        <source>a value of this type has no limits</source>
        <translation>un valor de este tipo no tiene límites</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>the minimum is above the maximum</source>
        <translation>el mínimo es mayor que el máximo</translation>
    </message>
    <message>
        <source>%1: not a folder of service files, or not readable</source>
        <translation>%1: no es una carpeta de archivos de servicio, o no se puede leer</translation>
    </message>
    <message>
        <source>the program</source>
        <translation>el programa</translation>
    </message>
    <message>
        <source>/service: &quot;%1&quot; is published already by %2</source>
        <translation>/service: «%1» ya lo publica %2</translation>
    </message>
    <message>
        <source>the service %1 has an item %2 already</source>
        <translation>el servicio %1 ya tiene un elemento %2</translation>
    </message>
    <message>
        <source>not of the type %1</source>
        <translation>no es del tipo %1</translation>
    </message>
    <message>
        <source>a service file may not say this here; uiutils-check tells what it may</source>
        <translation>un archivo de servicio no puede decir esto aquí; uiutils-check indica lo que puede decir</translation>
    </message>
</context>
<context>
    <name>ServiceItem</name>
    <message>
        <source>Account ID</source>
        <translation>ID de cuenta</translation>
    </message>
    <message>
        <source>Active Work Order</source>
        <translation>Orden de trabajo activa</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Attach Report</source>
        <translation>Adjuntar informe</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Backscatter</source>
        <translation>Retrodispersión</translation>
    </message>
    <message>
        <source>Base Unit</source>
        <translation>Unidad base</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Cable</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Calibrar</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibración</translation>
    </message>
    <message>
        <source>Circuit ID</source>
        <translation>ID de circuito</translation>
    </message>
    <message>
        <source>Collector</source>
        <translation>Colector</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Customer Fields in Reports</source>
        <translation>Campos de cliente en informes</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>Nombre del cliente</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Ethernet Module</source>
        <translation>Módulo Ethernet</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Interna</translation>
    </message>
    <message>
        <source>Internal and USB</source>
        <translation>Interna y USB</translation>
    </message>
    <message>
        <source>Job Active</source>
        <translation>Trabajo activo</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>BAN del trabajo</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID del trabajo</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>Técnico del trabajo</translation>
    </message>
    <message>
        <source>Keep Report Name</source>
        <translation>Conservar nombre del informe</translation>
    </message>
    <message>
        <source>Laser Power</source>
        <translation>Potencia del láser</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellido</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>Link Loss</source>
        <translation>Pérdida del enlace</translation>
    </message>
    <message>
        <source>Manifest</source>
        <translation>Manifiesto</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Maximum Round-Trip Time</source>
        <translation>Tiempo máx. de ida y vuelta</translation>
    </message>
    <message>
        <source>Message Size</source>
        <translation>Tamaño de mensaje</translation>
    </message>
    <message>
        <source>Minimum Throughput</source>
        <translation>Caudal mínimo</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Proposed Report Name</source>
        <translation>Nombre de informe propuesto</translation>
    </message>
    <message>
        <source>Pulse Width</source>
        <translation>Ancho de pulso</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Alcance</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Tiempo real</translation>
    </message>
    <message>
        <source>Reports Not Synced</source>
        <translation>Informes no sincronizados</translation>
    </message>
    <message>
        <source>Return Loss</source>
        <translation>Pérdida de retorno</translation>
    </message>
    <message>
        <source>Round-Trip Samples</source>
        <translation>Muestras de ida y vuelta</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Tiempo de ida y vuelta</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>Save Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Splitter Stages</source>
        <translation>Etapas de divisores</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Store Traces</source>
        <translation>Guardar trazas</translation>
    </message>
    <message>
        <source>Tech ID</source>
        <translation>ID del técnico</translation>
    </message>
    <message>
        <source>Technician Fields in Reports</source>
        <translation>Campos de técnico en informes</translation>
    </message>
    <message>
        <source>Test Label</source>
        <translation>Etiqueta de la prueba</translation>
    </message>
    <message>
        <source>Test Type</source>
        <translation>Tipo de prueba</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Caudal</translation>
    </message>
    <message>
        <source>Throughput Samples</source>
        <translation>Muestras de caudal</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>USB Attached</source>
        <translation>USB conectado</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versiones</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>Longitud de onda</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Flujo de trabajo</translation>
    </message>
    <message>
        <source>Worst Event</source>
        <translation>Peor evento</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Close Job</source>
        <translation>Cerrar trabajo</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Trabajos</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Link Speed</source>
        <translation>Velocidad del enlace</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>Abrir trabajo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Sunlight</source>
        <translation>Luz solar</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Received Power</source>
        <translation>Potencia recibida</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Mbit/s</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>The calibration can only be set at the factory.</source>
        <translation>La calibración solo puede ajustarse en fábrica.</translation>
    </message>
    <message>
        <source>The calibration needs a reference fiber. Connect one and try again.</source>
        <translation>La calibración necesita una fibra de referencia. Conecte una e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is no light on the fiber. Check the connector, and start again.</source>
        <translation>No hay luz en la fibra. Compruebe el conector y empiece de nuevo.</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
    <message>
        <source>ns</source>
        <translation>ns</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>Nothing was set. %1</source>
        <translation>No se ajustó nada. %1</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>no es un objeto</translation>
    </message>
    <message>
        <source>The settings for the service %1 are not a JSON object of values by name: %2.</source>
        <translation>Los ajustes del servicio %1 no son un objeto JSON de valores por nombre: %2.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;.</source>
        <translation>No existe el ajuste «%1».</translation>
    </message>
    <message>
        <source>%1 is named twice.</source>
        <translation>%1 se nombra dos veces.</translation>
    </message>
    <message>
        <source>Settings applied: %1.</source>
        <translation>Ajustes aplicados: %1.</translation>
    </message>
    <message>
        <source>The configuration of %1 was not saved: it needs a name, as in &quot;My settings,1&quot;.</source>
        <translation>La configuración de %1 no se guardó: necesita un nombre, como en «My settings,1».</translation>
    </message>
    <message>
        <source>The configuration &quot;%1&quot; was not saved: there is no folder to store it in.</source>
        <translation>La configuración «%1» no se guardó: no hay ninguna carpeta para ella.</translation>
    </message>
    <message>
        <source>The configuration was saved as &quot;%1&quot;.</source>
        <translation>La configuración se guardó como «%1».</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>No se puede acceder al servicio %1. Inténtelo de nuevo cuando esté en marcha.</translation>
    </message>
    <message>
        <source>%1 cannot be set to %2: %3. Allowed: %4.</source>
        <translation>No se puede ajustar %1 a %2: %3. Permitido: %4.</translation>
    </message>
    <message>
        <source>%1 cannot be set now: it is not ready. Try again later.</source>
        <translation>%1 no se puede ajustar ahora: no está listo. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>no disponible ahora</translation>
    </message>
    <message>
        <source>The service %1 has no item %2 any more.</source>
        <translation>El servicio %1 ya no tiene el elemento %2.</translation>
    </message>
    <message>
        <source>The action failed.</source>
        <translation>La acción ha fallado.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it is not a setting.</source>
        <translation>No se puede ajustar %1: no es un ajuste.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it can only be emptied.</source>
        <translation>No se puede ajustar %1: solo se puede vaciar.</translation>
    </message>
    <message>
        <source>The service %1 has no item %2.</source>
        <translation>El servicio %1 no tiene el elemento %2.</translation>
    </message>
    <message>
        <source>%1 cannot be carried out: the service %2 has no handler for it.</source>
        <translation>No se puede ejecutar %1: el servicio %2 no tiene quien lo atienda.</translation>
    </message>
    <message>
        <source>The service %1 has no action %2.</source>
        <translation>El servicio %1 no tiene la acción %2.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>El servicio %1 no respondió en %2&#xa0;ms. Aún puede ejecutar la petición.</translation>
    </message>
</context>
<context>
    <name>ServiceState</name>
    <message>
        <source>It could not be renamed, so changed settings will be lost when the program ends.</source>
        <translation>No se pudo cambiar de nombre, así que los ajustes modificados se perderán al terminar el programa.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings are those of the service file.</source>
        <translation>Se renombró a %1 y los ajustes son los del archivo de servicio.</translation>
    </message>
    <message>
        <source>%1: /values: the object with the values by item id is missing.</source>
        <translation>%1: /values: falta el objeto con los valores por id de elemento.</translation>
    </message>
    <message>
        <source>The settings of %1 could not be stored in %2: %3.</source>
        <translation>Los ajustes de %1 no se pudieron guardar en %2: %3.</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>the service %1 has no such setting</source>
        <translation>el servicio %1 no tiene ese ajuste</translation>
    </message>
    <message>
        <source>%1: %2: %3. The value stays in the file.</source>
        <translation>%1: %2: %3. El valor permanece en el archivo.</translation>
    </message>
    <message>
        <source>this is not a setting</source>
        <translation>esto no es un ajuste</translation>
    </message>
    <message>
        <source>%1 is %2, allowed: %3</source>
        <translation>%1: %2, permitido: %3</translation>
    </message>
</context>
<context>
    <name>ServiceValue</name>
    <message>
        <source>%1 or more</source>
        <translation>%1&#xa0;o más</translation>
    </message>
    <message>
        <source>%1 or less</source>
        <translation>%1&#xa0;o menos</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texto</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caracteres</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>cualquier número</translation>
    </message>
    <message>
        <source>the members %1</source>
        <translation>los miembros %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an aggregate</source>
        <translation>un agregado</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>verdadero o falso</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>no es un número finito</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>no es un número entero</translation>
    </message>
    <message>
        <source>out of range</source>
        <translation>fuera de rango</translation>
    </message>
    <message>
        <source>neither true nor false</source>
        <translation>ni verdadero ni falso</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>no es un texto</translation>
    </message>
    <message>
        <source>not a value that an item of this type can have</source>
        <translation>no es un valor posible para un elemento de este tipo</translation>
    </message>
    <message>
        <source>not a list</source>
        <translation>no es una lista</translation>
    </message>
    <message>
        <source>not an aggregate</source>
        <translation>no es un agregado</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; is missing</source>
        <translation>falta el miembro «%1»</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>miembro «%1»: %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>no existe el miembro «%1»</translation>
    </message>
    <message>
        <source>not a list of aggregates</source>
        <translation>no es una lista de agregados</translation>
    </message>
    <message>
        <source>element %1: %2</source>
        <translation>elemento %1: %2</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>demasiado corto</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>demasiado largo</translation>
    </message>
    <message>
        <source>not of the expected form</source>
        <translation>no tiene la forma esperada</translation>
    </message>
    <message>
        <source>not one of the choices</source>
        <translation>no es una de las opciones</translation>
    </message>
</context>
<context>
    <name>ServicesPage</name>
    <message>
        <source>No services yet</source>
        <translation>Aún no hay servicios</translation>
    </message>
    <message>
        <source>They are shown when they come.</source>
        <translation>Se muestran cuando llegan.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Gallery of the kit</source>
        <translation>Galería de componentes</translation>
    </message>
    <message>
        <source>Everything that pages are made of</source>
        <translation>Todo lo que forma las páginas</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Everything is applied.</source>
        <translation>Todo está aplicado.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>%n cambio aún no está aplicado.</numerusform>
            <numerusform>%n cambios aún no están aplicados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Revisar</translation>
    </message>
    <message>
        <source>There is no set-up</source>
        <translation>No hay configuración</translation>
    </message>
    <message>
        <source>The service loopback is not published.</source>
        <translation>El servicio loopback no está publicado.</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>What passes, and what fails.</source>
        <translation>Qué es conforme y qué no.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Medición</translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>%n ajuste ha cambiado entretanto.</numerusform>
            <numerusform>%n ajustes han cambiado entretanto.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn. The file may be damaged.</source>
        <translation>No se puede dibujar la página %1. El archivo puede estar dañado.</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>%1 is running already. Stop it, or wait until it is done.</source>
        <translation>%1 ya está en marcha. Deténgalo o espere a que termine.</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>el valor de %1: %2</translation>
    </message>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1: no es un archivo normal</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: no se puede abrir: %2</translation>
    </message>
    <message>
        <source>%1: larger than %2 MiB</source>
        <translation>%1: supera los %2&#xa0;MiB</translation>
    </message>
    <message>
        <source>%1: the first line names no column &quot;%2&quot;</source>
        <translation>%1: la primera línea no nombra ninguna columna «%2»</translation>
    </message>
    <message>
        <source>%1: no line has a value of the item&apos;s type in the column</source>
        <translation>%1: ninguna línea tiene en la columna un valor del tipo del elemento</translation>
    </message>
    <message>
        <source>only a result can move: settings are set by clients</source>
        <translation>solo un resultado puede moverse: los ajustes los fijan los clientes</translation>
    </message>
    <message>
        <source>an item of the type %1 cannot move as &quot;%2&quot;</source>
        <translation>un elemento del tipo %1 no puede moverse como «%2»</translation>
    </message>
    <message>
        <source>has no meaning for &quot;%1&quot;</source>
        <translation>no tiene sentido para «%1»</translation>
    </message>
    <message>
        <source>must be greater than &quot;from&quot;</source>
        <translation>debe ser mayor que «from»</translation>
    </message>
    <message>
        <source>only numbers have &quot;noise&quot;, &quot;from&quot; and &quot;to&quot;</source>
        <translation>solo los números tienen «noise», «from» y «to»</translation>
    </message>
    <message>
        <source>%1. The item %2 stands still.</source>
        <translation>%1. El elemento %2 no se mueve.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines have no value for %4 and are left out.</source>
        <translation>%1: %2 de %3 líneas no tienen valor para %4 y se omiten.</translation>
    </message>
    <message>
        <source>only numbers and Booleans can be judged by their value</source>
        <translation>solo los números y los valores lógicos pueden juzgarse por su valor</translation>
    </message>
    <message>
        <source>&quot;to&quot; is less than &quot;from&quot;</source>
        <translation>«to» es menor que «from»</translation>
    </message>
    <message>
        <source>there is no item %1 that is a number</source>
        <translation>no hay ningún elemento %1 que sea un número</translation>
    </message>
    <message>
        <source>there is no item %1 that has a value</source>
        <translation>no hay ningún elemento %1 que tenga un valor</translation>
    </message>
    <message>
        <source>a value of %1 is drawn from the numbers between &quot;from&quot; and &quot;to&quot;</source>
        <translation>un valor de %1 se elige entre los números de «from» a «to»</translation>
    </message>
    <message>
        <source>must be greater than &quot;for&quot;</source>
        <translation>debe ser mayor que «for»</translation>
    </message>
    <message>
        <source>no id begins with &quot;%1&quot;</source>
        <translation>ningún identificador empieza por «%1»</translation>
    </message>
    <message>
        <source>there is no action %1 that &quot;runs&quot;</source>
        <translation>no hay ninguna acción %1 con «runs»</translation>
    </message>
    <message>
        <source>nothing happens: say what, such as &quot;vanish&quot;: true</source>
        <translation>no ocurre nada: indique qué, por ejemplo &quot;vanish&quot;: true</translation>
    </message>
    <message>
        <source>%1 The item %2 stands still.</source>
        <translation>%1 El elemento %2 no se mueve.</translation>
    </message>
    <message>
        <source>%1: lines that cannot be read are left out: %2</source>
        <translation>%1: líneas ilegibles que se omiten: %2</translation>
    </message>
    <message>
        <source>%1: the recording has no value of %2.</source>
        <translation>%1: la grabación no tiene ningún valor de %2.</translation>
    </message>
</context>
<context>
    <name>SwitchEntry</name>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>TemplateToHtmlWriter</name>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Marginal</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>No conforme</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID del trabajo</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>BAN del trabajo</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>Técnico del trabajo</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Límite inferior</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Límite superior</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Timestamp</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Resultado global</translation>
    </message>
    <message>
        <source>Assembly</source>
        <translation>Conjunto</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>%1 unit</source>
        <translation>Unidad de %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>%1 status</source>
        <translation>Estado de %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Legend of the plot</source>
        <translation>Leyenda del gráfico</translation>
    </message>
    <message>
        <source>Test Information</source>
        <translation>Información de la prueba</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Solvant System Information</source>
        <translation>Información del sistema Solvant</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Tabla %1</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 a %3</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>There are no curves.</source>
        <translation>No hay curvas.</translation>
    </message>
    <message>
        <source>Job Manager Information</source>
        <translation>Información del trabajo</translation>
    </message>
    <message>
        <source>Customer Information</source>
        <translation>Información del cliente</translation>
    </message>
    <message>
        <source>Technician Information</source>
        <translation>Información del técnico</translation>
    </message>
    <message>
        <source>Software Revisions</source>
        <translation>Versiones de software</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Configuration Values</source>
        <translation>Valores de configuración</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>No completado</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>The curves are drawn in the HTML and PDF reports.</source>
        <translation>Las curvas se dibujan en los informes HTML y PDF.</translation>
    </message>
</context>
<context>
    <name>TextEntry</name>
    <message>
        <source>&quot;%1&quot; cannot be used here</source>
        <translation>«%1» no se admite aquí</translation>
    </message>
</context>
<context>
    <name>TouchTab</name>
    <message>
        <source>Needs attention</source>
        <translation>Requiere atención</translation>
    </message>
</context>
<context>
    <name>TouchTabs</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>TurnLine</name>
    <message>
        <source>%1 before</source>
        <translation>%1: menos</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1: más</translation>
    </message>
</context>
<context>
    <name>UiData</name>
    <message>
        <source>False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Sí</translation>
    </message>
</context>
<context>
    <name>ViewerBar</name>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom %1</source>
        <translation>Zoom %1</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Fit the width</source>
        <translation>Ajustar al ancho</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Fit the page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>Four numbers separated by points, such as 192.0.2.1</source>
        <translation>Cuatro números separados por puntos, por ejemplo 192.0.2.1</translation>
    </message>
    <message>
        <source>Each part is a number from 0 to 255</source>
        <translation>Cada parte es un número de 0 a 255</translation>
    </message>
    <message>
        <source>No part can begin with 0</source>
        <translation>Ninguna parte puede empezar por 0</translation>
    </message>
    <message>
        <source>Up to eight groups separated by colons, such as 2001:db8::1</source>
        <translation>Hasta ocho grupos separados por dos puntos, por ejemplo 2001:db8::1</translation>
    </message>
    <message>
        <source>&quot;::&quot; can appear only once</source>
        <translation>«::» solo puede aparecer una vez</translation>
    </message>
    <message>
        <source>Each group is one to four hexadecimal digits</source>
        <translation>Cada grupo tiene de uno a cuatro dígitos hexadecimales</translation>
    </message>
    <message>
        <source>Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E</source>
        <translation>Seis pares de dígitos hexadecimales, por ejemplo 00:1A:2B:3C:4D:5E</translation>
    </message>
    <message>
        <source>A URL cannot contain blanks</source>
        <translation>Una URL no contiene espacios</translation>
    </message>
    <message>
        <source>Scheme and host, such as https://host/path</source>
        <translation>Esquema y host, por ejemplo https://host/path</translation>
    </message>
    <message>
        <source>At most %1 characters; this text has %2</source>
        <translation>Máximo %1 caracteres; este texto tiene %2</translation>
    </message>
    <message>
        <source>Digits, + at the beginning, blanks and ( ) / - * #</source>
        <translation>Dígitos, + al principio, espacios y ( ) / - * #</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mínimo %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Máximo %1</translation>
    </message>
    <message>
        <source>At least %1 characters; this text has %2</source>
        <translation>Mínimo %1 caracteres; este texto tiene %2</translation>
    </message>
</context>
<context>
    <name>uiutils::PendingChanges</name>
    <message>
        <source>The service %1 cannot be reached. The change waits until it returns.</source>
        <translation>No se puede acceder al servicio %1. El cambio espera a que vuelva.</translation>
    </message>
    <message>
        <source>The entry was rejected.</source>
        <translation>Se ha rechazado la entrada.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportDraft</name>
    <message>
        <source>Another page or program keeps results of this kind</source>
        <translation>Otra página u otro programa conserva resultados de este tipo</translation>
    </message>
    <message>
        <source>There is no folder to keep the results in until they are saved</source>
        <translation>No hay ninguna carpeta donde conservar los resultados hasta guardarlos</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportPaper</name>
    <message>
        <source>the printer takes no further page</source>
        <translation>la impresora no acepta más páginas</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>el programa no tiene fuentes porque no es una QGuiApplication</translation>
    </message>
    <message>
        <source>the report has no page %1, only %2</source>
        <translation>el informe no tiene página %1, solo %2</translation>
    </message>
    <message>
        <source>the printer cannot be used</source>
        <translation>no se puede usar la impresora</translation>
    </message>
    <message>
        <source>another report is being printed</source>
        <translation>se está imprimiendo otro informe</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Follower</name>
    <message>
        <source>Following the user&apos;s name, &quot;%1&quot;.</source>
        <translation>Siguiendo el nombre del usuario, «%1».</translation>
    </message>
    <message>
        <source>There is no setting %1 to follow. Start kivd with the service that has it.</source>
        <translation>No hay ningún ajuste %1 que seguir. Inicie kivd con el servicio que lo tiene.</translation>
    </message>
    <message>
        <source>Another application has changed it to &quot;%1&quot;.</source>
        <translation>Otra aplicación lo ha cambiado a «%1».</translation>
    </message>
    <message>
        <source>The services have ended; it stays &quot;%1&quot;.</source>
        <translation>Los servicios han terminado; sigue siendo «%1».</translation>
    </message>
    <message>
        <source>The services have returned, and nothing is lost.</source>
        <translation>Los servicios han vuelto y no se ha perdido nada.</translation>
    </message>
    <message>
        <source>The services have returned with &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Los servicios han vuelto con «%1» en lugar de «%2».</translation>
    </message>
    <message>
        <source>The window gives no picture.</source>
        <translation>La ventana no da ninguna imagen.</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>No se escribió %1: %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackMeasurement</name>
    <message>
        <source>Ready to measure</source>
        <translation>Listo para medir</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>Conectando con el servidor</translation>
    </message>
    <message>
        <source>Measuring round-trip time</source>
        <translation>Midiendo el tiempo de ida y vuelta</translation>
    </message>
    <message>
        <source>Measuring throughput</source>
        <translation>Midiendo el caudal</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ha fallado</translation>
    </message>
    <message>
        <source>Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one exchange of each kind before the first sample is not counted. Jitter is the mean difference between neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is marginal when it meets it with less, and fails when it does not meet it; the overall status is that of the worse median.</source>
        <translation>Medido con un cliente TCP y un servidor TCP de este programa por la interfaz de bucle de este equipo. Tiempo de ida y vuelta: %1 muestras, cada una el tiempo desde el envío de un mensaje de %2 bytes hasta la llegada de todo su eco. Caudal: %6 muestras, cada una el tiempo de envío de %3&#xa0;MiB hasta que el servidor confirmó el último byte; 1 Mbit/s son 1 000 000 bits por segundo. Entre muestras hay una pausa de %4&#xa0;ms, y un intercambio de cada clase antes de la primera no cuenta. La fluctuación es la diferencia media entre muestras vecinas. Un valor es conforme si cumple su límite con un margen de al menos %5 %, es marginal si lo cumple con menos y no es conforme si no lo cumple; el resultado global es el de la peor mediana.</translation>
    </message>
    <message>
        <source>A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the nearest permitted one.</source>
        <translation>Una medición toma de %1 a %2 muestras de cada magnitud y mensajes de %3&#xa0;B o más; otros valores se cambian por el más próximo permitido.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackProbe</name>
    <message>
        <source>No server could be opened on the loopback address (%1). Check that the loopback interface is up, then start again.</source>
        <translation>No se pudo abrir un servidor en la dirección de bucle (%1). Compruebe que la interfaz de bucle está activa y empiece de nuevo.</translation>
    </message>
    <message>
        <source>The server at %1 sent an answer that does not match the request while %2. Another program may be listening there; start again.</source>
        <translation>El servidor %1 envió una respuesta que no corresponde a la petición (%2). Quizá escuche allí otro programa; empiece de nuevo.</translation>
    </message>
    <message>
        <source>The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>La conexión con el servidor %1 se interrumpió (%2; %3). Compruebe que la interfaz de bucle está activa y que ningún cortafuegos la bloquea, y empiece de nuevo.</translation>
    </message>
    <message>
        <source>The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>El servidor %1 calló durante %2&#xa0;s (%3). Compruebe que la interfaz de bucle está activa y que ningún cortafuegos la bloquea, y empiece de nuevo.</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>conexión</translation>
    </message>
    <message>
        <source>measuring round-trip time, sample %1 of %2</source>
        <translation>tiempo de ida y vuelta, muestra %1 de %2</translation>
    </message>
    <message>
        <source>measuring throughput, sample %1 of %2</source>
        <translation>caudal, muestra %1 de %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackReport</name>
    <message>
        <source>Title on the report</source>
        <translation>Título del informe</translation>
    </message>
    <message>
        <source>TCP loopback test</source>
        <translation>Prueba de bucle TCP</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Comprimido</translation>
    </message>
    <message>
        <source>Finish a measurement on the Measure page first.</source>
        <translation>Termine antes una medición.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::SampleModel</name>
    <message>
        <source>at most %1</source>
        <translation>máximo %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mínimo %1</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Marginal</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>No conforme</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Tiempo de ida y vuelta</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Caudal</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::ScreenCamera</name>
    <message>
        <source>Screenshot Saved</source>
        <translation>Captura de pantalla guardada</translation>
    </message>
    <message>
        <source>No picture of the window could be taken.</source>
        <translation>No se pudo tomar una imagen de la ventana.</translation>
    </message>
    <message>
        <source>The window was not drawn for %1 s.</source>
        <translation>La ventana no se dibujó durante %1&#xa0;s.</translation>
    </message>
    <message>
        <source>The picture of the window is empty.</source>
        <translation>La imagen de la ventana está vacía.</translation>
    </message>
    <message>
        <source>There is not enough space for the picture.</source>
        <translation>No hay espacio suficiente para la imagen.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Tour</name>
    <message>
        <source>The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and WAYLAND_DISPLAY unset.</source>
        <translation>La imagen de la ventana para %1 está vacía. Ejecute la demo sin pantalla, sin DISPLAY ni WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Check the free space and that you may write there, or name another folder with --root.</source>
        <translation>Compruebe el espacio libre y que puede escribir allí, o indique otra carpeta con --root.</translation>
    </message>
    <message>
        <source>The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.</source>
        <translation>El recorrido esperó %1&#xa0;s en vano: %2. Mantenga la ventana a la vista y no la toque.</translation>
    </message>
    <message>
        <source>the job is open</source>
        <translation>el trabajo está abierto</translation>
    </message>
    <message>
        <source>half of the run</source>
        <translation>la mitad de la medición</translation>
    </message>
    <message>
        <source>the end of the run</source>
        <translation>el final de la medición</translation>
    </message>
    <message>
        <source>the format of all files</source>
        <translation>el formato de todos los archivos</translation>
    </message>
    <message>
        <source>the report is saved</source>
        <translation>el informe está guardado</translation>
    </message>
    <message>
        <source>a question before files are overwritten</source>
        <translation>una pregunta antes de sobrescribir archivos</translation>
    </message>
    <message>
        <source>the answer</source>
        <translation>la respuesta</translation>
    </message>
    <message>
        <source>the screenshot</source>
        <translation>la captura de pantalla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be pressed</source>
        <translation>se puede pulsar «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is typed</source>
        <translation>«%1» está escrito</translation>
    </message>
    <message>
        <source>a picture of the window can be taken</source>
        <translation>se puede tomar una imagen de la ventana</translation>
    </message>
    <message>
        <source>the picture %1</source>
        <translation>la imagen %1</translation>
    </message>
    <message>
        <source>the pages of the preview</source>
        <translation>las páginas de la vista previa</translation>
    </message>
    <message>
        <source>the drawer of the desk</source>
        <translation>el cajón del taller</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::UsbStick</name>
    <message>
        <source>The files in %1 cannot be moved to %2: %3.</source>
        <translation>Los archivos de %1 no se pueden mover a %2: %3.</translation>
    </message>
    <message>
        <source>No service of this instrument knows of USB drives.</source>
        <translation>Ningún servicio de este equipo conoce unidades USB.</translation>
    </message>
    <message>
        <source>USB Drive</source>
        <translation>Unidad USB</translation>
    </message>
</context>
</TS>
