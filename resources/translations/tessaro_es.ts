<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AdministratorQuestion</name>
    <message>
        <source>This needs an administrator’s password</source>
        <translation>Se necesita la contraseña de un administrador</translation>
    </message>
    <message>
        <source>None was accepted, or this desktop has no service running that asks for one.</source>
        <translation>No se aceptó ninguna, o este escritorio no tiene en marcha un servicio que la pida.</translation>
    </message>
    <message>
        <source>Inside the Flatpak there are no administrator rights. Tessaro’s other packages have them.</source>
        <translation>Dentro del Flatpak no hay derechos de administrador. Los demás paquetes de Tessaro sí los tienen.</translation>
    </message>
</context>
<context>
    <name>AfterCreation</name>
    <message>
        <source>Running %1</source>
        <translation>Ejecutando %1</translation>
    </message>
    <message>
        <source>It ended with status %1.</source>
        <translation>Terminó con el estado de salida %1.</translation>
    </message>
    <message>
        <source>It ended with status %1: %2</source>
        <translation>Terminó con el estado de salida %1: %2</translation>
    </message>
</context>
<context>
    <name>BatchCreation</name>
    <message>
        <source>Creating projects: %L1</source>
        <translation>Creando proyectos: %L1</translation>
    </message>
</context>
<context>
    <name>BatchModel</name>
    <message>
        <source>no name</source>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>No parameter is called like this: the column is not used.</source>
        <translation>Ningún parámetro se llama así: la columna no se usa.</translation>
    </message>
</context>
<context>
    <name>BoundSwitch</name>
    <message>
        <source>The switch was left as it was</source>
        <translation>El ajuste se dejó como estaba</translation>
    </message>
    <message>
        <source>The switch was left off</source>
        <translation>El ajuste se dejó desactivado</translation>
    </message>
    <message>
        <source>Administrator rights could not be had just now. Tessaro would not start any more.</source>
        <translation>No se pudieron obtener derechos de administrador. Tessaro ya no podría iniciarse.</translation>
    </message>
</context>
<context>
    <name>BrowseAccessory</name>
    <message>
        <source>A project with this name already exists there. You will be asked what to do.</source>
        <translation>Ya existe ahí un proyecto con este nombre. Se le preguntará qué hacer.</translation>
    </message>
    <message>
        <source>Makes: %1</source>
        <translation>Se creará: %1</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>Tessaro does not remember this project, and there is no template to compare it with: %1</source>
        <translation>Tessaro no recuerda este proyecto y no hay ninguna plantilla con la que compararlo: %1</translation>
    </message>
    <message>
        <source>Not remembered; compared with the template “%1”.</source>
        <translation>Proyecto no recordado; comparado con la plantilla «%1».</translation>
    </message>
    <message>
        <source>Items that depend on values, not looked for: %L1</source>
        <translation>Elementos que dependen de valores y no se comprobaron: %L1</translation>
    </message>
    <message>
        <source>Complete. Items: %L1</source>
        <translation>Completo. Elementos: %L1</translation>
    </message>
    <message>
        <source>There is no project to check.</source>
        <translation>No hay ningún proyecto que comprobar.</translation>
    </message>
    <message>
        <source>There is no template “%1”. %2</source>
        <translation>No hay ninguna plantilla «%1». %2</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Comprobando %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was given %n words, which is not what it takes.</source>
        <translation>
            <numerusform>«%1» recibió %n argumento; no es lo que espera.</numerusform>
            <numerusform>«%1» recibió %n argumentos; no es lo que espera.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” needs %2.</source>
        <translation>«%1» requiere %2.</translation>
    </message>
    <message>
        <source>%1 does not know “%2”.</source>
        <translation>%1 no reconoce «%2».</translation>
    </message>
    <message>
        <source>“%1” takes no value.</source>
        <translation>«%1» no lleva ningún valor.</translation>
    </message>
    <message>
        <source>“%1” needs a value.</source>
        <translation>«%1» requiere un valor.</translation>
    </message>
    <message>
        <source>“%1 %2” is not of the form %3.</source>
        <translation>«%1 %2» no tiene la forma %3.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Aquí se requieren derechos de administrador y se denegaron.</translation>
    </message>
    <message>
        <source>%1 needs to be told what to do: %2.</source>
        <translation>Hay que indicar qué debe hacer %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot “%2”. It can: %3.</source>
        <translation>%1 no admite «%2». Admite: %3.</translation>
    </message>
    <message>
        <source>“%1” is no command of Tessaro.</source>
        <translation>«%1» no es un comando de Tessaro.</translation>
    </message>
    <message>
        <source>The settings cannot be read, and nothing is done without them: neither the parameters nor the numbers that are taken are known.</source>
        <translation>No se pueden leer los ajustes y sin ellos no se hace nada: no se conocen ni los parámetros ni los números ya asignados.</translation>
    </message>
    <message>
        <source>Tessaro --help lists what it understands.</source>
        <translation>Tessaro --help enumera lo que entiende.</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Exit status: 0 done; 1 failed, or partly failed; 2 wrong usage; 3 the project or template exists and was not overwritten, the command was declined (--yes says yes), or the administrator&apos;s rights were refused; 4 stopped on the way (Ctrl+C): nothing was kept.</source>
        <translation>Estado de salida: 0 hecho; 1 error total o parcial; 2 uso incorrecto; 3 el proyecto o la plantilla ya existe y no se sobrescribió, el comando no se confirmó (--yes lo confirma) o se denegaron los derechos de administrador; 4 detenido a medias (Ctrl+C): no se conservó nada.</translation>
    </message>
    <message>
        <source>Tessaro starts media and production projects from templates.</source>
        <translation>Tessaro inicia proyectos audiovisuales y de producción a partir de plantillas.</translation>
    </message>
    <message>
        <source>Opens the window.</source>
        <translation>Abre la ventana.</translation>
    </message>
    <message>
        <source>Takes the templates in and shows them.</source>
        <translation>Importa las plantillas y las muestra.</translation>
    </message>
    <message>
        <source>“%1” is no command of Tessaro. Tessaro --help lists them.</source>
        <translation>«%1» no es un comando de Tessaro. Tessaro --help los enumera.</translation>
    </message>
    <message>
        <source>starts media and production projects from templates</source>
        <translation>inicia proyectos audiovisuales y de producción a partir de plantillas</translation>
    </message>
    <message>
        <source>There is completion for bash, zsh and fish.</source>
        <translation>Hay autocompletado para bash, zsh y fish.</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>mostrar JSON</translation>
    </message>
    <message>
        <source>without it nothing is done</source>
        <translation>sin esta opción no se hace nada</translation>
    </message>
    <message>
        <source>the template; else the one that the window would choose</source>
        <translation>la plantilla; si no, la que elegiría la ventana</translation>
    </message>
    <message>
        <source>the folder to create it in; else the fixed project location, when that is on</source>
        <translation>la carpeta donde crearlo; si no, la ubicación fija de proyectos, si está activada</translation>
    </message>
    <message>
        <source>a parameter&apos;s value, as if typed into its row; may be repeated</source>
        <translation>el valor de un parámetro, como si se escribiera en su fila; puede repetirse</translation>
    </message>
    <message>
        <source>a project for each row of a table (CSV; - is standard input), all or none</source>
        <translation>un proyecto por cada fila de una tabla (CSV; - es la entrada estándar), todos o ninguno</translation>
    </message>
    <message>
        <source>with --from: leave out rows with problems, make the others</source>
        <translation>con --from: omitir las filas con problemas y crear las demás</translation>
    </message>
    <message>
        <source>move an existing project of the name to the Trash first</source>
        <translation>mover antes a la papelera un proyecto que ya tenga ese nombre</translation>
    </message>
    <message>
        <source>make more than 10,000 items of repeats without a question</source>
        <translation>crear más de 10&#xa0;000 elementos por repeticiones sin preguntar</translation>
    </message>
    <message>
        <source>print what would be made and change nothing</source>
        <translation>mostrar lo que se crearía, sin cambiar nada</translation>
    </message>
    <message>
        <source>print one JSON object in place of the path</source>
        <translation>mostrar un objeto JSON en lugar de la ruta</translation>
    </message>
    <message>
        <source>take the mark away</source>
        <translation>quitar la marca</translation>
    </message>
    <message>
        <source>the folder whose folders are made</source>
        <translation>la carpeta cuyas subcarpetas se crean</translation>
    </message>
    <message>
        <source>the rules as JSON; - is standard input, {} takes them away</source>
        <translation>las reglas en JSON; - es la entrada estándar, {} las quita</translation>
    </message>
    <message>
        <source>remove rules whose item is gone</source>
        <translation>eliminar las reglas cuyo elemento ya no existe</translation>
    </message>
    <message>
        <source>the log of commands in place of the window&apos;s</source>
        <translation>el registro de los comandos en lugar del de la ventana</translation>
    </message>
    <message>
        <source>print only where it is</source>
        <translation>mostrar solo dónde está</translation>
    </message>
    <message>
        <source>where it goes; else the desktop</source>
        <translation>dónde se guarda; si no, en el escritorio</translation>
    </message>
    <message>
        <source>a file that goes along; may be repeated</source>
        <translation>un archivo que se adjunta; puede repetirse</translation>
    </message>
    <message>
        <source>Makes a project and prints its path.</source>
        <translation>Crea un proyecto y muestra su ruta.</translation>
    </message>
    <message>
        <source>Lists what creations that were cut off have left behind, and moves it to the Trash; names the projects that a power cut has damaged.</source>
        <translation>Enumera lo que dejaron las creaciones interrumpidas y lo mueve a la papelera; señala los proyectos dañados por un corte de corriente.</translation>
    </message>
    <message>
        <source>Lists the last hundred projects that were made, the latest first.</source>
        <translation>Enumera los últimos cien proyectos creados, el más reciente primero.</translation>
    </message>
    <message>
        <source>Moves what a creation made to the Trash, but for what was changed or added since; the latest, or the one of that path or name.</source>
        <translation>Mueve a la papelera lo que hizo una creación, salvo lo modificado o añadido después; la última, o la de esa ruta o nombre.</translation>
    </message>
    <message>
        <source>Lists the templates, one a line; the default is marked with a star.</source>
        <translation>Enumera las plantillas, una por línea; la predeterminada lleva un asterisco.</translation>
    </message>
    <message>
        <source>Makes an empty template.</source>
        <translation>Crea una plantilla vacía.</translation>
    </message>
    <message>
        <source>Copies a template under the next free name.</source>
        <translation>Copia una plantilla con el siguiente nombre libre.</translation>
    </message>
    <message>
        <source>Gives a template another name.</source>
        <translation>Cambia el nombre de una plantilla.</translation>
    </message>
    <message>
        <source>Moves a template to the Trash.</source>
        <translation>Mueve una plantilla a la papelera.</translation>
    </message>
    <message>
        <source>Marks the default template, or prints it.</source>
        <translation>Marca la plantilla predeterminada, o la muestra.</translation>
    </message>
    <message>
        <source>Prints a template&apos;s tree.</source>
        <translation>Muestra el árbol de una plantilla.</translation>
    </message>
    <message>
        <source>Prints a template&apos;s rules as JSON, or takes them from a file; --gone removes those whose item is not there any more.</source>
        <translation>Muestra en JSON las reglas de una plantilla, o las toma de un archivo; --gone elimina aquellas cuyo elemento ya no existe.</translation>
    </message>
    <message>
        <source>Takes in bundles (NAME.tzt) and archives of them (NAME.tzt.zip); one of the same name goes to the Trash.</source>
        <translation>Importa paquetes (NAME.tzt) y sus archivos comprimidos (NAME.tzt.zip); si ya hay una plantilla con ese nombre, va a la papelera.</translation>
    </message>
    <message>
        <source>Writes a template as one archive, NAME.tzt.zip, and prints its path.</source>
        <translation>Guarda una plantilla en un archivo comprimido, NAME.tzt.zip, y muestra su ruta.</translation>
    </message>
    <message>
        <source>Makes a folder&apos;s folders in the template, without files.</source>
        <translation>Crea en la plantilla las subcarpetas de una carpeta, sin archivos.</translation>
    </message>
    <message>
        <source>Puts back the templates that ship with Tessaro; changed ones go to the Trash.</source>
        <translation>Repone las plantillas incluidas con Tessaro; las modificadas van a la papelera.</translation>
    </message>
    <message>
        <source>Lists title, kind and value of each parameter; a / marks those that begin a folder level.</source>
        <translation>Enumera título, tipo y valor de cada parámetro; una / marca los que empiezan un nivel de carpeta.</translation>
    </message>
    <message>
        <source>Adds a parameter. Kinds: text, counter, date, user, choice.</source>
        <translation>Añade un parámetro. Tipos: text, counter, date, user, choice.</translation>
    </message>
    <message>
        <source>Changes a parameter. Keys: title, kind, default, folder, history, required, locked; form (number, date, folder), pattern, message, computed, case (upper, lower, title), length, several, in-name.</source>
        <translation>Cambia un parámetro. Claves: title, kind, default, folder, history, required, locked; form (number, date, folder), pattern, message, computed, case (upper, lower, title), length, several, in-name.</translation>
    </message>
    <message>
        <source>Moves a parameter to a position, counted from 1.</source>
        <translation>Mueve un parámetro a una posición, contada desde 1.</translation>
    </message>
    <message>
        <source>Removes a parameter. This cannot be undone.</source>
        <translation>Elimina un parámetro. Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>Writes the list into a property list.</source>
        <translation>Guarda los parámetros en una lista de propiedades.</translation>
    </message>
    <message>
        <source>Replaces the whole list by that of a property list.</source>
        <translation>Reemplaza todos los parámetros por los de una lista de propiedades.</translation>
    </message>
    <message>
        <source>Forgets the values typed before.</source>
        <translation>Olvida los valores escritos anteriormente.</translation>
    </message>
    <message>
        <source>Lists each setting with its value and meaning.</source>
        <translation>Enumera cada ajuste con su valor y su significado.</translation>
    </message>
    <message>
        <source>Prints a setting&apos;s value.</source>
        <translation>Muestra el valor de un ajuste.</translation>
    </message>
    <message>
        <source>Changes a setting; the value is checked first, as in the window.</source>
        <translation>Cambia un ajuste; antes se comprueba el valor, como en la ventana.</translation>
    </message>
    <message>
        <source>The setting&apos;s default applies again.</source>
        <translation>El ajuste vuelve a su valor predeterminado.</translation>
    </message>
    <message>
        <source>Prints the log of the window.</source>
        <translation>Muestra el registro de la ventana.</translation>
    </message>
    <message>
        <source>Puts logs, crash reports and settings into one archive, for a support request.</source>
        <translation>Reúne registros, informes de fallos y ajustes en un archivo comprimido para una consulta de soporte.</translation>
    </message>
    <message>
        <source>Starts the updater&apos;s silent check.</source>
        <translation>Inicia la búsqueda silenciosa de actualizaciones.</translation>
    </message>
    <message>
        <source>Explains all verbs, or one; --help behind a verb does so, too.</source>
        <translation>Explica todos los comandos, o uno; --help tras un comando hace lo mismo.</translation>
    </message>
    <message>
        <source>Prints what makes that shell complete Tessaro&apos;s words.</source>
        <translation>Muestra el script que autocompleta los comandos de Tessaro en ese shell.</translation>
    </message>
    <message>
        <source>Prints the manual page, for man(1).</source>
        <translation>Muestra la página de manual, para man(1).</translation>
    </message>
    <message>
        <source>Prints the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>values as a JSON object from titles to values; - is standard input</source>
        <translation>valores como objeto JSON con los títulos como claves; - es la entrada estándar</translation>
    </message>
    <message>
        <source>ask at the terminal for what is required and missing</source>
        <translation>pedir en el terminal los valores obligatorios que falten</translation>
    </message>
    <message>
        <source>leave values and counters out of the settings: nothing is remembered or counted</source>
        <translation>no guardar valores ni contadores en los ajustes: no se recuerda ni se cuenta nada</translation>
    </message>
    <message>
        <source>what a project that is not remembered is compared with</source>
        <translation>la plantilla con la que se compara un proyecto no recordado</translation>
    </message>
    <message>
        <source>Looks whether all that the creation made still stands in a project (the latest, or the one in that folder), and names what is missing. Changes nothing.</source>
        <translation>Comprueba si en un proyecto (el último, o el de esa carpeta) sigue estando todo lo que hizo la creación e indica lo que falta. No cambia nada.</translation>
    </message>
    <message>
        <source>Opens the window; the next project goes into the folder.</source>
        <translation>Abre la ventana; el próximo proyecto se creará en esa carpeta.</translation>
    </message>
    <message>
        <source>Opens the window, which says whether the project in the folder is complete.</source>
        <translation>Abre la ventana, que indica si el proyecto de esa carpeta está completo.</translation>
    </message>
    <message>
        <source>for every user of this computer; needs root</source>
        <translation>para todos los usuarios de este equipo; requiere root</translation>
    </message>
    <message>
        <source>what nobody changes, with commas: parameters, keys of settings, or none; else parameters, separatorChar, dateFormat and strictNaming</source>
        <translation>lo que nadie puede cambiar, separado por comas: parameters, claves de ajustes o none; si no, parameters, separatorChar, dateFormat y strictNaming</translation>
    </message>
    <message>
        <source>Says which set-up your studio shares with this computer.</source>
        <translation>Indica qué configuración comparte su estudio con este equipo.</translation>
    </message>
    <message>
        <source>Takes templates, parameters and settings from a shared folder, and follows it from then on.</source>
        <translation>Toma plantillas, parámetros y ajustes de una carpeta compartida y, a partir de entonces, sigue sus cambios.</translation>
    </message>
    <message>
        <source>Goes back to your own templates, parameters and settings.</source>
        <translation>Vuelve a sus propias plantillas y a sus propios parámetros y ajustes.</translation>
    </message>
    <message>
        <source>Writes the present templates, parameters and settings into a folder, for many computers to use.</source>
        <translation>Guarda las plantillas, los parámetros y los ajustes actuales en una carpeta, para usarlos en muchos equipos.</translation>
    </message>
</context>
<context>
    <name>CreateCommand</name>
    <message>
        <source>Repeats would make more than %1 items. Say --many if that is what you want.</source>
        <translation>Las repeticiones crearían más de %1 elementos. Añada --many si es lo que quiere.</translation>
    </message>
    <message>
        <source>A creation was cut off. This is left of it: %1</source>
        <translation>Una creación se interrumpió. Esto es lo que quedó: %1</translation>
    </message>
    <message>
        <source>Tessaro clean-up --yes moves it to the Trash.</source>
        <translation>Tessaro clean-up --yes lo mueve a la papelera.</translation>
    </message>
    <message>
        <source>Tessaro clean-up --yes takes note of it.</source>
        <translation>Tessaro clean-up --yes lo da por visto.</translation>
    </message>
    <message>
        <source>Nothing was moved to the Trash; say --yes to do it.</source>
        <translation>No se movió nada a la papelera; añada --yes para hacerlo.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1
Use --overwrite to move it to the Trash and create it anew.</source>
        <translation>Ya existe un proyecto con este nombre: %1
Use --overwrite para moverlo a la papelera y crearlo de nuevo.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>No se puede leer la biblioteca de plantillas.</translation>
    </message>
    <message>
        <source>There is no room for the shipped templates.</source>
        <translation>No hay espacio para las plantillas incluidas.</translation>
    </message>
    <message>
        <source>The shipped templates cannot be unpacked.</source>
        <translation>No se pueden desempaquetar las plantillas incluidas.</translation>
    </message>
    <message>
        <source>There is no template in %1.</source>
        <translation>No hay ninguna plantilla en %1.</translation>
    </message>
    <message>
        <source>There is no template “%1”. %2</source>
        <translation>No hay ninguna plantilla «%1». %2</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read. Mend them, or remove the file.</source>
        <translation>No se pueden leer las reglas de la plantilla. Corríjalas o elimine el archivo.</translation>
    </message>
    <message>
        <source>(--set &quot;%1=…&quot;)</source>
        <translation>(--set &quot;%1=…&quot;)</translation>
    </message>
    <message>
        <source>No fixed project location is set. Say where to create the project with --in FOLDER.</source>
        <translation>No hay una ubicación fija de proyectos. Indique dónde crear el proyecto con --in FOLDER.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>La carpeta %1 no existe.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>The folder name is too long: %1</source>
        <translation>El nombre de la carpeta es demasiado largo: %1</translation>
    </message>
    <message>
        <source>This folder of the template cannot be read: %1</source>
        <translation>No se puede leer esta carpeta de la plantilla: %1</translation>
    </message>
    <message>
        <source>Stopped. Nothing of the project was kept.</source>
        <translation>Detenido. No se conservó nada del proyecto.</translation>
    </message>
    <message>
        <source>The project was made, and is gone: %1</source>
        <translation>El proyecto se creó, pero ya no está: %1</translation>
    </message>
    <message>
        <source>The log names each item and the cause: %1</source>
        <translation>El registro detalla cada elemento y la causa: %1</translation>
    </message>
    <message>
        <source>  (keeps this name: its new one is taken)</source>
        <translation>  (conserva este nombre: el nuevo ya está en uso)</translation>
    </message>
    <message>
        <source>  (keeps this name: its new one is too long)</source>
        <translation>  (conserva este nombre: el nuevo es demasiado largo)</translation>
    </message>
    <message>
        <source>  (left out)</source>
        <translation>  (omitido)</translation>
    </message>
    <message>
        <source>  (was %1)</source>
        <translation>  (antes %1)</translation>
    </message>
    <message>
        <source>Standard input can be only one of --values and --from.</source>
        <translation>La entrada estándar solo puede usarse con una de las opciones --values y --from.</translation>
    </message>
    <message>
        <source>The values cannot be read.</source>
        <translation>No se pueden leer los valores.</translation>
    </message>
    <message>
        <source>The values are no JSON object: %1</source>
        <translation>Los valores no son un objeto JSON: %1</translation>
    </message>
    <message>
        <source>it does not begin with a brace</source>
        <translation>no empieza con una llave</translation>
    </message>
    <message>
        <source>The value of “%1” is no text, no number and no list of them.</source>
        <translation>El valor de «%1» no es un texto, ni un número, ni una lista de ellos.</translation>
    </message>
    <message>
        <source>--ask needs a terminal to ask at.</source>
        <translation>--ask requiere un terminal en el que preguntar.</translation>
    </message>
    <message>
        <source>Stopped. Nothing was created.</source>
        <translation>Detenido. No se creó nada.</translation>
    </message>
</context>
<context>
    <name>CreateCommandTable</name>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Line %1, %2</source>
        <translation>Línea %1, %2</translation>
    </message>
    <message>
        <source>Nothing was created. --go-on leaves out the rows with problems.</source>
        <translation>No se creó nada. --go-on omite las filas con problemas.</translation>
    </message>
    <message>
        <source>The table cannot be read.</source>
        <translation>No se puede leer la tabla.</translation>
    </message>
    <message>
        <source>Looking at projects: %L1</source>
        <translation>Revisando proyectos: %L1</translation>
    </message>
    <message>
        <source>Stopped. Nothing was created.</source>
        <translation>Detenido. No se creó nada.</translation>
    </message>
    <message>
        <source>No parameter is called: %1</source>
        <translation>Ningún parámetro se llama: %1</translation>
    </message>
    <message>
        <source>Other problems: %L1</source>
        <translation>Otros problemas: %L1</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>What had been created was moved to the Trash. --go-on keeps what can be made.</source>
        <translation>Lo que se había creado se movió a la papelera. --go-on conserva lo que se pueda crear.</translation>
    </message>
    <message>
        <source>Stopped. Projects that were not begun: %L1</source>
        <translation>Detenido. Proyectos sin empezar: %L1</translation>
    </message>
    <message>
        <source>Rows left out: %L1. The log names each item and the cause: %2</source>
        <translation>Filas omitidas: %L1. El registro detalla cada elemento y la causa: %2</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Falló el programa al que se avisa de los proyectos nuevos</translation>
    </message>
    <message>
        <source>--ask asks for one project; a table with --from has its values in its cells.</source>
        <translation>--ask pregunta por un solo proyecto; una tabla con --from tiene sus valores en las celdas.</translation>
    </message>
</context>
<context>
    <name>EditingGuard</name>
    <message>
        <source>These templates are set by your studio</source>
        <translation>Estas plantillas las define su estudio</translation>
    </message>
    <message>
        <source>They are changed in the studio’s own folder, and come to every computer from there: %1</source>
        <translation>Se cambian en la carpeta del estudio y desde ahí llegan a todos los equipos: %1</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>Creating %1</source>
        <translation>Creando %1</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copiando %1</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>Moviendo %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Eliminando %1</translation>
    </message>
    <message>
        <source>Please check that you have write permissions for the destination directory.</source>
        <translation>Compruebe que tiene permiso de escritura en la carpeta de destino.</translation>
    </message>
    <message>
        <source>“%1” cannot be moved to the Trash</source>
        <translation>No se puede mover «%1» a la papelera</translation>
    </message>
    <message>
        <source>Its drive has no Trash that you may use. It can be put beside under a name with today&apos;s date, be deleted for good, or be kept as it is.</source>
        <translation>La unidad no tiene una papelera que pueda usar. El elemento puede dejarse al lado, con la fecha de hoy en el nombre, borrarse para siempre o conservarse como está.</translation>
    </message>
    <message>
        <source>Put Beside</source>
        <translation>Dejar al lado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Compressing %1</source>
        <translation>Comprimiendo %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Choose the Template Library</source>
        <translation>Elegir la biblioteca de plantillas</translation>
    </message>
    <message>
        <source>An administrator’s. It holds for you alone, unless an administrator sets it for every user of this computer. Switching one off asks for it.</source>
        <translation>La de un administrador. Estos ajustes valen solo para usted, salvo que un administrador los fije para todos los usuarios de este equipo. También se pide al desactivarlos.</translation>
    </message>
    <message>
        <source>Templates in %1: %2</source>
        <translation>Plantillas en %1: %2</translation>
    </message>
    <message>
        <source>New location: %1</source>
        <translation>Nueva ubicación: %1</translation>
    </message>
    <message>
        <source>Would you like to move your templates to the new location?</source>
        <translation>¿Quiere mover sus plantillas a la nueva ubicación?</translation>
    </message>
    <message>
        <source>Any templates outside of the new backup location will not be displayed in the Templates pane.</source>
        <translation>Las plantillas que queden fuera de la nueva ubicación no se mostrarán en el panel de plantillas.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Don&apos;t Move</source>
        <translation>No mover</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>Moving %n templates</source>
        <translation>
            <numerusform>Moviendo %n plantilla</numerusform>
            <numerusform>Moviendo %n plantillas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> y %n más</numerusform>
            <numerusform> y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>No se pudo mover el archivo %@ a %@</translation>
    </message>
    <message>
        <source>These have stayed where they were: %1.</source>
        <translation>No se movieron: %1.</translation>
    </message>
    <message>
        <source>Choose the Shared Set-up</source>
        <translation>Elegir la configuración compartida</translation>
    </message>
    <message>
        <source>This set-up cannot be used</source>
        <translation>No se puede usar esta configuración</translation>
    </message>
    <message>
        <source>The folder needs a file “%1”, which “Tessaro setup export” writes.</source>
        <translation>En la carpeta debe haber un archivo «%1», que crea «Tessaro setup export».</translation>
    </message>
    <message>
        <source>Another program takes over or uses a set-up just now. Please try again in a moment.</source>
        <translation>Otro programa está adoptando o usando una configuración en este momento. Vuelva a intentarlo dentro de un instante.</translation>
    </message>
    <message>
        <source>The studio’s set-up is still in use</source>
        <translation>La configuración del estudio todavía se está usando</translation>
    </message>
    <message>
        <source>Your own counts again as soon as what uses it has finished.</source>
        <translation>La suya volverá a aplicarse en cuanto termine lo que la usa.</translation>
    </message>
</context>
<context>
    <name>HistoryCommand</name>
    <message>
        <source>The project is not at its place any more: %1</source>
        <translation>El proyecto ya no está en su lugar: %1</translation>
    </message>
    <message>
        <source>%1 could not be undone.</source>
        <translation>%1 no se pudo deshacer.</translation>
    </message>
    <message>
        <source>The project that had its place is still in the Trash: %1</source>
        <translation>El proyecto que ocupaba su lugar sigue en la papelera: %1</translation>
    </message>
    <message>
        <source>This stays; the rest is in the Trash.</source>
        <translation>Esto se conserva; lo demás está en la papelera.</translation>
    </message>
    <message>
        <source>Undoing projects: %L1</source>
        <translation>Deshaciendo proyectos: %L1</translation>
    </message>
    <message>
        <source>Stopped. Projects that stay: %L1</source>
        <translation>Detenido. Proyectos que se conservan: %L1</translation>
    </message>
    <message>
        <source>  (not there any more)</source>
        <translation>  (ya no está)</translation>
    </message>
    <message>
        <source>There is no project to undo.</source>
        <translation>No hay ningún proyecto que deshacer.</translation>
    </message>
    <message>
        <source>“%1” is no project that is remembered. Tessaro history lists them.</source>
        <translation>«%1» no está entre los proyectos recordados. Tessaro history los enumera.</translation>
    </message>
    <message>
        <source>Undoing %1</source>
        <translation>Deshaciendo %1</translation>
    </message>
</context>
<context>
    <name>ImportJobs</name>
    <message>
        <source>%@ already exists in this location. Are you sure you wish to overwrite it?</source>
        <translation>%@ ya existe en esta ubicación. ¿Seguro que quiere sobrescribirlo?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>Lo que hay ahí irá a la papelera.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Overwrite All</source>
        <translation>Sobrescribir todo</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>No se pudo copiar el archivo %@ a %@</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n items</source>
        <translation>
            <numerusform>Copiando %n elemento</numerusform>
            <numerusform>Copiando %n elementos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPanel</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
</context>
<context>
    <name>IndentedList</name>
    <message>
        <source>The list has more than 10,000 lines.</source>
        <translation>La lista tiene más de 10&#xa0;000 líneas.</translation>
    </message>
    <message>
        <source>Line %1 gives no name for a folder: %2</source>
        <translation>La línea %1 no da un nombre de carpeta: %2</translation>
    </message>
</context>
<context>
    <name>ItemNames</name>
    <message>
        <source>The name would be empty: its values are.</source>
        <translation>El nombre quedaría vacío: sus valores lo están.</translation>
    </message>
    <message>
        <source>The name would be “%1”, which leads elsewhere.</source>
        <translation>El nombre sería «%1», que lleva a otro lugar.</translation>
    </message>
    <message>
        <source>The name would have %1 bytes, and 255 are possible.</source>
        <translation>El nombre tendría %1 bytes y el máximo son 255.</translation>
    </message>
    <message>
        <source>%1 puts a “/” into the name: %2</source>
        <translation>%1 pone una «/» en el nombre: %2</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Up Arrow</source>
        <translation>Flecha arriba</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Flecha abajo</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Flecha izquierda</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Flecha derecha</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retorno</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Tab inverso</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
</context>
<context>
    <name>Labels</name>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>morada</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarilla</translation>
    </message>
    <message>
        <source>red</source>
        <translation>roja</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>naranja</translation>
    </message>
</context>
<context>
    <name>LogsCommand</name>
    <message>
        <source>There is no log at %1.</source>
        <translation>No hay ningún registro en %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 no existe.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>The logs could not be gathered.</source>
        <translation>No se pudieron recopilar los registros.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Proyecto</translation>
    </message>
    <message>
        <source>&amp;Create Project</source>
        <translation>&amp;Crear proyecto</translation>
    </message>
    <message>
        <source>Create From &amp;Table…</source>
        <translation>Crear desde &amp;tabla…</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Proyectos &amp;recientes</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nuevo proyecto</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Plantillas</translation>
    </message>
    <message>
        <source>Show &amp;Result</source>
        <translation>Mostrar &amp;resultado</translation>
    </message>
    <message>
        <source>Show Template &amp;Library</source>
        <translation>Mostrar &amp;biblioteca de plantillas</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>P&amp;lantilla</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Nueva plantilla</translation>
    </message>
    <message>
        <source>&amp;Import Template…</source>
        <translation>&amp;Importar plantilla…</translation>
    </message>
    <message>
        <source>&amp;Export Template…</source>
        <translation>E&amp;xportar plantilla…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Templates…</source>
        <translation>&amp;Restaurar plantillas predeterminadas…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>Tessaro on the &amp;Web</source>
        <translation>Tessaro en la &amp;web</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>Ver re&amp;gistro</translation>
    </message>
    <message>
        <source>View &amp;Task Log</source>
        <translation>Ver registro de &amp;tareas</translation>
    </message>
    <message>
        <source>&amp;Gather Logs</source>
        <translation>Re&amp;copilar registros</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>&amp;Report a Bug…</source>
        <translation>&amp;Informar de un error…</translation>
    </message>
    <message>
        <source>&amp;Suggest a Feature…</source>
        <translation>&amp;Sugerir una función…</translation>
    </message>
    <message>
        <source>More &amp;Products</source>
        <translation>Más &amp;productos</translation>
    </message>
    <message>
        <source>&amp;Vantrel on the Web</source>
        <translation>&amp;Vantrel en la web</translation>
    </message>
    <message>
        <source>&amp;About Tessaro</source>
        <translation>&amp;Acerca de Tessaro</translation>
    </message>
    <message>
        <source>C&amp;heck Project…</source>
        <translation>C&amp;omprobar proyecto…</translation>
    </message>
    <message>
        <source>Cl&amp;ear History</source>
        <translation>Borrar &amp;historial</translation>
    </message>
    <message>
        <source>Tessaro &amp;Help</source>
        <translation>Ay&amp;uda de Tessaro</translation>
    </message>
    <message>
        <source>User &amp;Manual (PDF)</source>
        <translation>&amp;Manual de usuario (PDF)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tessaro</source>
        <translation>Tessaro</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>Plan&amp;tilla</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>No templates yet: &amp;install the standard ones</source>
        <translation>Aún no hay plantillas: &amp;instalar las estándar</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Ele&amp;gir…</translation>
    </message>
    <message>
        <source>Filename parameters</source>
        <translation>Parámetros del nombre</translation>
    </message>
    <message>
        <source>Project:</source>
        <translation>Proyecto:</translation>
    </message>
    <message>
        <source>A project with this name already exists.</source>
        <translation>Ya existe un proyecto con este nombre.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>M&amp;ostrar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Move what was made to the Trash (Ctrl+Z)</source>
        <translation>Mover lo creado a la papelera (Ctrl+Z)</translation>
    </message>
    <message>
        <source>&amp;Create Project</source>
        <translation>&amp;Crear proyecto</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>No parameters yet</source>
        <translation>Aún no hay parámetros</translation>
    </message>
    <message>
        <source>Edit the Parameters…</source>
        <translation>Editar los parámetros…</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nuevo proyecto</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>More Products</source>
        <translation>Más productos</translation>
    </message>
    <message>
        <source>Start a project (Ctrl+1)</source>
        <translation>Empezar un proyecto (Ctrl+1)</translation>
    </message>
    <message>
        <source>Look after the templates (Ctrl+2)</source>
        <translation>Gestionar las plantillas (Ctrl+2)</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>Ele&amp;mentos</translation>
    </message>
    <message>
        <source>Created ‘%1’ in %2.</source>
        <translation>Se creó «%1» en %2.</translation>
    </message>
    <message>
        <source>Created in %1: %L2 projects.</source>
        <translation>Proyectos creados en %1: %L2.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <comment>what is undone</comment>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <comment>what is done again</comment>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Tessaro User Manual</source>
        <translation>Manual de usuario de Tessaro</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Buscar en el manual</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Capítulos</translation>
    </message>
    <message>
        <source>Text of the chapter</source>
        <translation>Texto del capítulo</translation>
    </message>
</context>
<context>
    <name>MoveAcross</name>
    <message>
        <source>It changed while it was moved, or the copy is not whole</source>
        <translation>Cambió mientras se movía, o la copia no está completa</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message>
        <source>A folder cannot be put into itself</source>
        <translation>Una carpeta no se puede poner dentro de sí misma</translation>
    </message>
    <message>
        <source>It was stopped</source>
        <translation>Se detuvo</translation>
    </message>
    <message>
        <source>It was not wanted</source>
        <translation>Se rechazó</translation>
    </message>
    <message>
        <source>Administrator rights are needed and were not given</source>
        <translation>Se necesitan derechos de administrador y no se concedieron</translation>
    </message>
    <message>
        <source>It did not happen in time</source>
        <translation>Se agotó el tiempo de espera</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Está dañado</translation>
    </message>
    <message>
        <source>It is not there</source>
        <translation>No se encuentra</translation>
    </message>
    <message>
        <source>Something of this name is there already</source>
        <translation>Ya hay algo con este nombre</translation>
    </message>
    <message>
        <source>It is no folder</source>
        <translation>No es una carpeta</translation>
    </message>
    <message>
        <source>It did not work</source>
        <translation>No funcionó</translation>
    </message>
    <message>
        <source>Another program uses it just now</source>
        <translation>Otro programa lo está usando en este momento</translation>
    </message>
</context>
<context>
    <name>OwnParametersSheet</name>
    <message>
        <source>Parameters of “%1”</source>
        <translation>Parámetros de «%1»</translation>
    </message>
    <message>
        <source>Add a parameter</source>
        <translation>Añadir un parámetro</translation>
    </message>
    <message>
        <source>Remove the selected parameters</source>
        <translation>Eliminar los parámetros seleccionados</translation>
    </message>
    <message>
        <source>Its &amp;Values…</source>
        <translation>&amp;Valores…</translation>
    </message>
    <message>
        <source>Projects of this template have these parameters, after the common ones:</source>
        <translation>Los proyectos de esta plantilla tienen estos parámetros, tras los comunes:</translation>
    </message>
    <message>
        <source>The common parameters in projects of this template:</source>
        <translation>Los parámetros comunes en los proyectos de esta plantilla:</translation>
    </message>
    <message>
        <source>Parameters of the template</source>
        <translation>Parámetros de la plantilla</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Common parameters</source>
        <translation>Parámetros comunes</translation>
    </message>
    <message>
        <source>as everywhere</source>
        <translation>como en las demás</translation>
    </message>
    <message>
        <source>always</source>
        <translation>siempre</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>What becomes of %1</source>
        <translation>Qué se hace con %1</translation>
    </message>
    <message>
        <source>Value of %1</source>
        <translation>Valor de %1</translation>
    </message>
    <message>
        <source>Each parameter needs a title.</source>
        <translation>Cada parámetro necesita un título.</translation>
    </message>
    <message>
        <source>Two parameters are called “%1”.</source>
        <translation>Dos parámetros se llaman «%1».</translation>
    </message>
</context>
<context>
    <name>ParameterDetails</name>
    <message>
        <source>Three letters, a dash, three digits</source>
        <translation>Tres letras, un guion, tres cifras</translation>
    </message>
    <message>
        <source>Several &amp;choices at once</source>
        <translation>&amp;Varias opciones a la vez</translation>
    </message>
    <message>
        <source>Part of the project’s &amp;name</source>
        <translation>Parte del &amp;nombre del proyecto</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Valores de «%1»</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>Texto libre</translation>
    </message>
    <message>
        <source>A whole number</source>
        <translation>Un número entero</translation>
    </message>
    <message>
        <source>A date from a calendar</source>
        <translation>Una fecha del calendario</translation>
    </message>
    <message>
        <source>A folder from a panel</source>
        <translation>Una carpeta elegida</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Como se escribe</translation>
    </message>
    <message>
        <source>CAPITALS</source>
        <translation>MAYÚSCULAS</translation>
    </message>
    <message>
        <source>small letters</source>
        <translation>minúsculas</translation>
    </message>
    <message>
        <source>Each Word Capital</source>
        <translation>Iniciales En Mayúscula</translation>
    </message>
    <message>
        <source>any</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>Valo&amp;r:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>&amp;Letras:</translation>
    </message>
    <message>
        <source>&amp;Most characters:</source>
        <translation>&amp;Máximo de caracteres:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Patrón:</translation>
    </message>
    <message>
        <source>&amp;Said when it does not fit:</source>
        <translation>Aviso &amp;si no se cumple:</translation>
    </message>
    <message>
        <source>Computed &amp;from others:</source>
        <translation>Calcula&amp;do a partir de otros:</translation>
    </message>
    <message>
        <source>The pattern is no regular expression: %1</source>
        <translation>El patrón no es una expresión regular: %1</translation>
    </message>
</context>
<context>
    <name>ParameterEditor</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Contador</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>(auto)</source>
        <translation>(auto)</translation>
    </message>
    <message>
        <source>The file does not hold a list of parameters.</source>
        <translation>El archivo no contiene una lista de parámetros.</translation>
    </message>
    <message>
        <source>Entry %1 of the file is not a parameter with a title.</source>
        <translation>La entrada %1 del archivo no es un parámetro con título.</translation>
    </message>
</context>
<context>
    <name>ParameterEditorModel</name>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>The choices, each on a line of its own; the first is the default.</source>
        <translation>Las opciones, una por línea; la primera es la predeterminada.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Valor inicial</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>What the value is called</source>
        <translation>Cómo se llama el valor</translation>
    </message>
    <message>
        <source>How it is filled in</source>
        <translation>Cómo se rellena</translation>
    </message>
    <message>
        <source>What it begins with; for a choice, the choices</source>
        <translation>El valor con que empieza; si es una opción, la lista de opciones</translation>
    </message>
    <message>
        <source>Begins a new folder level</source>
        <translation>Empieza un nuevo nivel de carpeta</translation>
    </message>
    <message>
        <source>Remembers what was typed, and offers it again (Save History)</source>
        <translation>Recuerda lo escrito y vuelve a ofrecerlo (guardar historial)</translation>
    </message>
    <message>
        <source>Must not be empty</source>
        <translation>No puede quedar vacío</translation>
    </message>
    <message>
        <source>Cannot be changed in the project pane</source>
        <translation>No se puede cambiar en el panel de proyecto</translation>
    </message>
    <message>
        <source>New Parameter</source>
        <translation>Nuevo parámetro</translation>
    </message>
</context>
<context>
    <name>ParametersCommand</name>
    <message>
        <source>There is no parameter “%1”.</source>
        <translation>No hay ningún parámetro «%1».</translation>
    </message>
    <message>
        <source>There are several parameters “%1”. Please give them titles of their own, in the window.</source>
        <translation>Hay varios parámetros «%1». Deles títulos distintos en la ventana.</translation>
    </message>
    <message>
        <source>“%1” is no kind of parameter. There are: %2.</source>
        <translation>«%1» no es un tipo de parámetro. Disponibles: %2.</translation>
    </message>
    <message>
        <source>The parameters could not be stored.</source>
        <translation>No se pudieron guardar los parámetros.</translation>
    </message>
    <message>
        <source>Nothing was removed. This cannot be undone; say --yes to do it.</source>
        <translation>No se eliminó nada. Esto no se puede deshacer; añada --yes para hacerlo.</translation>
    </message>
    <message>
        <source>The position is a number from 1 to %1.</source>
        <translation>La posición es un número de 1 a %1.</translation>
    </message>
    <message>
        <source>A parameter has no “%1”. It has: %2.</source>
        <translation>Un parámetro no tiene «%1». Tiene: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be that. It can be: %2.</source>
        <translation>«%1» no es un valor admitido. Valores: %2.</translation>
    </message>
    <message>
        <source>The length is a number from 0 (any) to 255.</source>
        <translation>La longitud es un número de 0 (sin límite) a 255.</translation>
    </message>
    <message>
        <source>The pattern is no regular expression: %1</source>
        <translation>El patrón no es una expresión regular: %1</translation>
    </message>
    <message>
        <source>The parameters could not be exported.</source>
        <translation>No se pudieron exportar los parámetros.</translation>
    </message>
    <message>
        <source>The parameters could not be imported.</source>
        <translation>No se pudieron importar los parámetros.</translation>
    </message>
    <message>
        <source>Nothing was changed. The list would be replaced; say --yes to do it.</source>
        <translation>No se cambió nada. La lista se reemplazaría; añada --yes para hacerlo.</translation>
    </message>
</context>
<context>
    <name>ParametersPane</name>
    <message>
        <source>(blank)</source>
        <translation>(espacio)</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this parameter?</source>
        <translation>¿Seguro que quiere eliminar este parámetro?</translation>
    </message>
    <message>
        <source>Ctrl+Z brings it back for as long as this window is open.</source>
        <translation>Ctrl+Z lo recupera mientras esta ventana siga abierta.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Hoy: %1</translation>
    </message>
    <message>
        <source>Slashes and colons are left out of folder names: it will be less than %1.</source>
        <translation>Los nombres de carpeta no llevan barras ni dos puntos: quedará menos que %1.</translation>
    </message>
</context>
<context>
    <name>PathControl</name>
    <message>
        <source>Project folder</source>
        <translation>Carpeta del proyecto</translation>
    </message>
</context>
<context>
    <name>PickEditor</name>
    <message>
        <source>Pick a date (Alt+Down)</source>
        <translation>Elegir una fecha (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Choose a folder (Alt+Down)</source>
        <translation>Elegir una carpeta (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Check some (Alt+Down)</source>
        <translation>Marcar opciones (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
</context>
<context>
    <name>PlaceButton</name>
    <message>
        <source>Choose a place…</source>
        <translation>Elegir ubicación…</translation>
    </message>
    <message>
        <source>Where the project goes</source>
        <translation>Dónde se crea el proyecto</translation>
    </message>
    <message>
        <source>The project goes to %1</source>
        <translation>El proyecto se crea en %1</translation>
    </message>
    <message>
        <source>Place: none yet</source>
        <translation>Ubicación: sin elegir</translation>
    </message>
    <message>
        <source>Place: %1</source>
        <translation>Ubicación: %1</translation>
    </message>
    <message>
        <source>&amp;Choose a Folder…</source>
        <translation>&amp;Elegir una carpeta…</translation>
    </message>
    <message>
        <source>&amp;Unpin This Place</source>
        <translation>&amp;Desanclar esta ubicación</translation>
    </message>
    <message>
        <source>&amp;Pin This Place</source>
        <translation>&amp;Anclar esta ubicación</translation>
    </message>
</context>
<context>
    <name>Prefs_Dialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Template &amp;library:</source>
        <translation>&amp;Biblioteca de plantillas:</translation>
    </message>
    <message>
        <source>Template library</source>
        <translation>Biblioteca de plantillas</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>The folder in which your templates lie. Templates elsewhere are not shown.</source>
        <translation>La carpeta donde están sus plantillas. Las que estén en otro lugar no se muestran.</translation>
    </message>
    <message>
        <source>After a project:</source>
        <translation>Tras un proyecto:</translation>
    </message>
    <message>
        <source>&amp;Open its folder</source>
        <translation>&amp;Abrir su carpeta</translation>
    </message>
    <message>
        <source>&amp;Quit Tessaro</source>
        <translation>&amp;Salir de Tessaro</translation>
    </message>
    <message>
        <source>Template pane:</source>
        <translation>Panel de plantillas:</translation>
    </message>
    <message>
        <source>&amp;Show every folder opened</source>
        <translation>&amp;Desplegar todas las carpetas</translation>
    </message>
    <message>
        <source>Ask for a password:</source>
        <translation>Pedir contraseña:</translation>
    </message>
    <message>
        <source>When &amp;Tessaro starts</source>
        <translation>Al &amp;iniciar Tessaro</translation>
    </message>
    <message>
        <source>Before the &amp;preferences open</source>
        <translation>Antes de abrir las &amp;preferencias</translation>
    </message>
    <message>
        <source>An administrator’s. It holds for every user of this computer, and switching one off asks for it.</source>
        <translation>La de un administrador. Estos ajustes valen para todos los usuarios de este equipo; también se pide al desactivarlos.</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ubicación:</translation>
    </message>
    <message>
        <source>&amp;Create every project in this folder:</source>
        <translation>&amp;Crear todos los proyectos en esta carpeta:</translation>
    </message>
    <message>
        <source>Fixed project location</source>
        <translation>Ubicación fija de proyectos</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>Otherwise you choose a folder for each project.</source>
        <translation>Si no, se elige una carpeta para cada proyecto.</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>Nombres:</translation>
    </message>
    <message>
        <source>Only &amp;letters, digits, hyphens and underscores</source>
        <translation>&amp;Solo letras, cifras, guiones y guiones bajos</translation>
    </message>
    <message>
        <source>Anything else is left out of what you type: for servers and programs that stumble over spaces and accents.</source>
        <translation>Lo demás se omite de lo que se escribe: para servidores y programas que tropiezan con espacios y acentos.</translation>
    </message>
    <message>
        <source>Filename parameters</source>
        <translation>Parámetros del nombre</translation>
    </message>
    <message>
        <source>Add a parameter</source>
        <translation>Añadir un parámetro</translation>
    </message>
    <message>
        <source>Remove the selected parameters</source>
        <translation>Eliminar los parámetros seleccionados</translation>
    </message>
    <message>
        <source>Its &amp;Values…</source>
        <translation>&amp;Valores…</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Separador:</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>&amp;Date format:</source>
        <translation>&amp;Formato de fecha:</translation>
    </message>
    <message>
        <source>Date format</source>
        <translation>Formato de fecha</translation>
    </message>
    <message>
        <source>Custom date format</source>
        <translation>Formato de fecha personalizado</translation>
    </message>
    <message>
        <source>A project now:</source>
        <translation>Un proyecto hoy:</translation>
    </message>
    <message>
        <source>Folders of a project</source>
        <translation>Carpetas de un proyecto</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Shared set-&amp;up:</source>
        <translation>Con&amp;figuración compartida:</translation>
    </message>
    <message>
        <source>Shared set-up</source>
        <translation>Configuración compartida</translation>
    </message>
    <message>
        <source>A folder in which your studio keeps templates, parameters and settings for everybody. Empty: your own.</source>
        <translation>Una carpeta donde su estudio guarda plantillas, parámetros y ajustes para todos. Vacío: los suyos.</translation>
    </message>
    <message>
        <source>Before templates are chan&amp;ged</source>
        <translation>Antes de &amp;cambiar plantillas</translation>
    </message>
    <message>
        <source>What is grey is set by your studio.</source>
        <translation>Lo que aparece en gris lo establece su estudio.</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Stop the work (Escape)</source>
        <translation>Detener el trabajo (Esc)</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
</context>
<context>
    <name>ProjectBatch</name>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>Line %1 makes the same project: %2</source>
        <translation>La línea %1 crea el mismo proyecto: %2</translation>
    </message>
    <message>
        <source>This row has more cells than there are columns.</source>
        <translation>Esta fila tiene más celdas que columnas tiene la tabla.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1</source>
        <translation>Ya existe un proyecto con este nombre: %1</translation>
    </message>
    <message>
        <source>Repeats would make more than %L1 items.</source>
        <translation>Las repeticiones crearían más de %L1 elementos.</translation>
    </message>
    <message>
        <source>The new name of %1 is taken, or too long.</source>
        <translation>El nuevo nombre de %1 ya está en uso o es demasiado largo.</translation>
    </message>
</context>
<context>
    <name>ProjectCheck</name>
    <message>
        <source>%1: is missing</source>
        <translation>%1: falta</translation>
    </message>
    <message>
        <source>%1: a file stands where a folder was made, or the other way round</source>
        <translation>%1: hay un archivo donde se creó una carpeta, o al revés</translation>
    </message>
    <message>
        <source>%1: had contents, and is empty</source>
        <translation>%1: tenía contenido y ahora está vacío</translation>
    </message>
    <message>
        <source>%1: cannot be looked at</source>
        <translation>%1: no se puede comprobar</translation>
    </message>
</context>
<context>
    <name>ProjectCreation</name>
    <message>
        <source>Unable to create folder %@</source>
        <translation>No se pudo crear la carpeta %@</translation>
    </message>
    <message>
        <source>Creating %1</source>
        <translation>Creando %1</translation>
    </message>
    <message>
        <source>What was typed, and the numbers that were taken, could not be stored</source>
        <translation>No se pudieron guardar los valores escritos ni los números asignados</translation>
    </message>
    <message>
        <source>The next project may get the same number.</source>
        <translation>El próximo proyecto podría recibir el mismo número.</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>No se pudo mover el archivo %@ a %@</translation>
    </message>
    <message>
        <source>Something of the stopped project is left in %@</source>
        <translation>Queda algo del proyecto detenido en %@</translation>
    </message>
    <message>
        <source>The old project %@ is in the Trash</source>
        <translation>El proyecto anterior %@ está en la papelera</translation>
    </message>
    <message>
        <source>It was put there before the creation was stopped.</source>
        <translation>Se puso ahí antes de que se detuviera la creación.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1</source>
        <translation>Ya existe un proyecto con este nombre: %1</translation>
    </message>
    <message>
        <source>A project with this name already exists. Are you sure you wish to overwrite it?</source>
        <translation>Ya existe un proyecto con este nombre. ¿Seguro que quiere sobrescribirlo?</translation>
    </message>
    <message>
        <source>The old project will be placed in the trash.</source>
        <translation>El proyecto anterior irá a la papelera.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Unable to move %@ to the Trash</source>
        <translation>No se pudo mover %@ a la papelera</translation>
    </message>
    <message>
        <source>The old project was left as it is, and no new one was created. Please check that you have write permissions for the folder it lies in.</source>
        <translation>El proyecto anterior se dejó como estaba y no se creó ninguno nuevo. Compruebe que tiene permiso de escritura en la carpeta que lo contiene.</translation>
    </message>
    <message>
        <source>labels</source>
        <translation>etiquetas</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>permisos</translation>
    </message>
    <message>
        <source>owners</source>
        <translation>propietarios</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>fechas</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>y %n más; el registro lo detalla</numerusform>
            <numerusform>y %n más; el registro los detalla</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ would get more than %ld items from repeats</source>
        <translation>%@ tendría más de %ld elementos por las repeticiones</translation>
    </message>
    <message>
        <source>Is that what you want?</source>
        <translation>¿Es lo que quiere?</translation>
    </message>
    <message>
        <source>Create Them</source>
        <translation>Crearlos</translation>
    </message>
    <message>
        <source>Its repeats would make more than %ld items.</source>
        <translation>Sus repeticiones crearían más de %ld elementos.</translation>
    </message>
    <message>
        <source>Others like this: %1</source>
        <translation>Otros casos así: %1</translation>
    </message>
    <message>
        <source>The template’s rules and the values do not fit; nothing was created</source>
        <translation>Las reglas de la plantilla y los valores no encajan; no se creó nada</translation>
    </message>
    <message>
        <source>Unable to copy contents of template</source>
        <translation>No se pudo copiar el contenido de la plantilla</translation>
    </message>
    <message>
        <source>The drive at %@ does not keep everything. The project is complete, but for the template&apos;s %@.</source>
        <translation>La unidad de %@ no lo conserva todo. El proyecto está completo, salvo estos datos de la plantilla: %@.</translation>
    </message>
    <message>
        <source>Unable to look for names to replace in %@</source>
        <translation>No se pudieron buscar nombres que reemplazar en %@</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Falló el programa al que se avisa de los proyectos nuevos</translation>
    </message>
    <message>
        <source>The project was created; nothing was undone.</source>
        <translation>El proyecto se creó; no se deshizo nada.</translation>
    </message>
</context>
<context>
    <name>ProjectPane</name>
    <message>
        <source>Choose the Project Location</source>
        <translation>Elegir la ubicación de los proyectos</translation>
    </message>
</context>
<context>
    <name>ProjectTable</name>
    <message>
        <source>This is no table of text. Please save the sheet as CSV (UTF-8).</source>
        <translation>No es una tabla de texto. Guarde la hoja como CSV (UTF-8).</translation>
    </message>
    <message>
        <source>The table has more than %L1 rows. Please divide it.</source>
        <translation>La tabla tiene más de %L1 filas. Divídala.</translation>
    </message>
    <message>
        <source>The table has no rows. The first one names the parameters, each other one is a project.</source>
        <translation>La tabla no tiene filas. La primera da nombre a los parámetros; cada una de las demás es un proyecto.</translation>
    </message>
    <message>
        <source>Two columns are called “%1”.</source>
        <translation>Dos columnas se llaman «%1».</translation>
    </message>
    <message>
        <source>The quotes that are opened in line %1 are never closed.</source>
        <translation>Las comillas que se abren en la línea %1 no se cierran.</translation>
    </message>
</context>
<context>
    <name>RenameSheet</name>
    <message numerus="yes">
        <source>Rename %n Items</source>
        <translation>
            <numerusform>Renombrar %n elemento</numerusform>
            <numerusform>Renombrar %n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>the whole name</source>
        <translation>el nombre entero</translation>
    </message>
    <message>
        <source>Day ## counts: Day 01, Day 02 …</source>
        <translation>Día ## numera: Día 01, Día 02…</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>Reempla&amp;zar por:</translation>
    </message>
    <message>
        <source>First &amp;number:</source>
        <translation>Primer &amp;número:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Nuevo nombre</translation>
    </message>
    <message>
        <source>What the names become</source>
        <translation>Cómo quedan los nombres</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>stays as it is</source>
        <translation>se queda igual</translation>
    </message>
</context>
<context>
    <name>RequestCheck</name>
    <message>
        <source>You must specify at least one parameter.</source>
        <translation>Debe indicar al menos un parámetro.</translation>
    </message>
    <message>
        <source>The values give a folder level without a usable name (nothing, or dots only). Please change them.</source>
        <translation>Los valores dan lugar a un nivel de carpeta sin nombre utilizable (vacío o solo puntos). Cámbielos.</translation>
    </message>
    <message>
        <source>The name of a folder can have 255 bytes, and this one has %1. Please shorten a value.</source>
        <translation>El nombre de una carpeta puede tener 255 bytes y este tiene %1. Acorte algún valor.</translation>
    </message>
    <message>
        <source>Unable to create folder</source>
        <translation>No se pudo crear la carpeta</translation>
    </message>
    <message>
        <source>&apos;%@&apos; cannot be left blank</source>
        <translation>«%@» no puede quedar vacío</translation>
    </message>
    <message>
        <source>Please fill in this parameter before creating a project.</source>
        <translation>Rellene este parámetro antes de crear un proyecto.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; cannot count any further</source>
        <translation>«%@» no puede seguir contando</translation>
    </message>
    <message>
        <source>Its number has too many digits: counters end at 2147483646. A date in front of a number is better a parameter of its own.</source>
        <translation>Su número tiene demasiadas cifras: los contadores llegan hasta 2147483646. Una fecha delante del número queda mejor como parámetro aparte.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; has to be changed</source>
        <translation>Hay que cambiar «%@»</translation>
    </message>
    <message>
        <source>There is no parameter “%1”. %2</source>
        <translation>No hay ningún parámetro «%1». %2</translation>
    </message>
    <message>
        <source>The parameter “%1” is locked.</source>
        <translation>El parámetro «%1» está bloqueado.</translation>
    </message>
    <message>
        <source>“%1” is not among the choices of “%2”. %3</source>
        <translation>«%1» no está entre las opciones de «%2». %3</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>La lista está vacía.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Disponibles: %1.</translation>
    </message>
    <message>
        <source>The studio’s templates are just being brought up to date. Please try again in a moment.</source>
        <translation>Las plantillas del estudio se están actualizando en este momento. Vuelva a intentarlo dentro de un instante.</translation>
    </message>
</context>
<context>
    <name>ResultModel</name>
    <message>
        <source>too long for a folder</source>
        <translation>muy largo para una carpeta</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <translation>%1, carpeta</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>the new name is taken</source>
        <translation>nuevo nombre ya en uso</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>nuevo nombre demasiado largo</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>antes %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>ResultPane</name>
    <message>
        <source>The project as it will be</source>
        <translation>El proyecto tal como quedará</translation>
    </message>
    <message>
        <source>Folders: %1, files: %2, %3</source>
        <translation>Carpetas: %1, archivos: %2, %3</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>Names that cannot be given: %1</source>
        <translation>Nombres no admitidos: %1</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read: %1</source>
        <translation>No se pueden leer las reglas de la plantilla: %1</translation>
    </message>
    <message>
        <source>Repeats make more than %L1 items. These are the first.</source>
        <translation>Las repeticiones crean más de %L1 elementos. Estos son los primeros.</translation>
    </message>
    <message>
        <source>A project of this name is there already. It goes to the Trash when this one is created. Items: %1</source>
        <translation>Ya hay un proyecto con este nombre. Irá a la papelera al crear este. Elementos: %1</translation>
    </message>
</context>
<context>
    <name>RuleInspector</name>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Put Them &amp;Aside</source>
        <translation>Apa&amp;rtarlas</translation>
    </message>
    <message>
        <source>all of these are true</source>
        <translation>se cumplen todas</translation>
    </message>
    <message>
        <source>any of these is true</source>
        <translation>se cumple alguna</translation>
    </message>
    <message>
        <source>When it is made</source>
        <translation>Cuándo se crea</translation>
    </message>
    <message>
        <source>Add &amp;Condition</source>
        <translation>Añadir &amp;condición</translation>
    </message>
    <message>
        <source>once</source>
        <translation>una vez</translation>
    </message>
    <message>
        <source>once for each number</source>
        <translation>una vez por número</translation>
    </message>
    <message>
        <source>once for each value</source>
        <translation>una vez por valor</translation>
    </message>
    <message>
        <source>How often it is made</source>
        <translation>Cuántas veces se crea</translation>
    </message>
    <message>
        <source>How &amp;often:</source>
        <translation>C&amp;uántas veces:</translation>
    </message>
    <message>
        <source>Of the parameter</source>
        <translation>Del parámetro</translation>
    </message>
    <message>
        <source>Called in names</source>
        <translation>Cómo se llama en los nombres</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>as</source>
        <translation>como</translation>
    </message>
    <message>
        <source>Fill in values in its te&amp;xt</source>
        <translation>Rellenar valores en el te&amp;xto</translation>
    </message>
    <message>
        <source>The whole template</source>
        <translation>Toda la plantilla</translation>
    </message>
    <message>
        <source>&amp;Fill in values in names</source>
        <translation>Rellenar valores en &amp;nombres</translation>
    </message>
    <message>
        <source>{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}</source>
        <translation>{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}</translation>
    </message>
    <message>
        <source>Va&amp;lues in the text of:</source>
        <translation>Valores en el texto &amp;de:</translation>
    </message>
    <message>
        <source>Its Pa&amp;rameters…</source>
        <translation>Paráme&amp;tros…</translation>
    </message>
    <message>
        <source>Select one item for its rules.</source>
        <translation>Seleccione un elemento para ver sus reglas.</translation>
    </message>
    <message>
        <source>No template is selected.</source>
        <translation>Ninguna plantilla seleccionada.</translation>
    </message>
    <message>
        <source>Made always.</source>
        <translation>Se crea siempre.</translation>
    </message>
    <message>
        <source>&amp;Made if:</source>
        <translation>&amp;Se crea si:</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Remove this condition</source>
        <translation>Eliminar esta condición</translation>
    </message>
    <message>
        <source>Its name has the number as {%1}, or {%1:00} with two places.</source>
        <translation>Su nombre lleva el número como {%1}, o {%1:00} con dos cifras.</translation>
    </message>
    <message>
        <source>Its name has the value as {%1}.</source>
        <translation>Su nombre lleva el valor como {%1}.</translation>
    </message>
    <message>
        <source>Rules of items that are gone:</source>
        <translation>Reglas de elementos que ya no existen:</translation>
    </message>
    <message>
        <source>Remove the rule of %1</source>
        <translation>Eliminar la regla de %1</translation>
    </message>
</context>
<context>
    <name>RuledTree</name>
    <message>
        <source>Another item here gets the name “%1”, too.</source>
        <translation>Otro elemento recibe aquí el mismo nombre, «%1».</translation>
    </message>
</context>
<context>
    <name>RulesCommand</name>
    <message>
        <source>This is no JSON: %1, at byte %2.</source>
        <translation>No es JSON: %1, en el byte %2.</translation>
    </message>
    <message>
        <source>Rules are one JSON object: { … }.</source>
        <translation>Las reglas son un solo objeto JSON: { … }.</translation>
    </message>
    <message>
        <source>The old rules were damaged; they are kept as %1.</source>
        <translation>Las reglas anteriores estaban dañadas; se conservan como %1.</translation>
    </message>
    <message>
        <source>The rules cannot be read.</source>
        <translation>No se pueden leer las reglas.</translation>
    </message>
    <message>
        <source>The rules were not changed.</source>
        <translation>No se cambiaron las reglas.</translation>
    </message>
    <message>
        <source>There is no template “%1”.</source>
        <translation>No hay ninguna plantilla «%1».</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Aquí se requieren derechos de administrador y se denegaron.</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read; --set puts others in their place and keeps them beside.</source>
        <translation>No se pueden leer las reglas de la plantilla; --set pone otras en su lugar y las conserva al lado.</translation>
    </message>
    <message>
        <source>There is a rule for an item that is gone: %1</source>
        <translation>Hay una regla para un elemento que ya no existe: %1</translation>
    </message>
</context>
<context>
    <name>SearchComboBox</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The value is on or off.</source>
        <translation>El valor es on u off.</translation>
    </message>
    <message>
        <source>Please type the whole path, from the first slash on, or choose a folder.</source>
        <translation>Escriba la ruta completa, desde la primera barra, o elija una carpeta.</translation>
    </message>
    <message>
        <source>A file stands there. Please choose a folder.</source>
        <translation>Ahí hay un archivo. Elija una carpeta.</translation>
    </message>
    <message>
        <source>Slashes and colons cannot be in a folder&apos;s name.</source>
        <translation>El nombre de una carpeta no puede llevar barras ni dos puntos.</translation>
    </message>
    <message>
        <source>At most ten characters.</source>
        <translation>Diez caracteres como máximo.</translation>
    </message>
    <message>
        <source>This gives no date. %Y is the year, %m the month, %d the day.</source>
        <translation>Esto no produce ninguna fecha. %Y es el año, %m el mes, %d el día.</translation>
    </message>
    <message>
        <source>The percent sign at the end has no letter behind it.</source>
        <translation>Al signo de porcentaje del final no le sigue ninguna letra.</translation>
    </message>
    <message>
        <source>One of the percent signs has a letter behind it that stands for nothing. %Y is the year, %m the month, %d the day.</source>
        <translation>A uno de los signos de porcentaje le sigue una letra que no significa nada. %Y es el año, %m el mes, %d el día.</translation>
    </message>
    <message>
        <source>folder of the template library</source>
        <translation>carpeta de la biblioteca de plantillas</translation>
    </message>
    <message>
        <source>template of new projects</source>
        <translation>plantilla de los nuevos proyectos</translation>
    </message>
    <message>
        <source>create every project in one folder</source>
        <translation>crear todos los proyectos en una carpeta</translation>
    </message>
    <message>
        <source>that folder</source>
        <translation>esa carpeta</translation>
    </message>
    <message>
        <source>between the values of one folder level</source>
        <translation>entre los valores de un nivel de carpeta</translation>
    </message>
    <message>
        <source>how dates are written</source>
        <translation>cómo se escriben las fechas</translation>
    </message>
    <message>
        <source>only letters, digits, - and _</source>
        <translation>solo letras, cifras, - y _</translation>
    </message>
    <message>
        <source>open a new project&apos;s folder</source>
        <translation>abrir la carpeta de un proyecto nuevo</translation>
    </message>
    <message>
        <source>quit after a project</source>
        <translation>salir tras crear un proyecto</translation>
    </message>
    <message>
        <source>show every folder of a template opened</source>
        <translation>desplegar todas las carpetas de una plantilla</translation>
    </message>
    <message>
        <source>ask for a password at the start</source>
        <translation>pedir contraseña al iniciar</translation>
    </message>
    <message>
        <source>ask before templates are changed</source>
        <translation>pedir contraseña antes de cambiar plantillas</translation>
    </message>
    <message>
        <source>ask before settings are changed</source>
        <translation>pedir contraseña antes de cambiar ajustes</translation>
    </message>
    <message>
        <source>There is no template “%1”. There are: %2.</source>
        <translation>No hay ninguna plantilla «%1». Disponibles: %2.</translation>
    </message>
    <message>
        <source>Please type the whole path of a program that may be run.</source>
        <translation>Escriba la ruta completa de un programa ejecutable.</translation>
    </message>
    <message>
        <source>The value is a number of seconds, from 1 to %1.</source>
        <translation>El valor es un número de segundos, de 1 a %1.</translation>
    </message>
    <message>
        <source>program that gets each new project as JSON on its standard input</source>
        <translation>programa que recibe cada proyecto nuevo como JSON por su entrada estándar</translation>
    </message>
    <message>
        <source>how many seconds it may take</source>
        <translation>cuántos segundos puede tardar</translation>
    </message>
    <message>
        <source>folder of the set-up that your studio shares</source>
        <translation>carpeta de la configuración que comparte su estudio</translation>
    </message>
    <message>
        <source>Set by your studio</source>
        <translation>Definido por su estudio</translation>
    </message>
</context>
<context>
    <name>SettingsCommand</name>
    <message>
        <source>There is no setting “%1”. Tessaro settings lists them.</source>
        <translation>No hay ningún ajuste «%1». Tessaro settings los enumera.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Aquí se requieren derechos de administrador y se denegaron.</translation>
    </message>
    <message>
        <source>The setting could not be stored.</source>
        <translation>No se pudo guardar el ajuste.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>No se puede leer la biblioteca de plantillas.</translation>
    </message>
</context>
<context>
    <name>SetupCommand</name>
    <message>
        <source>No set-up is shared.</source>
        <translation>No hay ninguna configuración compartida.</translation>
    </message>
    <message>
        <source>Folder: %1
Templates: %2
Locked: %3
Last change: %4</source>
        <translation>Carpeta: %1
Plantillas: %2
Bloqueado: %3
Último cambio: %4</translation>
    </message>
    <message>
        <source>the studio’s</source>
        <translation>las del estudio</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>las suyas</translation>
    </message>
    <message>
        <source>The setting could not be stored.</source>
        <translation>No se pudo guardar el ajuste.</translation>
    </message>
    <message>
        <source>This folder holds no set-up that can be used. Tessaro setup export writes one.</source>
        <translation>Esta carpeta no contiene ninguna configuración utilizable. Tessaro setup export crea una.</translation>
    </message>
    <message>
        <source>What can be locked: parameters, %1; or none.</source>
        <translation>Se puede bloquear: parameters, %1; o none.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>La carpeta %1 no existe.</translation>
    </message>
    <message>
        <source>The set-up could not be written.</source>
        <translation>No se pudo guardar la configuración.</translation>
    </message>
    <message>
        <source>It is set for every user of this computer; an administrator takes it away: %1</source>
        <translation>Está definida para todos los usuarios de este ordenador; un administrador puede quitarla: %1</translation>
    </message>
    <message>
        <source>Another program takes over or uses a set-up just now. Please try again in a moment.</source>
        <translation>Otro programa está adoptando o usando una configuración en este momento. Vuelva a intentarlo dentro de un instante.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>No se puede leer la biblioteca de plantillas.</translation>
    </message>
    <message>
        <source>The set-up was left; it counts until whatever uses it has finished.</source>
        <translation>Se ha dejado la configuración; se aplica hasta que termine lo que la usa.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Idle</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
</context>
<context>
    <name>StudioLibrary</name>
    <message>
        <source>Taking over the studio’s set-up</source>
        <translation>Adoptando la configuración del estudio</translation>
    </message>
    <message>
        <source>The studio’s set-up cannot be reached. The copy of %1 is used.</source>
        <translation>No se puede acceder a la configuración del estudio. Se usa la copia del %1.</translation>
    </message>
    <message>
        <source>The studio’s set-up cannot be reached. Your own is used.</source>
        <translation>No se puede acceder a la configuración del estudio. Se usa la suya.</translation>
    </message>
    <message>
        <source>Writing the studio’s set-up</source>
        <translation>Guardando la configuración del estudio</translation>
    </message>
    <message>
        <source>Part of the studio’s set-up could not be taken over.</source>
        <translation>No se pudo adoptar una parte de la configuración del estudio.</translation>
    </message>
    <message>
        <source>Another program takes over or uses the studio’s set-up just now; what is new waits.</source>
        <translation>Otro programa está adoptando o usando la configuración del estudio en este momento; lo nuevo espera.</translation>
    </message>
    <message>
        <source>The studio’s set-up could not be taken over. The copy of %1 is used.</source>
        <translation>No se pudo adoptar la configuración del estudio. Se usa la copia del %1.</translation>
    </message>
    <message>
        <source>The studio’s set-up could not be taken over. Your own is used.</source>
        <translation>No se pudo adoptar la configuración del estudio. Se usa la suya.</translation>
    </message>
</context>
<context>
    <name>TableSheet</name>
    <message>
        <source>&amp;All of them, or none</source>
        <translation>&amp;Todos o ninguno</translation>
    </message>
    <message>
        <source>&amp;Leave out rows with problems</source>
        <translation>&amp;Omitir filas con problemas</translation>
    </message>
    <message>
        <source>Create From Table</source>
        <translation>Crear desde tabla</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>The first row names parameters, each other one is a project (CSV, or a spreadsheet’s cells). A column “Template” chooses the template.</source>
        <translation>La primera fila da nombre a los parámetros; cada una de las demás es un proyecto (CSV, o celdas de una hoja de cálculo). Una columna «Template» elige la plantilla.</translation>
    </message>
    <message>
        <source>The folder that the projects go to</source>
        <translation>La carpeta donde se crean los proyectos</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>In:</source>
        <translation>En:</translation>
    </message>
    <message>
        <source>Create Pro&amp;jects</source>
        <translation>C&amp;rear proyectos</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>The project of the selected row</source>
        <translation>El proyecto de la fila seleccionada</translation>
    </message>
    <message>
        <source>Choose a table</source>
        <translation>Elegir una tabla</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt *.tab);;All files (*)</source>
        <translation>Tablas (*.csv *.tsv *.txt *.tab);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Choose a destination</source>
        <translation>Elegir un destino</translation>
    </message>
    <message>
        <source>Please choose a folder.</source>
        <translation>Elija una carpeta.</translation>
    </message>
    <message>
        <source>Looking at the table…</source>
        <translation>Revisando la tabla…</translation>
    </message>
    <message>
        <source>Projects: %L1</source>
        <translation>Proyectos: %L1</translation>
    </message>
    <message>
        <source>Projects: %L1, with problems: %L2</source>
        <translation>Proyectos: %L1, con problemas: %L2</translation>
    </message>
    <message>
        <source>No parameter is called: %1</source>
        <translation>Ningún parámetro se llama: %1</translation>
    </message>
</context>
<context>
    <name>TemplateCommand</name>
    <message>
        <source>There is no template “%1”. There are: %2.</source>
        <translation>No hay ninguna plantilla «%1». Disponibles: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be a template&apos;s name. Leave out slashes, colons, and dots at the beginning.</source>
        <translation>«%1» no sirve como nombre de plantilla. Quite las barras, los dos puntos y los puntos iniciales.</translation>
    </message>
    <message>
        <source>There is a template “%1” already.</source>
        <translation>Ya hay una plantilla «%1».</translation>
    </message>
    <message>
        <source>Nothing was removed. Say --yes to move the template to the Trash.</source>
        <translation>No se eliminó nada. Añada --yes para mover la plantilla a la papelera.</translation>
    </message>
    <message>
        <source>--unset belongs to template default, without a name.</source>
        <translation>--unset va con template default, sin nombre.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Aquí se requieren derechos de administrador y se denegaron.</translation>
    </message>
    <message>
        <source>The template has no folder “Files”: %1</source>
        <translation>La plantilla no tiene la carpeta «Files»: %1</translation>
    </message>
    <message>
        <source>This folder of the template cannot be read:</source>
        <translation>No se puede leer esta carpeta de la plantilla:</translation>
    </message>
    <message>
        <source>%1 is not a template: its name ends neither in “.tzt” nor in “.tzt.zip”.</source>
        <translation>%1 no es una plantilla: su nombre no termina en «.tzt» ni en «.tzt.zip».</translation>
    </message>
    <message>
        <source>%1 exists already. Please say another name.</source>
        <translation>%1 ya existe. Indique otro nombre.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>%1 is a link; what it leads to is not changed from here.</source>
        <translation>%1 es un enlace; su destino no se cambia desde aquí.</translation>
    </message>
    <message>
        <source>This is no template, it lacks the folder %1.</source>
        <translation>No es una plantilla: le falta la carpeta %1.</translation>
    </message>
    <message>
        <source>Not all folders could be made.</source>
        <translation>No se pudieron crear todas las carpetas.</translation>
    </message>
    <message>
        <source>Nothing was restored. Say --yes to put back the templates that ship with Tessaro; changed ones go to the Trash.</source>
        <translation>No se restauró nada. Añada --yes para reponer las plantillas incluidas con Tessaro; las modificadas van a la papelera.</translation>
    </message>
    <message>
        <source>Not all templates could be restored.</source>
        <translation>No se pudieron restaurar todas las plantillas.</translation>
    </message>
</context>
<context>
    <name>TemplateLibrary</name>
    <message>
        <source>Unable to create directory %@</source>
        <translation>No se pudo crear la carpeta %@</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>No se pudo copiar el archivo %@ a %@</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove the template &apos;%@&apos;?</source>
        <translation>¿Seguro que quiere eliminar la plantilla «%@»?</translation>
    </message>
    <message>
        <source>The template file will be placed in your Trash.</source>
        <translation>El archivo de la plantilla irá a la papelera.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Unable to remove template %@</source>
        <translation>No se pudo eliminar la plantilla %@</translation>
    </message>
    <message>
        <source>Please check that you have write permissions for this file.</source>
        <translation>Compruebe que tiene permiso de escritura en este archivo.</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nombre de archivo no válido</translation>
    </message>
    <message>
        <source>You must enter a filename without invalid characters.</source>
        <translation>Escriba un nombre de archivo sin caracteres no válidos.</translation>
    </message>
    <message>
        <source>Template already exists</source>
        <translation>La plantilla ya existe</translation>
    </message>
    <message>
        <source>You cannot rename this template to %@ because there is already a template with this name.</source>
        <translation>No se puede renombrar esta plantilla como %@ porque ya hay una con ese nombre.</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>No se pudo mover el archivo %@ a %@</translation>
    </message>
    <message>
        <source>Unable to export %@</source>
        <translation>No se pudo exportar %@</translation>
    </message>
    <message numerus="yes">
        <source>%n items of %1 could not be put into the archive as they are</source>
        <translation>
            <numerusform>%n elemento de %1 no se pudo comprimir tal como está</numerusform>
            <numerusform>%n elementos de %1 no se pudieron comprimir tal como están</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to read %@</source>
        <translation>No se pudo leer %@</translation>
    </message>
    <message>
        <source>Please ask for the file again, or unpack it and take in the folder.</source>
        <translation>Pida el archivo de nuevo, o descomprímalo e importe la carpeta.</translation>
    </message>
    <message>
        <source>%@ holds no template</source>
        <translation>%@ no contiene ninguna plantilla</translation>
    </message>
    <message>
        <source>An archive of a template holds one folder whose name ends in “.tzt”.</source>
        <translation>El archivo comprimido de una plantilla contiene una carpeta cuyo nombre termina en «.tzt».</translation>
    </message>
    <message>
        <source>%@ is not a template</source>
        <translation>%@ no es una plantilla</translation>
    </message>
    <message>
        <source>A template is a folder whose name ends in “.tzt”, with a folder “Files” in it. Please choose such a folder.</source>
        <translation>Una plantilla es una carpeta cuyo nombre termina en «.tzt» y que contiene una carpeta «Files». Elija una carpeta así.</translation>
    </message>
</context>
<context>
    <name>TemplatePane</name>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Nueva plantilla</translation>
    </message>
    <message>
        <source>Remove the selected template</source>
        <translation>Eliminar la plantilla seleccionada</translation>
    </message>
    <message>
        <source>Filter the contents</source>
        <translation>Filtrar el contenido</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Contents of the template</source>
        <translation>Contenido de la plantilla</translation>
    </message>
    <message>
        <source>Add a folder, a project file, or what lies elsewhere</source>
        <translation>Añadir una carpeta, un archivo de proyecto o elementos de otro lugar</translation>
    </message>
    <message>
        <source>Add to the template</source>
        <translation>Añadir a la plantilla</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Eliminar los elementos seleccionados</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Nueva plantilla</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Reno&amp;mbrar</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>Mostrar en el &amp;gestor de archivos</translation>
    </message>
    <message>
        <source>New &amp;Folder</source>
        <translation>&amp;Nueva carpeta</translation>
    </message>
    <message>
        <source>Import F&amp;iles and Folders…</source>
        <translation>&amp;Importar archivos y carpetas…</translation>
    </message>
    <message>
        <source>Import Folder &amp;Structure…</source>
        <translation>Importar e&amp;structura de carpetas…</translation>
    </message>
    <message>
        <source>New Folder &amp;Beside</source>
        <translation>Nueva carpeta al &amp;lado</translation>
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
        <source>&amp;Filter</source>
        <translation>&amp;Filtrar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Drop here for the top level</source>
        <translation>Suelte aquí para el nivel superior</translation>
    </message>
    <message>
        <source>&amp;Rules</source>
        <translation>&amp;Reglas</translation>
    </message>
    <message>
        <source>Rules of the template and its items (Ctrl+I)</source>
        <translation>Reglas de la plantilla y sus elementos (Ctrl+I)</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>No se pueden leer las reglas: %1</translation>
    </message>
    <message>
        <source>Select a template on the left.</source>
        <translation>Seleccione una plantilla a la izquierda.</translation>
    </message>
    <message>
        <source>Make a template with the plus sign on the left.</source>
        <translation>Cree una plantilla con el signo más de la izquierda.</translation>
    </message>
    <message>
        <source>Drop files and folders here, or add a folder.</source>
        <translation>Suelte aquí archivos y carpetas, o añada una carpeta.</translation>
    </message>
    <message>
        <source>No label</source>
        <translation>Sin etiqueta</translation>
    </message>
    <message>
        <source>Label %1</source>
        <translation>Etiqueta %1</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>Eti&amp;queta</translation>
    </message>
    <message>
        <source>“%1” cannot be undone</source>
        <translation>No se puede deshacer «%1»</translation>
    </message>
    <message>
        <source>“%1” cannot be done again</source>
        <translation>No se puede rehacer «%1»</translation>
    </message>
    <message>
        <source>Your studio shares no templates yet.</source>
        <translation>Su estudio todavía no comparte plantillas.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacía.</translation>
    </message>
</context>
<context>
    <name>TemplateRules</name>
    <message>
        <source>“%1” is compared by size, and “%2” is no number.</source>
        <translation>«%1» se compara como número, y «%2» no lo es.</translation>
    </message>
    <message>
        <source>A condition asks for the parameter “%1”, which there is none of.</source>
        <translation>Una condición pide el parámetro «%1», que no existe.</translation>
    </message>
    <message>
        <source>A repeat asks for the parameter “%1”, which there is none of.</source>
        <translation>Una repetición pide el parámetro «%1», que no existe.</translation>
    </message>
    <message>
        <source>“%1” has no value yet: how many?</source>
        <translation>«%1» aún no tiene valor: ¿cuántas veces?</translation>
    </message>
    <message>
        <source>“%1” is no number to count to: %2</source>
        <translation>«%1» no es un número de repeticiones: %2</translation>
    </message>
    <message>
        <source>“%1” is too large a number: %2</source>
        <translation>«%1» es un número demasiado grande: %2</translation>
    </message>
    <message>
        <source>is</source>
        <translation>es</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>no es</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>is not empty</source>
        <translation>no está vacío</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>es mayor que</translation>
    </message>
    <message>
        <source>“%1” holds something that is no text</source>
        <translation>«%1» contiene algo que no es texto</translation>
    </message>
    <message>
        <source>“%1” holds something that is no dictionary</source>
        <translation>«%1» contiene algo que no es un diccionario</translation>
    </message>
    <message>
        <source>“%1” is not of the right kind</source>
        <translation>«%1» no es del tipo correcto</translation>
    </message>
    <message>
        <source>“%1” is no condition; there are: is, isNot, contains, isEmpty, isNotEmpty, isGreater</source>
        <translation>«%1» no es una condición; disponibles: is, isNot, contains, isEmpty, isNotEmpty, isGreater</translation>
    </message>
    <message>
        <source>a condition names no parameter</source>
        <translation>una condición no nombra ningún parámetro</translation>
    </message>
    <message>
        <source>“when” takes “all” or “any”, not “%1”</source>
        <translation>«when» admite «all» o «any», no «%1»</translation>
    </message>
    <message>
        <source>“repeat” names no parameter: {&quot;count&quot;: TITLE} or {&quot;values&quot;: TITLE}</source>
        <translation>«repeat» no nombra ningún parámetro: {&quot;count&quot;: TITLE} o {&quot;values&quot;: TITLE}</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a repeat</source>
        <translation>«%1» no puede ser el nombre de una repetición</translation>
    </message>
    <message>
        <source>“repeat” takes “count” or “values”, and “as”, not “%1”</source>
        <translation>«repeat» admite «count» o «values», y «as», no «%1»</translation>
    </message>
    <message>
        <source>Item %1 (%2)</source>
        <translation>Elemento %1 (%2)</translation>
    </message>
    <message>
        <source>its path names no item of the template</source>
        <translation>su ruta no corresponde a ningún elemento de la plantilla</translation>
    </message>
    <message>
        <source>These rules are of a later version of Tessaro.</source>
        <translation>Estas reglas son de una versión posterior de Tessaro.</translation>
    </message>
    <message>
        <source>a parameter of “parameters” has no title</source>
        <translation>un parámetro de «parameters» no tiene título</translation>
    </message>
    <message>
        <source>two parameters of “parameters” are called “%1”</source>
        <translation>dos parámetros de «parameters» se llaman «%1»</translation>
    </message>
</context>
<context>
    <name>TemplateTreeModel</name>
    <message>
        <source>Link to %1</source>
        <translation>Enlace a %1</translation>
    </message>
    <message>
        <source>This lies behind a link, outside of the template. It is not changed from here.</source>
        <translation>Esto está detrás de un enlace, fuera de la plantilla. No se cambia desde aquí.</translation>
    </message>
    <message>
        <source>link</source>
        <translation>enlace</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2, label %3</source>
        <translation>%1, %2, etiqueta %3</translation>
    </message>
    <message>
        <source>only when %1 %2 %3</source>
        <translation>solo si %1 %2 %3</translation>
    </message>
    <message>
        <source>once for each number up to %1</source>
        <translation>una vez por cada número hasta %1</translation>
    </message>
    <message>
        <source>once for each value of %1</source>
        <translation>una vez por cada valor de %1</translation>
    </message>
    <message>
        <source>values in its text</source>
        <translation>valores en su texto</translation>
    </message>
</context>
<context>
    <name>TerminalProgress</name>
    <message>
        <source>stopping</source>
        <translation>deteniendo</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>, en %1</translation>
    </message>
</context>
<context>
    <name>TessaroAppDelegate</name>
    <message>
        <source>Tessaro needs an administrator’s password to start</source>
        <translation>Tessaro necesita la contraseña de un administrador para iniciarse</translation>
    </message>
    <message>
        <source>It was not given, or there is nobody who could ask for it. An administrator can switch this off with: sudo Tessaro settings unset requireAdminPassword</source>
        <translation>No se indicó, o no hay ningún servicio que la pida. Un administrador puede desactivarlo con: sudo Tessaro settings unset requireAdminPassword</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>No se pueden leer sus ajustes</translation>
    </message>
    <message>
        <source>Tessaro shows its defaults instead. What you change and the numbers that projects take are not kept until the file can be read again.</source>
        <translation>Tessaro muestra en su lugar los predeterminados. Los cambios que haga y los números que se asignen a los proyectos no se guardarán hasta que el archivo pueda leerse de nuevo.</translation>
    </message>
    <message>
        <source>Welcome to Tessaro</source>
        <translation>Le damos la bienvenida a Tessaro</translation>
    </message>
    <message>
        <source>Simplify your creative workflows by organizing your assets before you start. Tessaro makes it easy to create customized folder structures for each project.

Modify the included templates to meet your needs or create your own from scratch.</source>
        <translation>Simplifique su flujo de trabajo creativo organizando el material antes de empezar. Con Tessaro es fácil crear una estructura de carpetas a medida para cada proyecto.

Adapte las plantillas incluidas a sus necesidades o cree las suyas desde cero.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Manual de usuario</translation>
    </message>
    <message>
        <source>Tessaro ended unexpectedly the last time</source>
        <translation>Tessaro se cerró inesperadamente la última vez</translation>
    </message>
    <message>
        <source>A report of it lies on this computer; what it says of the program helps to mend the fault. Your projects and templates are as they were.</source>
        <translation>Hay un informe en este equipo; lo que contiene sobre el programa ayuda a corregir el fallo. Sus proyectos y plantillas siguen como estaban.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Mostrar informe</translation>
    </message>
    <message>
        <source>A project was not finished</source>
        <translation>Un proyecto quedó sin terminar</translation>
    </message>
    <message>
        <source>Tessaro or the computer stopped while ‘%1’ was being made. What had been copied is here:

%2</source>
        <translation>Tessaro o el equipo se detuvo mientras se creaba «%1». Lo que se había copiado está aquí:

%2</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>The unfinished project could not be put away</source>
        <translation>No se pudo retirar el proyecto sin terminar</translation>
    </message>
    <message>
        <source>‘%1’ is not whole</source>
        <translation>«%1» no está completo</translation>
    </message>
    <message>
        <source>Projects that are not whole: %1</source>
        <translation>Proyectos incompletos: %1</translation>
    </message>
    <message>
        <source>Create it once more, or take these files from the template.</source>
        <translation>Créelo de nuevo o copie estos archivos desde la plantilla.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>The library at %1 cannot be reached.</source>
        <translation>No se puede acceder a la biblioteca en %1.</translation>
    </message>
    <message>
        <source>About Tessaro</source>
        <translation>Acerca de Tessaro</translation>
    </message>
    <message>
        <source>Tessaro %1</source>
        <translation>Tessaro %1</translation>
    </message>
    <message>
        <source>Starts media and production projects from templates.

© Vantrel</source>
        <translation>Inicia proyectos audiovisuales y de producción a partir de plantillas.

© Vantrel</translation>
    </message>
    <message>
        <source>Creation of ‘%1’</source>
        <translation>Creación de «%1»</translation>
    </message>
    <message>
        <source>Creation From Table</source>
        <translation>Creación desde tabla</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Borrar historial</translation>
    </message>
    <message>
        <source>Undoing %1</source>
        <translation>Deshaciendo %1</translation>
    </message>
    <message>
        <source>‘%1’ cannot be undone</source>
        <translation>No se puede deshacer «%1»</translation>
    </message>
    <message>
        <source>It is not at its place any more.</source>
        <translation>Ya no está en su lugar.</translation>
    </message>
    <message>
        <source>‘%1’ is in the Trash.</source>
        <translation>«%1» está en la papelera.</translation>
    </message>
    <message>
        <source>The old project is still in the Trash</source>
        <translation>El proyecto anterior sigue en la papelera</translation>
    </message>
    <message>
        <source>What was untouched is in the Trash.</source>
        <translation>Lo que no se había tocado está en la papelera.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>y %n más; el registro lo detalla</numerusform>
            <numerusform>y %n más; el registro los detalla</numerusform>
        </translation>
    </message>
    <message>
        <source>Part of ‘%1’ stays</source>
        <translation>Se conserva parte de «%1»</translation>
    </message>
    <message>
        <source>None Yet</source>
        <translation>Aún ninguno</translation>
    </message>
    <message>
        <source>Not There Any More</source>
        <translation>Ya no está</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Show in Its Folder</source>
        <translation>&amp;Mostrar en su carpeta</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Choose a destination</source>
        <translation>Elegir un destino</translation>
    </message>
    <message>
        <source>Choose where projects go</source>
        <translation>Elegir dónde se crean los proyectos</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>El proyecto ya existe</translation>
    </message>
    <message>
        <source>Are you sure you wish to overwrite %@?</source>
        <translation>¿Seguro que quiere sobrescribir %@?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stopped; nothing of the project was kept.</source>
        <translation>Detenido; no se conservó nada del proyecto.</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read</source>
        <translation>No se pueden leer las reglas de la plantilla</translation>
    </message>
    <message>
        <source>Nothing was created. The template pane shows what can be done.</source>
        <translation>No se creó nada. El panel de plantillas muestra qué se puede hacer.</translation>
    </message>
    <message>
        <source>The template has other parameters by now</source>
        <translation>La plantilla tiene ahora otros parámetros</translation>
    </message>
    <message>
        <source>Nothing was created. Please look at the values again.</source>
        <translation>No se creó nada. Revise de nuevo los valores.</translation>
    </message>
    <message>
        <source>Updates cannot be looked for</source>
        <translation>No se pueden buscar actualizaciones</translation>
    </message>
    <message>
        <source>The software updater is not installed on this computer.</source>
        <translation>El actualizador de software no está instalado en este equipo.</translation>
    </message>
    <message>
        <source>and others: %L1; the log names each</source>
        <translation>y otros: %L1; el registro los detalla</translation>
    </message>
    <message>
        <source>There is no template “%1”.</source>
        <translation>No hay ninguna plantilla «%1».</translation>
    </message>
    <message>
        <source>Nothing was kept: what had been created is in the Trash.</source>
        <translation>No se conservó nada: lo creado está en la papelera.</translation>
    </message>
    <message>
        <source>Rows that were left out: %L1</source>
        <translation>Filas omitidas: %L1</translation>
    </message>
    <message>
        <source>The projects could not all be created</source>
        <translation>No se pudieron crear todos los proyectos</translation>
    </message>
    <message>
        <source>Not all went well</source>
        <translation>No todo salió bien</translation>
    </message>
    <message>
        <source>Undoing projects: %L1</source>
        <translation>Deshaciendo proyectos: %L1</translation>
    </message>
    <message>
        <source>In the Trash: %L1 projects.</source>
        <translation>Proyectos en la papelera: %L1.</translation>
    </message>
    <message>
        <source>Part of the projects stays</source>
        <translation>Se conserva parte de los proyectos</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Import Template</source>
        <translation>Importar plantilla</translation>
    </message>
    <message>
        <source>%@ already exists. Overwrite?</source>
        <translation>%@ ya existe. ¿Sobrescribir?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>Lo que hay ahí irá a la papelera.</translation>
    </message>
    <message>
        <source>Export “%1”</source>
        <translation>Exportar «%1»</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Tessaro: closes when everything has been taken in</source>
        <translation>Tessaro: se cerrará al terminar la importación</translation>
    </message>
    <message>
        <source>%@ is not a template</source>
        <translation>%@ no es una plantilla</translation>
    </message>
    <message>
        <source>Tessaro takes in templates: folders whose name ends in “.tzt”, and archives of them, in “.tzt.zip”.</source>
        <translation>Tessaro importa plantillas: carpetas cuyo nombre termina en «.tzt» y sus archivos comprimidos, en «.tzt.zip».</translation>
    </message>
    <message>
        <source>Tessaro</source>
        <translation>Tessaro</translation>
    </message>
    <message>
        <source>Restore of the Default Templates</source>
        <translation>Restauración de las plantillas predeterminadas</translation>
    </message>
    <message>
        <source>Not all templates could be restored</source>
        <translation>No se pudieron restaurar todas las plantillas</translation>
    </message>
    <message>
        <source>Those that could not be replaced were left as they are.</source>
        <translation>Las que no se pudieron reemplazar se dejaron como estaban.</translation>
    </message>
    <message>
        <source>Are you sure you wish to restore the default Tessaro templates?</source>
        <translation>¿Seguro que quiere restaurar las plantillas predeterminadas de Tessaro?</translation>
    </message>
    <message>
        <source>This will restore the templates Tessaro ships with by default and will overwrite any modifications you have made to them.</source>
        <translation>Se restaurarán las plantillas incluidas con Tessaro y se sobrescribirán los cambios que haya hecho en ellas.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>History successfully cleared</source>
        <translation>Historial borrado</translation>
    </message>
    <message>
        <source>To switch history logging off entirely, go to Preferences and deselect Save History next to each parameter in the Parameters tab.</source>
        <translation>Para desactivar del todo el historial, vaya a Preferencias y desmarque Historial junto a cada parámetro en la pestaña Parámetros.</translation>
    </message>
    <message>
        <source>&amp;Check…</source>
        <translation>&amp;Comprobar…</translation>
    </message>
    <message>
        <source>Choose the project to check</source>
        <translation>Elegir qué proyecto comprobar</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>‘%1’ cannot be checked</source>
        <translation>No se puede comprobar «%1»</translation>
    </message>
    <message>
        <source>Tessaro does not remember this project; it was compared with the template “%1”.</source>
        <translation>Tessaro no recuerda este proyecto; se comparó con la plantilla «%1».</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; “Tessaro check” names each</source>
        <translation>
            <numerusform>y %n más; «Tessaro check» lo detalla</numerusform>
            <numerusform>y %n más; «Tessaro check» los detalla</numerusform>
        </translation>
    </message>
    <message>
        <source>Items that depend on values, not looked for: %L1</source>
        <translation>Elementos que dependen de valores y no se comprobaron: %L1</translation>
    </message>
    <message>
        <source>Items looked for: %L1</source>
        <translation>Elementos comprobados: %L1</translation>
    </message>
    <message>
        <source>‘%1’ is complete</source>
        <translation>«%1» está completo</translation>
    </message>
    <message>
        <source>Something is missing in ‘%1’</source>
        <translation>Falta algo en «%1»</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Comprobando %1</translation>
    </message>
    <message>
        <source>No project can be created there</source>
        <translation>No se puede crear ningún proyecto ahí</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Falló el programa al que se avisa de los proyectos nuevos</translation>
    </message>
    <message>
        <source>Editing: from ingest to delivery</source>
        <translation>Edición: de la ingesta a la entrega</translation>
    </message>
    <message>
        <source>Photography: from card to client</source>
        <translation>Fotografía: de la tarjeta al cliente</translation>
    </message>
    <message>
        <source>Podcast and sound: an episode, a mix</source>
        <translation>Pódcast y sonido: un episodio, una mezcla</translation>
    </message>
    <message>
        <source>What would you like to start with?</source>
        <translation>¿Con qué quiere empezar?</translation>
    </message>
    <message>
        <source>The manual cannot be opened</source>
        <translation>No se puede abrir el manual</translation>
    </message>
    <message>
        <source>This desktop has no program for PDF files. The same text can be read here.</source>
        <translation>Este escritorio no tiene ningún programa para archivos PDF. El mismo texto se puede leer aquí.</translation>
    </message>
    <message>
        <source>Show It Here</source>
        <translation>Mostrar aquí</translation>
    </message>
    <message>
        <source>It is missing; please install Tessaro again.</source>
        <translation>No se encuentra; vuelva a instalar Tessaro.</translation>
    </message>
    <message>
        <source>Tessaro is at work; please ask again when it has finished.</source>
        <translation>Tessaro está trabajando; vuelva a pedirlo cuando termine.</translation>
    </message>
    <message>
        <source>Where projects go is set by your studio</source>
        <translation>El lugar de los proyectos lo establece su estudio</translation>
    </message>
    <message>
        <source>The studio’s templates are just being brought up to date</source>
        <translation>Las plantillas del estudio se están actualizando en este momento</translation>
    </message>
    <message>
        <source>Nothing was created. Please try again in a moment.</source>
        <translation>No se ha creado nada. Vuelva a intentarlo dentro de un instante.</translation>
    </message>
    <message>
        <source>The parameters were not stored</source>
        <translation>Los parámetros no se guardaron</translation>
    </message>
    <message>
        <source>Another template is shown by now: that of a studio’s set-up, or of another library.</source>
        <translation>Ahora se muestra otra plantilla: la de la configuración de un estudio o la de otra biblioteca.</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>It is computed from itself, by way of others.</source>
        <translation>Se calcula a partir de sí mismo, a través de otros.</translation>
    </message>
</context>
<context>
    <name>TextValues</name>
    <message>
        <source>%1 has characters that this file, which is no UTF-8, cannot hold. Please save it as UTF-8.</source>
        <translation>%1 tiene caracteres que este archivo, que no es UTF-8, no admite. Guárdelo como UTF-8.</translation>
    </message>
    <message>
        <source>%1 has a character that XML cannot hold.</source>
        <translation>%1 tiene un carácter que XML no admite.</translation>
    </message>
    <message>
        <source>This is no text: no values can be filled in.</source>
        <translation>No es texto: no se pueden rellenar valores.</translation>
    </message>
    <message>
        <source>Values cannot be filled in: %1</source>
        <translation>No se pueden rellenar valores: %1</translation>
    </message>
</context>
<context>
    <name>Tokens</name>
    <message>
        <source>“%1” has no value yet.</source>
        <translation>«%1» aún no tiene valor.</translation>
    </message>
    <message>
        <source>“%1” is no number: %2</source>
        <translation>«%1» no es un número: %2</translation>
    </message>
    <message>
        <source>“%1” is no form of a date, as %Y-%m-%d is.</source>
        <translation>«%1» no es un formato de fecha como %Y-%m-%d.</translation>
    </message>
    <message>
        <source>“%1” is no date: %2</source>
        <translation>«%1» no es una fecha: %2</translation>
    </message>
    <message>
        <source>“%1” is neither places of a number, as 000 is, nor a form of a date, as %Y is.</source>
        <translation>«%1» no indica las cifras de un número, como 000, ni un formato de fecha, como %Y.</translation>
    </message>
    <message>
        <source>There is no parameter “%1”.</source>
        <translation>No hay ningún parámetro «%1».</translation>
    </message>
    <message>
        <source>“%1” changes no value. There are: %2.</source>
        <translation>«%1» no transforma ningún valor. Disponibles: %2.</translation>
    </message>
    <message>
        <source>A “{” without its “}”. Two of them, “{{”, stand for one that is meant.</source>
        <translation>Un «{» sin su «}». Si quiere la llave misma, escriba dos: «{{».</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>it has been changed</source>
        <translation>se ha modificado</translation>
    </message>
    <message>
        <source>the creation has not made it</source>
        <translation>no procede de la creación</translation>
    </message>
    <message>
        <source>it cannot be moved to the Trash</source>
        <translation>no se puede mover a la papelera</translation>
    </message>
</context>
<context>
    <name>Unfinished</name>
    <message>
        <source>The computer lost its power, or was switched off, before the project had reached its drive.</source>
        <translation>El equipo se quedó sin corriente, o se apagó, antes de que el proyecto llegara a guardarse en su unidad.</translation>
    </message>
    <message numerus="yes">
        <source>The computer lost its power, or was switched off, before all of the project had reached its drive. %n of its files are empty or cut off:</source>
        <translation>
            <numerusform>El equipo se quedó sin corriente, o se apagó, antes de que todo el proyecto se guardara en su unidad. %n de sus archivos está vacío o incompleto:</numerusform>
            <numerusform>El equipo se quedó sin corriente, o se apagó, antes de que todo el proyecto se guardara en su unidad. %n de sus archivos están vacíos o incompletos:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserDefaults</name>
    <message>
        <source>It is set for every user of this computer, and only an administrator can change it, with sudo Tessaro settings.</source>
        <translation>Está fijado para todos los usuarios de este equipo y solo un administrador puede cambiarlo, con sudo Tessaro settings.</translation>
    </message>
</context>
<context>
    <name>VTDataController</name>
    <message>
        <source>Unable to create directory %@</source>
        <translation>No se pudo crear la carpeta %@</translation>
    </message>
</context>
<context>
    <name>VTImageTextCell</name>
    <message>
        <source>Name of %1</source>
        <translation>Nombre de %1</translation>
    </message>
</context>
<context>
    <name>VTKeys</name>
    <message>
        <source>New project</source>
        <translation>Nuevo proyecto</translation>
    </message>
    <message>
        <source>Create the project</source>
        <translation>Crear el proyecto</translation>
    </message>
    <message>
        <source>Show the project pane</source>
        <translation>Mostrar el panel de proyecto</translation>
    </message>
    <message>
        <source>Show the template pane</source>
        <translation>Mostrar el panel de plantillas</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Nueva plantilla</translation>
    </message>
    <message>
        <source>Import a template</source>
        <translation>Importar una plantilla</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
</context>
<context>
    <name>VTOutlineView</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VTPreferenceController</name>
    <message>
        <source>“%@” cannot be used</source>
        <translation>«%@» no se puede usar</translation>
    </message>
    <message>
        <source>Unable to create folder %@</source>
        <translation>No se pudo crear la carpeta %@</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Atajos</translation>
    </message>
</context>
<context>
    <name>VTProjectTableController</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, locked</source>
        <translation>%1, bloqueado</translation>
    </message>
    <message>
        <source>%1, automatic</source>
        <translation>%1, automático</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>A project needs this value.</source>
        <translation>Un proyecto necesita este valor.</translation>
    </message>
    <message>
        <source>required</source>
        <translation>obligatorio</translation>
    </message>
    <message>
        <source>Counters end at 2147483646. A date in front of a number is better a parameter of its own.</source>
        <translation>Los contadores llegan hasta 2147483646. Una fecha delante del número queda mejor como parámetro aparte.</translation>
    </message>
    <message>
        <source>counts no further</source>
        <translation>no cuenta más</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>no válido</translation>
    </message>
    <message>
        <source>The name of a folder can have 255 bytes, and this one gets more.</source>
        <translation>El nombre de una carpeta puede tener 255 bytes y este tendría más.</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>muy largo</translation>
    </message>
    <message>
        <source>No folder can be named like this (nothing, or dots only).</source>
        <translation>Ninguna carpeta puede llamarse así (nombre vacío o solo puntos).</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>The template says this value.</source>
        <translation>Este valor lo fija la plantilla.</translation>
    </message>
    <message>
        <source>by the template</source>
        <translation>de la plantilla</translation>
    </message>
    <message>
        <source>not computed</source>
        <translation>sin calcular</translation>
    </message>
    <message>
        <source>Typed in place of “%1”. Delete puts that back.</source>
        <translation>Escrito en lugar de «%1». Supr lo recupera.</translation>
    </message>
    <message>
        <source>typed over</source>
        <translation>a mano</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>VTSavePanel</name>
    <message>
        <source>Create Here</source>
        <translation>Crear aquí</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyConfig</name>
    <message>
        <source>Commands and their shortcuts</source>
        <translation>Comandos y sus atajos</translation>
    </message>
    <message>
        <source>Select a command, press Return, then the keys. They work in every program. Delete takes a shortcut away.</source>
        <translation>Seleccione un comando, pulse Intro y después las teclas. Funcionan en cualquier programa. Supr quita un atajo.</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyFieldEditor</name>
    <message>
        <source>Press the keys of the shortcut</source>
        <translation>Pulse las teclas del atajo</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Pulse las teclas…</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyTableDelegate</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>The shortcuts cannot be changed: %1 Please put that file aside and try again.</source>
        <translation>No se pueden cambiar los atajos: %1 Retire ese archivo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your desktop does not watch these keys now: %1</source>
        <translation>El escritorio no atiende ahora estas teclas: %1</translation>
    </message>
    <message>
        <source>Your desktop watches these keys while Tessaro runs, and may ask you about them.</source>
        <translation>El escritorio atiende estas teclas mientras Tessaro está abierto y puede preguntarle por ellas.</translation>
    </message>
    <message>
        <source>Nothing on this computer watches these keys: neither the shortcut key manager nor a desktop with global shortcuts is there.</source>
        <translation>Nada en este equipo atiende estas teclas: no hay gestor de atajos ni escritorio con atajos globales.</translation>
    </message>
    <message>
        <source>%1 (also for “%2”)</source>
        <translation>%1 (también para «%2»)</translation>
    </message>
    <message>
        <source>Only one of the two can have these keys. Please press others for one of them.</source>
        <translation>Solo uno de los dos puede tener estas teclas. Pulse otras para uno de ellos.</translation>
    </message>
    <message>
        <source>no shortcut</source>
        <translation>sin atajo</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
</context>
<context>
    <name>VTTemplateOutlineController</name>
    <message>
        <source>Import</source>
        <translation>Importación</translation>
    </message>
    <message>
        <source>Import of Folders</source>
        <translation>Importación de carpetas</translation>
    </message>
    <message>
        <source>The rules cannot be changed</source>
        <translation>No se pueden cambiar las reglas</translation>
    </message>
    <message>
        <source>The rules were put aside</source>
        <translation>Las reglas se apartaron</translation>
    </message>
    <message>
        <source>The rules cannot be put aside</source>
        <translation>No se pueden apartar las reglas</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Unable to create folder %@</source>
        <translation>No se pudo crear la carpeta %@</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Nuevo elemento</translation>
    </message>
    <message>
        <source>Unable to create project %@</source>
        <translation>No se pudo crear el proyecto %@</translation>
    </message>
    <message>
        <source>Import Folder Structure</source>
        <translation>Importar estructura de carpetas</translation>
    </message>
    <message>
        <source>Import Files and Folders</source>
        <translation>Importar archivos y carpetas</translation>
    </message>
    <message>
        <source>this item</source>
        <translation>este elemento</translation>
    </message>
    <message>
        <source>these items</source>
        <translation>estos elementos</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove %@?</source>
        <translation>¿Seguro que quiere eliminar %@?</translation>
    </message>
    <message>
        <source>What is removed goes to the Trash. Undo brings it back.</source>
        <translation>Lo que se elimina va a la papelera. Con Deshacer se recupera.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Unable to remove file %@</source>
        <translation>No se pudo eliminar el archivo %@</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>No se pudo copiar el archivo %@ a %@</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nombre de archivo no válido</translation>
    </message>
    <message>
        <source>You must enter a filename without invalid characters.</source>
        <translation>Escriba un nombre de archivo sin caracteres no válidos.</translation>
    </message>
    <message>
        <source>Item already exists</source>
        <translation>El elemento ya existe</translation>
    </message>
    <message>
        <source>You cannot rename this item to %@ because there is already a file or folder with this name.</source>
        <translation>No se puede renombrar este elemento como %@ porque ya hay un archivo o una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>Unable to rename item</source>
        <translation>No se pudo renombrar el elemento</translation>
    </message>
    <message>
        <source>Please check your have write permissions for this item and its parent directory.</source>
        <translation>Compruebe que tiene permiso de escritura en este elemento y en la carpeta que lo contiene.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>No se pudo mover el archivo %@ a %@</translation>
    </message>
    <message>
        <source>%@ already exists. Overwrite?</source>
        <translation>%@ ya existe. ¿Sobrescribir?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>Lo que hay ahí irá a la papelera.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>The text is no list of folders</source>
        <translation>El texto no es una lista de carpetas</translation>
    </message>
    <message>
        <source>Unable to rename the items</source>
        <translation>No se pudieron renombrar los elementos</translation>
    </message>
    <message>
        <source>“%1” cannot be a name.</source>
        <translation>«%1» no puede ser un nombre.</translation>
    </message>
    <message>
        <source>Two of them would be called “%1”.</source>
        <translation>Dos de ellos se llamarían «%1».</translation>
    </message>
    <message>
        <source>There is another item called “%1”.</source>
        <translation>Ya hay otro elemento llamado «%1».</translation>
    </message>
</context>
<context>
    <name>VTTemplateTableController</name>
    <message>
        <source>Unset &amp;Default</source>
        <translation>Quitar &amp;predeterminada</translation>
    </message>
    <message>
        <source>Set as &amp;Default</source>
        <translation>Hacer &amp;predeterminada</translation>
    </message>
    <message>
        <source>Import of ‘%1’</source>
        <translation>Importación de «%1»</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>New Template</source>
        <translation>Nueva plantilla</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>%1, the default template</source>
        <translation>%1, la plantilla predeterminada</translation>
    </message>
</context>
<context>
    <name>VTTroubleshootingUtils</name>
    <message>
        <source>Gathering the logs</source>
        <translation>Recopilando los registros</translation>
    </message>
    <message>
        <source>No logs found</source>
        <translation>No se encontraron registros</translation>
    </message>
    <message>
        <source>There were no logs available to gather.</source>
        <translation>No había registros que recopilar.</translation>
    </message>
    <message>
        <source>Logs gathered successfully</source>
        <translation>Registros recopilados</translation>
    </message>
    <message>
        <source>The gathered logs were placed on your desktop.</source>
        <translation>Los registros recopilados están en el escritorio.</translation>
    </message>
    <message>
        <source>Logs could not be gathered</source>
        <translation>No se pudieron recopilar los registros</translation>
    </message>
    <message>
        <source>Please check your file permissions.</source>
        <translation>Compruebe los permisos de sus archivos.</translation>
    </message>
    <message>
        <source>No log found</source>
        <translation>No se encontró ningún registro</translation>
    </message>
    <message>
        <source>You must perform a task before viewing the log.</source>
        <translation>Debe realizar alguna tarea antes de ver el registro.</translation>
    </message>
    <message>
        <source>You must run the application as a task (e.g. through Cronwick) before viewing a log.</source>
        <translation>Debe ejecutar la aplicación como tarea (p. ej., con Cronwick) antes de ver un registro.</translation>
    </message>
</context>
<context>
    <name>ValueCellDelegate</name>
    <message>
        <source>(not set)</source>
        <translation>(sin definir)</translation>
    </message>
</context>
<context>
    <name>ValueForms</name>
    <message>
        <source>This must be a whole number.</source>
        <translation>Debe ser un número entero.</translation>
    </message>
    <message>
        <source>This must be a date as 2026-11-21.</source>
        <translation>Debe ser una fecha como 2026-11-21.</translation>
    </message>
    <message>
        <source>“%1” is not among the choices.</source>
        <translation>«%1» no está entre las opciones.</translation>
    </message>
    <message>
        <source>This may have %1 characters, and has %2.</source>
        <translation>Puede tener %1 caracteres y tiene %2.</translation>
    </message>
    <message>
        <source>The parameter’s pattern is wrong: %1</source>
        <translation>El patrón del parámetro es incorrecto: %1</translation>
    </message>
    <message>
        <source>This does not fit the pattern %1.</source>
        <translation>No cumple el patrón %1.</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>The file is far too large for what it should be</source>
        <translation>El archivo es demasiado grande para lo que debería ser</translation>
    </message>
    <message>
        <source>The file is not a property list</source>
        <translation>El archivo no es una lista de propiedades</translation>
    </message>
    <message>
        <source>A property list cannot hold this value</source>
        <translation>Una lista de propiedades no admite este valor</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tessaro: the window cannot be started; please install Tessaro again. %1</source>
        <translation>Tessaro: no se puede abrir la ventana; vuelva a instalar Tessaro. %1</translation>
    </message>
    <message>
        <source>Tessaro: there is no display for the window; “Tessaro create” makes a project without one (see --help).</source>
        <translation>Tessaro: no hay pantalla para la ventana; «Tessaro create» crea un proyecto sin ella (véase --help).</translation>
    </message>
</context>
<context>
    <name>platform::GlobalShortcuts</name>
    <message>
        <source>The desktop has ended its global shortcuts.</source>
        <translation>El escritorio cerró sus atajos globales.</translation>
    </message>
    <message>
        <source>The desktop did not give its global shortcuts.</source>
        <translation>El escritorio no concedió sus atajos globales.</translation>
    </message>
    <message>
        <source>The desktop did not take the shortcuts.</source>
        <translation>El escritorio no aceptó los atajos.</translation>
    </message>
</context>
</TS>
