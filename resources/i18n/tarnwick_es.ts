<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>Gestores de contraseñas, métodos de entrada, agentes de seguridad y de gestión de dispositivos, VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>Los ajustes no se pueden leer, así que no se sabe qué debe conservarse. No se ha limpiado nada.</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>Los ajustes han perdido reglas sobre lo que debe conservarse. No se ha limpiado nada.</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1 (%2) movido a la %3</numerusform>
            <numerusform>%1 (%2) movidos a la %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 en uso, omitido</numerusform>
            <numerusform> · %1 en uso, omitidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>%Ln archivo restaurado</numerusform>
            <numerusform>%Ln archivos restaurados</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>Los ajustes no se pueden leer, así que no se sabe qué debe conservarse. No se ha movido nada.</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>Archivos temporales</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>Archivos auxiliares que las apps y el sistema crean mientras trabajan. Al cerrar la app dejan de hacer falta.</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>Caché de apps</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>Datos que las apps guardan para cargar más rápido. Las propias apps los vuelven a crear la próxima vez que los necesitan.</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Caché de navegadores</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>Imágenes, scripts y páginas en caché. Las sesiones iniciadas, el historial, los marcadores y las contraseñas no se tocan nunca.</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>Registros y fallos</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>Registros de diagnóstico e informes de fallos. Solo sirven para investigar un problema reciente.</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>Imágenes de vista previa de tus archivos. Se vuelven a generar la próxima vez que abras una carpeta.</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>Instaladores antiguos</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Caché de desarrollo</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>Cachés de gestores de paquetes y resultados de compilación. Se pueden eliminar sin riesgo, pero la próxima compilación o instalación tardará más.</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papelera</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>Elementos que ya has eliminado. El vaciado no se puede deshacer.</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>Caché de Vista rápida</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>Caché de miniaturas</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>Imágenes de disco y paquetes de instalación de tu carpeta Descargas. Revísalos por si aún necesitas algún instalador.</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>Paquetes de software e imágenes de disco de tu carpeta Descargas. Revísalos por si aún necesitas alguno.</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>Seguro</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>Revisar</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>Definitivo</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>Miniaturas de Vista rápida</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>Caché de simuladores</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>Papelera</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>eliminar definitivamente</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>La carpeta personal pertenece a otro usuario. No se ha limpiado nada.</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>Ya hay otra limpieza en curso.</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>No es posible saber si hay otra limpieza en curso. No se ha limpiado nada.</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>Limpieza segura</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>Revisar antes de limpiar</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>No se puede deshacer</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>Detalles a la vista</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1 está en ejecución</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>No queda nada que limpiar. Vuelve a analizar cuando quieras.</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>Los más grandes</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Mostrar en %1</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>Mostrar %1 más</numerusform>
            <numerusform>Mostrar %1 más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>y %1 elemento más</numerusform>
            <numerusform>y %1 elementos más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;%Ln archivo omitido&lt;/b&gt; porque estaba en uso o protegido. Cierra las apps que lo usan y vuelve a analizar para eliminarlo.</numerusform>
            <numerusform>&lt;b&gt;%Ln archivos omitidos&lt;/b&gt; porque estaban en uso o protegidos. Cierra las apps que los usan y vuelve a analizar para eliminarlos.</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>Por ejemplo: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;No se ha tocado la caché de apps en ejecución:&lt;/b&gt; %1. Ciérralas y vuelve a limpiar para incluirla.</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>Limpieza completada</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>Disponible antes</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>Disponible ahora</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>Ver registro</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>Movido a la %1. Aún puedes restaurarlo todo.</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>Los elementos se han eliminado definitivamente.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Reiniciar como admin</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>Algunas carpetas requieren Acceso total al disco.</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>Algunas carpetas pueden requerir Acceso total al disco.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Abrir Ajustes del Sistema</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Algunos archivos pertenecen al sistema y no se han tocado.</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>Estos archivos requieren permisos de administrador.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;Algunos archivos requieren permisos de administrador.&lt;/b&gt; Reinicia Tarnwick como administrador y vuelve a limpiar para eliminarlos.</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>No tienes permiso para leer algunas de estas carpetas.</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 está en ejecución. Cierra la app para incluir su caché.</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>%1 están en ejecución. Cierra las apps para incluir sus cachés.</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>Aún no se ha analizado nada</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>Encuentra cachés, archivos temporales y restos.</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>Iniciar análisis inteligente</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>Limpiando</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>En curso</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>de %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>Selección recomendada</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Reanalizar</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Ver las reglas</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>%1 para limpiar</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; seleccionados%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · parte requiere administrador</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>se moverá a la %1</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>se eliminará definitivamente</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>Limpiar %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;En los ajustes faltan reglas sobre lo que debe conservarse.&lt;/b&gt; No se limpiará nada hasta que las revises.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;Los ajustes no se pueden leer.&lt;/b&gt; No se limpiará nada hasta que revises las reglas sobre lo que debe conservarse.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>Analizando</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Analizados</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>Transcurrido</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>encontrados</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Requiere Acceso total al disco</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sin permiso de lectura</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>Mide lo que se podría limpiar, sin cambiar nada.</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>Analiza, muestra lo que se eliminaría, pregunta y lo limpia.</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>Busca archivos grandes en la carpeta personal, sin cambiar nada.</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>Mide de qué se compone la parte del disco que ocupa el sistema, sin cambiar nada.</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>analiza solo estas categorías; al limpiar se incluyen todas ellas, también las que nunca se limpian si no lo pides</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>no toca nunca lo que indique esta regla, además de las reglas de los ajustes; se puede repetir</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>elimina definitivamente, digan lo que digan los ajustes</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>no toca nada; indica qué se eliminaría y qué se quedaría, y por qué</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>no pregunta</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>busca archivos que ocupen en el disco al menos este número de megabytes, digan lo que digan los ajustes</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>un objeto JSON en la salida estándar</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>muestra esta ayuda</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>muestra la versión</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>Escribe &quot;%1&quot; para saber más de uno de ellos.</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>Categorías: %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>no existe la opción %1</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>no existe el comando %1, solo %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>sobra la palabra %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>&quot;%1&quot; no admite --%2</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete y --trash son incompatibles entre sí</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only espera identificadores de categorías: %1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>no existe la categoría %1, solo %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude espera una regla</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>la regla %1 no coincide con nada: una ruta empieza por / o ~/ y está por debajo de /; un nombre no lleva barra</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb espera un número de megabytes, no %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>No se ha limpiado nada.</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Revisa las reglas en los ajustes de Tarnwick; o bien repara %1, o elimínalo junto con %2.</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>el análisis se ha cancelado y no se ha limpiado nada</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>no hay ningún terminal en el que preguntar, así que no se limpia nada sin --yes</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>la búsqueda se ha cancelado</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>no se ha podido escribir la salida: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Analizando</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Limpiando</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 de %2 archivo</numerusform>
            <numerusform>%1 de %2 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>el análisis se ha cancelado</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>cancelando…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>terminando este elemento antes de parar…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>No se ha podido leer todo: %1.</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>la medición se ha cancelado</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>Valoración</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>De ellos, %1 se pueden limpiar sin riesgo: tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 está en ejecución, así que %2 de sus datos no se tocarán.</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>No se toca si no lo indicas: %1. Para limpiarlo: --only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>eliminado definitivamente</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>Omitido, %1 en total; el registro explica por qué:</numerusform>
            <numerusform>Omitidos, %1 en total; el registro explica por qué:</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>Las apps en ejecución no se han tocado: %1.</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>Analizado en %1. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>No hay nada que limpiar.</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>¿Eliminar %1 definitivamente?</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>Esto ha sido una simulación: no se ha tocado nada.</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 liberados, %2 eliminado.</numerusform>
            <numerusform>%1 liberados, %2 eliminados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Algunos archivos pertenecen al sistema y no se han tocado.</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>Archivo</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>Se muestran los %1 más grandes de %2 archivo.</numerusform>
            <numerusform>Se muestran los %1 más grandes de %2 archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Ningún archivo de la carpeta personal ocupa %1 o más.</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>%1 examinado en %2. No se ha cambiado nada.</numerusform>
            <numerusform>%1 examinados en %2. No se ha cambiado nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>al menos %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Requiere Acceso total al disco</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sin permiso de lectura</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Mayores: %1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Puedes liberar</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Gestionado por macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Gestionado por el sistema</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>De ellos, puedes actuar sobre %1.</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>Medido en %1. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>mueve a la %1, digan lo que digan los ajustes</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>De ellos, %1 están en un volumen sin %2 y no se tocarán, salvo que uses --delete.</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>movido a la %1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Lo que se ha movido a la %1 sigue ocupando espacio hasta que la vacíes.</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>¿Mover %2 a la %3?</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>¿Eliminar %1 definitivamente y mover %2 a la %3?</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>s sí si</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)</extracomment>
        <translation>[s/N]</translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation>Se pueden limpiar %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>%1 en uso</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>%1 en uso</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>en uso</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>Imagen de disco</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>Descarga parcial</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Comprimido</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>Archivo</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>Seleccionado</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>ascendente</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>descendente</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>Mapa de espacio</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>Reanalizar</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>Descubre qué ocupa espacio</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>Archivos grandes de tu carpeta personal. Tú decides qué se va.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Buscar archivos grandes</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>Carpeta personal · más de %1</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Mostrar en %1</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>Mover a la %1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Buscar archivos</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Archivos más grandes</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1+ mes sin usar</numerusform>
            <numerusform>%1+ meses sin usar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; seleccionados de %3 · %4 archivo</numerusform>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; seleccionados de %3 · %4 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>Buscando archivos grandes…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Archivos grandes</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>Los más grandes hasta ahora</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>Ordenar por</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 no es de Tarnwick y se ha dejado como estaba. Elimina ese archivo para abrir Tarnwick al iniciar sesión.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>No se puede escribir %1, así que Tarnwick no se abre al iniciar sesión.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>No se puede eliminar %1, así que Tarnwick se sigue abriendo al iniciar sesión.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick se ha actualizado a la versión %1.</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>%1: queda poco espacio. Usa el análisis inteligente para liberar espacio.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Sitio web de Tarnwick</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>Acerca de Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Salir de Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análisis inteligente</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Buscar archivos grandes</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Mapa de espacio</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Datos del sistema</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Ocultar barra lateral</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Usar pantalla completa</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Traer todo al frente</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>Guía</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>Preguntas frecuentes</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>Abrir carpeta de registros</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>Abrir menú</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>Mostrar barra lateral</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 los autores de Tarnwick</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>Recordar mi elección</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>¿Mantener Tarnwick en ejecución?</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>Tarnwick puede quedarse en la bandeja del sistema al cerrar la ventana, para que los análisis programados y los avisos de poco espacio sigan funcionando. Puedes volver a abrirlo desde su icono en la bandeja.</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>Puedes cambiarlo en Ajustes.</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>Dejar en la bandeja</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>La eliminación definitiva está activada. Estos archivos no se podrán recuperar.</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>El vaciado de la %1 no se puede deshacer. Todo lo demás va a la %1.</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>Todo se moverá a la %1, así que podrás restaurarlo más tarde.</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>Limpiar y eliminar</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>¿Limpiar %1?</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>De ellos, %1 se quedarán donde están: su volumen no tiene %2.</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>De ellos, %1 se quedarán donde están mientras estas apps sigan abiertas: %2.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>Ya está disponible la versión %1. Tienes la %2.</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>Hay una actualización disponible</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Descargando la actualización…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>Para sustituir esta versión, arrastra Tarnwick a Aplicaciones en la ventana que se abre.</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>Tu gestor de archivos abre la carpeta con el paquete descargado. Instálalo como instalas cualquier paquete.</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Tarnwick está actualizado</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>No se han podido buscar actualizaciones</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Comprueba tu conexión a internet y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Instalando la actualización…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>Tienes instalada la versión %1.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>Analizado %1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensual</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análisis inteligente</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Reanalizar</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>Estado del disco</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>Archivos del sistema protegidos</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>Liberado en el último mes (%1)</numerusform>
            <numerusform>Liberado en los últimos %1 meses</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>Ver todo</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Análisis programado</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>libres de %1</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>Revisar</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analizar</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 listos para limpiar</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>El disco de arranque está casi lleno</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>Mantén tu disco en forma</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 purgables</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>Apps, documentos y sistema</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>Liberable</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>Nunca analizado</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>Último análisis</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>Liberado este mes</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>Recomendaciones principales</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>Qué revisa el análisis inteligente</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>Disco del sistema</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Papelera</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Papelera</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>A key</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>A key</extracomment>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Meta</source>
        <extracomment>A key</extracomment>
        <translation>Meta</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Locked</source>
        <extracomment>Beside a rule that can not be changed</extracomment>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>Acceso de administrador</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick se ejecuta como administrador y puede limpiar archivos de Windows Update.</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>Concedido</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Solo hace falta para limpiar restos de Windows Update.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Reiniciar como admin</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Acceso total al disco</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Necesario para limpiar la caché de Safari y la Papelera.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir Ajustes</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>Idioma del sistema (%1)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>Automatización</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>Exclusiones</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>Permisos e información</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Mover los elementos a la %1</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>Recomendado. Desactívalo para eliminar los archivos definitivamente.</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>Archivos grandes a partir de</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>Los archivos que superen este tamaño aparecen en el Mapa de espacio.</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation>100 MB</translation>
    </message>
    <message>
        <source>250 MB</source>
        <translation>250 MB</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation>500 MB</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1 GB</translation>
    </message>
    <message>
        <source>Consider files old after</source>
        <translation>Archivos antiguos a partir de</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>Se usa en el filtro “Sin usar”.</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 meses</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 meses</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 meses</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Análisis programado</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>Analiza al iniciarse Tarnwick si el último análisis es más antiguo que esto. Nunca limpia por su cuenta.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensual</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>Avisos de poco espacio</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>Avisa cuando el espacio libre baja del 10&#xa0;%.</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar con Windows</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>Inicia Tarnwick en segundo plano para que puedan hacerse los análisis programados.</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>Mostrar Tarnwick en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>Mostrar Tarnwick en la barra de menús</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>Al cerrar la ventana, Tarnwick sigue ejecutándose ahí, para que los análisis programados y los avisos de poco espacio sigan funcionando.</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>Preguntar siempre</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>Seguir en la bandeja</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Salir de Tarnwick</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>Al cerrar la ventana</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>En la bandeja, Tarnwick sigue ejecutándose para que los análisis programados y los avisos de poco espacio sigan funcionando.</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>Sigue al sistema, o usa siempre el tema claro o el oscuro.</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>Tarnwick se reinicia para cambiar de idioma.</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>Ubicaciones del sistema protegidas</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation> — siempre se omiten.</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>Apps protegidas</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation> — sus datos no se limpian nunca. También se omiten las cachés de apps en ejecución y los archivos abiertos.</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>Abrir registros</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>Cada limpieza genera un registro que puedes consultar. Tarnwick busca actualizaciones al iniciarse.</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>Cada limpieza genera un registro que puedes consultar.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;Faltan reglas en los ajustes.&lt;/b&gt; Comprueba que estas son todas las tuyas y vuelve a añadir las que falten. Hasta entonces no se limpia nada.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;Los ajustes no se pueden leer.&lt;/b&gt; Comprueba que estas son todas tus reglas y vuelve a añadir las que falten. Hasta entonces no se limpia nada, y el archivo dañado se conserva.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>No tocar nunca</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Carpetas y patrones que Tarnwick omite siempre.</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>Estas son mis reglas</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>Elige una carpeta para excluirla</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>Las reglas se han guardado. El archivo de ajustes dañado se conserva junto al nuevo.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>Los ajustes no se pueden escribir, así que se quedan como están.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>Quitar %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%1 disponibles de %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>Expandir barra lateral</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análisis inteligente</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Mapa de espacio</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Datos del sistema</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>Contraer barra lateral</translation>
    </message>
</context>
<context>
    <name>StackBar</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Said by a screen reader; %1: what takes space; %2: its share, such as “62%”</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StepBar</name>
    <message>
        <source>Waiting</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>En espera</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>Completado</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Revisar en Finder</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>Mostrar en Archivos</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la Papelera</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>Eliminar instantáneas</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>Eliminar no disponibles</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>Ir a Limpieza</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Abrir Xcode</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>No se ha podido abrir %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>%1 movido a la Papelera; no se ha podido mover: %2</numerusform>
            <numerusform>%1 movidos a la Papelera; no se ha podido mover: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>Nada que mover</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 movido a la Papelera</numerusform>
            <numerusform>%1 movidos a la Papelera</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>No hay instantáneas locales que eliminar</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>No se han eliminado las instantáneas</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>Instantáneas eliminadas: %1 de %2</numerusform>
            <numerusform>Instantáneas eliminadas: %1 de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>No se han podido limpiar los simuladores: %1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>No hay dispositivos de simulador no disponibles: nada que eliminar</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>1 dispositivo de simulador no disponible eliminado</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>%1 dispositivo de simulador no disponible eliminado</numerusform>
            <numerusform>%1 dispositivos de simulador no disponibles eliminados</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>Xcode no está instalado</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>Cachés de tus apps</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Cachés que las apps guardan en tu carpeta de cachés. Las seguras se pueden limpiar desde Limpieza.</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>Carpetas ocultas de tu carpeta personal</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Cachés, ajustes e instalaciones que las herramientas de desarrollo y las apps guardan en carpetas ocultas como .npm, .cargo y .nvm. Las cachés se pueden borrar sin riesgo; conserva las herramientas instaladas.</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Datos de apps Flatpak</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>Ajustes, archivos y cachés de tus apps Flatpak, cada una con los suyos. “flatpak uninstall --delete-data” elimina los de las apps que ya no están.</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>Tus apps y entornos Flatpak</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps que Flatpak ha instalado solo para ti y los entornos de ejecución que necesitan. “flatpak uninstall --user --unused” elimina los entornos que ya no necesita ninguna app.</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>Contenedores e imágenes</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Imágenes, contenedores y volúmenes que guardan Docker y Podman. “docker system prune” y “podman system prune” eliminan lo que ningún contenedor usa.</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>Máquinas virtuales</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>Imágenes de disco de máquinas virtuales, guardadas por el programa que las creó. Elimina la máquina desde ese programa, o con “virsh undefine --remove-all-storage”.</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>Bibliotecas de juegos</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Juegos que guardan Steam y otros lanzadores. Desinstala cada juego desde su lanzador.</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>Datos de apps</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>Bases de datos y archivos que las apps guardan para ti, y tu Papelera. Elimina los datos de una app desde la propia app, o después de desinstalarla.</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>Ajustes de tus apps</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>Ajustes que las apps guardan para ti; algunas guardan junto a ellos perfiles y cachés. Una app sin sus ajustes empieza de cero.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>Diario del sistema</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>El registro del sistema y de sus servicios, que journald mantiene dentro de un límite. “journalctl --vacuum-size=200M” lo recorta al momento.</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>Registros del sistema</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>Archivos de registro de los servicios y del gestor de paquetes. logrotate comprime los antiguos y los elimina.</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>Volcados de memoria</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>Lo que había en la memoria de los programas que fallaron, guardado para los informes. El sistema elimina los antiguos; “coredumpctl” los enumera.</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>Paquetes descargados</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>Paquetes que el gestor de paquetes descargó y ya ha instalado. “apt-get clean”, “dnf clean packages”, “pacman -Sc” o “zypper clean” los elimina.</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Paquetes snap y revisiones antiguas</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Paquetes snap, con las revisiones anteriores que snapd guarda para poder volver atrás. “snap set system refresh.retain=2” hace que guarde menos.</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>Apps y entornos Flatpak del sistema</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps que Flatpak ha instalado para todos los usuarios y los entornos de ejecución que necesitan. “flatpak uninstall --unused” elimina los entornos que ya no necesita ninguna app.</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>Núcleos y sus módulos</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>Los núcleos con los que puede arrancar el sistema, con sus controladores. El gestor de paquetes conserva el más reciente; “apt-get autoremove” elimina los antiguos.</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>Archivos de intercambio e hibernación</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>Espacio en el disco para lo que no cabe en la memoria, y para la propia memoria durante la hibernación. Los ajustes del sistema fijan su tamaño; “swapon --show” lo muestra.</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>Instantáneas del sistema</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>Estados anteriores del sistema que guarda Timeshift o Snapper. Comparten lo que no ha cambiado, así que no tienen un tamaño propio; “timeshift --delete” o “snapper delete” elimina una de ellas.</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Instantáneas locales de Time Machine</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Instantáneas que macOS guarda cada hora en este disco hasta que Time Machine pueda acceder a su disco de copias. macOS las libera cuando falta espacio; puedes eliminarlas ahora sin riesgo, pero pierdes esos puntos de restauración.</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>Copias de seguridad de iPhone y iPad</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Copias de seguridad de dispositivos hechas por el Finder. Elimina las antiguas desde el Finder (General → Gestionar copias de seguridad) cuando tengas una más reciente o una en iCloud.</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Compatibilidad con dispositivos de Xcode</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Símbolos de depuración que Xcode copia de cada versión de iOS, watchOS y tvOS que has conectado. Xcode los copia de nuevo la próxima vez que conectes ese dispositivo.</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>Dispositivos del simulador de iOS</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>Dispositivos del simulador y los datos de sus apps. Los que no están disponibles (para entornos que ya no tienes) se pueden eliminar sin riesgo.</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>Entornos y cachés de simuladores</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Entornos de simulador de iOS, watchOS y visionOS que Xcode ha descargado, además de sus cachés compartidas. Elimina los que no uses en Xcode › Settings › Components.</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Cachés que las apps guardan en tu carpeta Biblioteca. Las seguras se pueden limpiar desde Limpieza.</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Cachés, ajustes e instalaciones que las herramientas de desarrollo y las apps guardan en carpetas ocultas como .cache, .npm y .nvm. Las cachés se pueden borrar sin riesgo; conserva las herramientas instaladas.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Compilaciones archivadas de Xcode</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>Compilaciones que archivaste para distribuirlas. Conserva las que puedas necesitar para simbolizar informes de fallos.</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Imagen de disco de Docker</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>El disco virtual que contiene las imágenes y los contenedores de Docker. Redúcelo con “docker system prune” o en los ajustes de Docker Desktop.</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>Archivos adjuntos de Mail</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>Archivos adjuntos que Mail guardó después de que los abrieras. Los originales siguen en tu buzón.</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>Archivos adjuntos de Mensajes</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>Fotos, vídeos y archivos de tus conversaciones. Elimina los más grandes desde Mensajes (Ajustes → General → Almacenamiento) para que los chats sigan siendo coherentes.</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>Cachés del sistema</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>Cachés que comparten todos los usuarios y los servicios del sistema. El propio macOS las recorta.</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>Registros y diagnósticos del sistema</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>Registros unificados e informes de diagnóstico. macOS los rota y los elimina automáticamente.</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>Memoria virtual e imagen de reposo</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>Archivos de intercambio e imagen de hibernación. Crecen y disminuyen con el uso de la memoria y se restablecen al reiniciar.</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>Recursos y actualizaciones de macOS</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>Recursos del sistema descargados (tipos de letra, diccionarios, modelos de idioma y de IA) y actualizaciones de software preparadas para instalarse.</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>Otros datos de Biblioteca</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>Todo lo demás de tu carpeta Biblioteca: preferencias, llaveros, registros y datos de servicios del sistema.</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>Bases de datos y temporales del sistema</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>Bases de datos y carpetas temporales por app que usan los servicios de macOS. macOS se encarga de ellas.</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>Datos y contenedores de apps</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>Ajustes, bases de datos y archivos que las apps guardan para ti. Para eliminar los datos de una app, desinstálala o hazlo desde la propia app.</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 instantánea</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 instantánea</numerusform>
            <numerusform>%1 instantáneas</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sin permiso de lectura</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>al menos %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 dispositivo</numerusform>
            <numerusform>%1 dispositivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>Datos del sistema</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>Reanalizar</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>Descubre qué hay en Datos del sistema</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>Instantáneas, copias de seguridad, archivos de desarrollo, cachés y más.</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>Analizar Datos del sistema</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>medidos en Datos del sistema · puedes actuar sobre &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>Procesando…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Actualizando…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Puedes liberar</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>Midiendo Datos del sistema…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>medidos</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS eliminará sus instantáneas locales de Time Machine de este disco. Tus copias de seguridad de Time Machine en otros discos no se ven afectadas. macOS te pedirá tu contraseña de administrador.</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>Se eliminarán los dispositivos de simulador cuyo entorno de iOS ya no está instalado, junto con sus apps y datos.</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>Se moverán %1 a la Papelera. Xcode vuelve a crear esos datos cuando conectas de nuevo un dispositivo.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Requiere Acceso total al disco</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sin permiso de lectura</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>al menos %1</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Mayores: %1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Gestionado por macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Gestionado por el sistema</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>Solo se cuenta lo que tienes permiso para leer. No se incluyen las carpetas del sistema ni las de otros usuarios, y las carpetas comunes a varias filas se cuentan una sola vez.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;Por qué los ajustes de Almacenamiento muestran una cifra mayor&lt;/b&gt;&lt;br&gt;macOS calcula Datos del sistema como lo que queda en el disco después de Apps, Documentos, Fotos y sus demás categorías. Ese resto incluye además cosas que ninguna app puede medir: el índice de Spotlight, las instantáneas APFS, el espacio purgable y archivos del sistema reservados a root. Sin Acceso total al disco, Tarnwick tampoco puede ver las carpetas protegidas, así que su total es menor que el que indica macOS.</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>¿%1?</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Abrir Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análisis inteligente</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Buscar archivos grandes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Salir de Tarnwick</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · %2 libres</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>No se ha podido abrir la actualización.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>El servidor ha tardado demasiado en responder.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>No se ha podido leer la información de la actualización.</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>El servidor ha redirigido a una dirección que no es segura.</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>Demasiadas redirecciones.</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>La actualización no está en el servidor de Tarnwick.</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>La actualización tiene un tamaño inesperado.</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>No se ha podido guardar la actualización: %1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>No se ha podido descargar la actualización: %1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>No se ha podido leer la actualización.</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>La actualización no coincide con la suma de comprobación publicada.</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>La actualización no está firmada por %1.</translation>
    </message>
</context>
<context>
    <name>fmt</name>
    <message>
        <source>TB</source>
        <extracomment>A terabyte</extracomment>
        <translation>TB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A size; %1: a number; %2: a unit such as “GB”</extracomment>
        <translation>%1&#xa0;%2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>When something was done or opened last</extracomment>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>Hace %n día</numerusform>
            <numerusform>Hace %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>Hace %n semana</numerusform>
            <numerusform>Hace %n semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>Hace %n mes</numerusform>
            <numerusform>Hace %n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>Hace %n año</numerusform>
            <numerusform>Hace %n años</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Stands between the things of a list: names, or a name and what there is to say of it</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A share; %1: a figure. With a no-break space before the sign where the language has one</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
</TS>
