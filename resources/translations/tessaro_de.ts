<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AdministratorQuestion</name>
    <message>
        <source>This needs an administrator’s password</source>
        <translation>Dafür ist das Passwort eines Administrators nötig</translation>
    </message>
    <message>
        <source>None was accepted, or this desktop has no service running that asks for one.</source>
        <translation>Es wurde keines angenommen, oder auf diesem Desktop läuft kein Dienst, der danach fragt.</translation>
    </message>
    <message>
        <source>Inside the Flatpak there are no administrator rights. Tessaro’s other packages have them.</source>
        <translation>Im Flatpak gibt es keine Administratorrechte. In den anderen Paketen von Tessaro gibt es sie.</translation>
    </message>
</context>
<context>
    <name>AfterCreation</name>
    <message>
        <source>Running %1</source>
        <translation>%1 wird ausgeführt</translation>
    </message>
    <message>
        <source>It ended with status %1.</source>
        <translation>Es endete mit dem Exit-Status %1.</translation>
    </message>
    <message>
        <source>It ended with status %1: %2</source>
        <translation>Es endete mit dem Exit-Status %1: %2</translation>
    </message>
</context>
<context>
    <name>BatchCreation</name>
    <message>
        <source>Creating projects: %L1</source>
        <translation>Projekte werden angelegt: %L1</translation>
    </message>
</context>
<context>
    <name>BatchModel</name>
    <message>
        <source>no name</source>
        <translation>kein Name</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>No parameter is called like this: the column is not used.</source>
        <translation>Kein Parameter heißt so: Die Spalte wird nicht verwendet.</translation>
    </message>
</context>
<context>
    <name>BoundSwitch</name>
    <message>
        <source>The switch was left as it was</source>
        <translation>Der Schalter blieb unverändert</translation>
    </message>
    <message>
        <source>The switch was left off</source>
        <translation>Der Schalter blieb aus</translation>
    </message>
    <message>
        <source>Administrator rights could not be had just now. Tessaro would not start any more.</source>
        <translation>Administratorrechte waren gerade nicht zu bekommen. Tessaro würde nicht mehr starten.</translation>
    </message>
</context>
<context>
    <name>BrowseAccessory</name>
    <message>
        <source>A project with this name already exists there. You will be asked what to do.</source>
        <translation>Dort gibt es bereits ein Projekt mit diesem Namen. Sie werden gefragt, was geschehen soll.</translation>
    </message>
    <message>
        <source>Makes: %1</source>
        <translation>Ergibt: %1</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>Tessaro does not remember this project, and there is no template to compare it with: %1</source>
        <translation>Tessaro hat sich dieses Projekt nicht gemerkt, und es gibt keine Vorlage, mit der es sich vergleichen lässt: %1</translation>
    </message>
    <message>
        <source>Not remembered; compared with the template “%1”.</source>
        <translation>Nicht gemerkt; mit der Vorlage „%1“ verglichen.</translation>
    </message>
    <message>
        <source>Items that depend on values, not looked for: %L1</source>
        <translation>Von Werten abhängige Objekte, nicht geprüft: %L1</translation>
    </message>
    <message>
        <source>Complete. Items: %L1</source>
        <translation>Vollständig. Objekte: %L1</translation>
    </message>
    <message>
        <source>There is no project to check.</source>
        <translation>Es gibt kein Projekt, das sich prüfen lässt.</translation>
    </message>
    <message>
        <source>There is no template “%1”. %2</source>
        <translation>Es gibt keine Vorlage „%1“. %2</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 wird geprüft</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was given %n words, which is not what it takes.</source>
        <translation>
            <numerusform>Für „%1“ passt die Zahl der Angaben nicht: %n.</numerusform>
            <numerusform>Für „%1“ passt die Zahl der Angaben nicht: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” needs %2.</source>
        <translation>„%1“ braucht %2.</translation>
    </message>
    <message>
        <source>%1 does not know “%2”.</source>
        <translation>%1 kennt „%2“ nicht.</translation>
    </message>
    <message>
        <source>“%1” takes no value.</source>
        <translation>„%1“ nimmt keinen Wert an.</translation>
    </message>
    <message>
        <source>“%1” needs a value.</source>
        <translation>„%1“ braucht einen Wert.</translation>
    </message>
    <message>
        <source>“%1 %2” is not of the form %3.</source>
        <translation>„%1 %2“ hat nicht die Form %3.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Hier sind Administratorrechte nötig; sie wurden verweigert.</translation>
    </message>
    <message>
        <source>%1 needs to be told what to do: %2.</source>
        <translation>Bei %1 fehlt die Angabe, was zu tun ist. Möglich sind: %2.</translation>
    </message>
    <message>
        <source>%1 cannot “%2”. It can: %3.</source>
        <translation>%1 kennt „%2“ nicht. Möglich sind: %3.</translation>
    </message>
    <message>
        <source>“%1” is no command of Tessaro.</source>
        <translation>„%1“ ist kein Befehl von Tessaro.</translation>
    </message>
    <message>
        <source>The settings cannot be read, and nothing is done without them: neither the parameters nor the numbers that are taken are known.</source>
        <translation>Die Einstellungen lassen sich nicht lesen, und ohne sie geschieht nichts: Weder die Parameter noch die vergebenen Nummern sind bekannt.</translation>
    </message>
    <message>
        <source>Tessaro --help lists what it understands.</source>
        <translation>Tessaro --help listet auf, was möglich ist.</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Exit status: 0 done; 1 failed, or partly failed; 2 wrong usage; 3 the project or template exists and was not overwritten, the command was declined (--yes says yes), or the administrator&apos;s rights were refused; 4 stopped on the way (Ctrl+C): nothing was kept.</source>
        <translation>Exit-Status: 0 erledigt; 1 ganz oder teilweise fehlgeschlagen; 2 falscher Aufruf; 3 das Projekt oder die Vorlage ist vorhanden und wurde nicht überschrieben, der Befehl wurde abgelehnt (--yes stimmt zu), oder die Administratorrechte wurden verweigert; 4 unterwegs abgebrochen (Strg+C): Nichts wurde behalten.</translation>
    </message>
    <message>
        <source>Tessaro starts media and production projects from templates.</source>
        <translation>Tessaro legt Medien- und Produktionsprojekte aus Vorlagen an.</translation>
    </message>
    <message>
        <source>Opens the window.</source>
        <translation>Öffnet das Fenster.</translation>
    </message>
    <message>
        <source>Takes the templates in and shows them.</source>
        <translation>Importiert die Vorlagen und zeigt sie.</translation>
    </message>
    <message>
        <source>“%1” is no command of Tessaro. Tessaro --help lists them.</source>
        <translation>„%1“ ist kein Befehl von Tessaro. Tessaro --help listet alle auf.</translation>
    </message>
    <message>
        <source>starts media and production projects from templates</source>
        <translation>legt Medien- und Produktionsprojekte aus Vorlagen an</translation>
    </message>
    <message>
        <source>There is completion for bash, zsh and fish.</source>
        <translation>Für bash, zsh und fish gibt es eine Befehlsvervollständigung.</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON ausgeben</translation>
    </message>
    <message>
        <source>without it nothing is done</source>
        <translation>ohne diese Angabe geschieht nichts</translation>
    </message>
    <message>
        <source>the template; else the one that the window would choose</source>
        <translation>die Vorlage; sonst die, die das Fenster wählen würde</translation>
    </message>
    <message>
        <source>the folder to create it in; else the fixed project location, when that is on</source>
        <translation>der Ordner für das Projekt; sonst der feste Projektspeicherort, wenn er eingeschaltet ist</translation>
    </message>
    <message>
        <source>a parameter&apos;s value, as if typed into its row; may be repeated</source>
        <translation>der Wert eines Parameters, wie in seine Zeile eingegeben; mehrfach möglich</translation>
    </message>
    <message>
        <source>a project for each row of a table (CSV; - is standard input), all or none</source>
        <translation>ein Projekt für jede Zeile einer Tabelle (CSV; - ist die Standardeingabe), alle oder keines</translation>
    </message>
    <message>
        <source>with --from: leave out rows with problems, make the others</source>
        <translation>mit --from: Zeilen mit Problemen auslassen, die übrigen Projekte anlegen</translation>
    </message>
    <message>
        <source>move an existing project of the name to the Trash first</source>
        <translation>ein vorhandenes Projekt dieses Namens vorher in den Papierkorb legen</translation>
    </message>
    <message>
        <source>make more than 10,000 items of repeats without a question</source>
        <translation>ohne Rückfrage mehr als 10.000 Objekte durch Wiederholungen anlegen</translation>
    </message>
    <message>
        <source>print what would be made and change nothing</source>
        <translation>ausgeben, was angelegt würde, und nichts ändern</translation>
    </message>
    <message>
        <source>print one JSON object in place of the path</source>
        <translation>ein JSON-Objekt anstelle des Pfads ausgeben</translation>
    </message>
    <message>
        <source>take the mark away</source>
        <translation>die Markierung aufheben</translation>
    </message>
    <message>
        <source>the folder whose folders are made</source>
        <translation>der Ordner, dessen Unterordner angelegt werden</translation>
    </message>
    <message>
        <source>the rules as JSON; - is standard input, {} takes them away</source>
        <translation>die Regeln als JSON; - ist die Standardeingabe, {} entfernt sie</translation>
    </message>
    <message>
        <source>remove rules whose item is gone</source>
        <translation>Regeln entfernen, deren Objekt es nicht mehr gibt</translation>
    </message>
    <message>
        <source>the log of commands in place of the window&apos;s</source>
        <translation>das Protokoll der Befehle, nicht das des Fensters</translation>
    </message>
    <message>
        <source>print only where it is</source>
        <translation>nur ausgeben, wo es liegt</translation>
    </message>
    <message>
        <source>where it goes; else the desktop</source>
        <translation>wohin es soll; sonst auf den Schreibtisch</translation>
    </message>
    <message>
        <source>a file that goes along; may be repeated</source>
        <translation>eine Datei, die beigelegt wird; mehrfach möglich</translation>
    </message>
    <message>
        <source>Makes a project and prints its path.</source>
        <translation>Legt ein Projekt an und gibt seinen Pfad aus.</translation>
    </message>
    <message>
        <source>Lists what creations that were cut off have left behind, and moves it to the Trash; names the projects that a power cut has damaged.</source>
        <translation>Listet auf, was von nicht fertig angelegten Projekten übrig ist, und legt es in den Papierkorb; nennt die Projekte, die ein Stromausfall beschädigt hat.</translation>
    </message>
    <message>
        <source>Lists the last hundred projects that were made, the latest first.</source>
        <translation>Listet die letzten hundert angelegten Projekte auf, das neueste zuerst.</translation>
    </message>
    <message>
        <source>Moves what a creation made to the Trash, but for what was changed or added since; the latest, or the one of that path or name.</source>
        <translation>Legt in den Papierkorb, was beim Anlegen eines Projekts entstanden ist, außer was seitdem geändert oder hinzugefügt wurde; das neueste Projekt oder das mit diesem Pfad oder Namen.</translation>
    </message>
    <message>
        <source>Lists the templates, one a line; the default is marked with a star.</source>
        <translation>Listet die Vorlagen auf, eine je Zeile; die Standardvorlage trägt einen Stern.</translation>
    </message>
    <message>
        <source>Makes an empty template.</source>
        <translation>Legt eine leere Vorlage an.</translation>
    </message>
    <message>
        <source>Copies a template under the next free name.</source>
        <translation>Kopiert eine Vorlage unter dem nächsten freien Namen.</translation>
    </message>
    <message>
        <source>Gives a template another name.</source>
        <translation>Benennt eine Vorlage um.</translation>
    </message>
    <message>
        <source>Moves a template to the Trash.</source>
        <translation>Legt eine Vorlage in den Papierkorb.</translation>
    </message>
    <message>
        <source>Marks the default template, or prints it.</source>
        <translation>Legt die Standardvorlage fest oder gibt sie aus.</translation>
    </message>
    <message>
        <source>Prints a template&apos;s tree.</source>
        <translation>Gibt den Dateibaum einer Vorlage aus.</translation>
    </message>
    <message>
        <source>Prints a template&apos;s rules as JSON, or takes them from a file; --gone removes those whose item is not there any more.</source>
        <translation>Gibt die Regeln einer Vorlage als JSON aus oder übernimmt sie aus einer Datei; --gone entfernt die, deren Objekt es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>Takes in bundles (NAME.tzt) and archives of them (NAME.tzt.zip); one of the same name goes to the Trash.</source>
        <translation>Importiert Vorlagenordner (NAME.tzt) und Archive davon (NAME.tzt.zip); eine gleichnamige Vorlage kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Writes a template as one archive, NAME.tzt.zip, and prints its path.</source>
        <translation>Schreibt eine Vorlage als ein Archiv, NAME.tzt.zip, und gibt dessen Pfad aus.</translation>
    </message>
    <message>
        <source>Makes a folder&apos;s folders in the template, without files.</source>
        <translation>Legt die Unterordner eines Ordners in der Vorlage an, ohne Dateien.</translation>
    </message>
    <message>
        <source>Puts back the templates that ship with Tessaro; changed ones go to the Trash.</source>
        <translation>Stellt die mitgelieferten Vorlagen wieder her; geänderte kommen in den Papierkorb.</translation>
    </message>
    <message>
        <source>Lists title, kind and value of each parameter; a / marks those that begin a folder level.</source>
        <translation>Listet Titel, Art und Wert jedes Parameters auf; ein / kennzeichnet die, die eine Ordnerebene beginnen.</translation>
    </message>
    <message>
        <source>Adds a parameter. Kinds: text, counter, date, user, choice.</source>
        <translation>Fügt einen Parameter hinzu. Arten: text, counter, date, user, choice.</translation>
    </message>
    <message>
        <source>Changes a parameter. Keys: title, kind, default, folder, history, required, locked; form (number, date, folder), pattern, message, computed, case (upper, lower, title), length, several, in-name.</source>
        <translation>Ändert einen Parameter. Schlüssel: title, kind, default, folder, history, required, locked; form (number, date, folder), pattern, message, computed, case (upper, lower, title), length, several, in-name.</translation>
    </message>
    <message>
        <source>Moves a parameter to a position, counted from 1.</source>
        <translation>Verschiebt einen Parameter an eine Position, gezählt ab 1.</translation>
    </message>
    <message>
        <source>Removes a parameter. This cannot be undone.</source>
        <translation>Entfernt einen Parameter. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Writes the list into a property list.</source>
        <translation>Schreibt die Liste in eine Property-Liste.</translation>
    </message>
    <message>
        <source>Replaces the whole list by that of a property list.</source>
        <translation>Ersetzt die ganze Liste durch die aus einer Property-Liste.</translation>
    </message>
    <message>
        <source>Forgets the values typed before.</source>
        <translation>Vergisst die früher eingegebenen Werte.</translation>
    </message>
    <message>
        <source>Lists each setting with its value and meaning.</source>
        <translation>Listet jede Einstellung mit Wert und Bedeutung auf.</translation>
    </message>
    <message>
        <source>Prints a setting&apos;s value.</source>
        <translation>Gibt den Wert einer Einstellung aus.</translation>
    </message>
    <message>
        <source>Changes a setting; the value is checked first, as in the window.</source>
        <translation>Ändert eine Einstellung; der Wert wird vorher geprüft, wie im Fenster.</translation>
    </message>
    <message>
        <source>The setting&apos;s default applies again.</source>
        <translation>Setzt die Einstellung auf ihre Vorgabe zurück.</translation>
    </message>
    <message>
        <source>Prints the log of the window.</source>
        <translation>Gibt das Protokoll des Fensters aus.</translation>
    </message>
    <message>
        <source>Puts logs, crash reports and settings into one archive, for a support request.</source>
        <translation>Packt Protokolle, Absturzberichte und Einstellungen für eine Supportanfrage in ein Archiv.</translation>
    </message>
    <message>
        <source>Starts the updater&apos;s silent check.</source>
        <translation>Startet die stille Suche nach Updates.</translation>
    </message>
    <message>
        <source>Explains all verbs, or one; --help behind a verb does so, too.</source>
        <translation>Erklärt alle Befehle oder einen davon; --help hinter einem Befehl tut dasselbe.</translation>
    </message>
    <message>
        <source>Prints what makes that shell complete Tessaro&apos;s words.</source>
        <translation>Gibt aus, womit diese Shell die Befehle von Tessaro vervollständigt.</translation>
    </message>
    <message>
        <source>Prints the manual page, for man(1).</source>
        <translation>Gibt die Handbuchseite für man(1) aus.</translation>
    </message>
    <message>
        <source>Prints the version.</source>
        <translation>Gibt die Version aus.</translation>
    </message>
    <message>
        <source>values as a JSON object from titles to values; - is standard input</source>
        <translation>Werte als JSON-Objekt mit den Titeln als Schlüsseln; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>ask at the terminal for what is required and missing</source>
        <translation>im Terminal nach fehlenden Pflichtwerten fragen</translation>
    </message>
    <message>
        <source>leave values and counters out of the settings: nothing is remembered or counted</source>
        <translation>Werte und Zähler nicht in die Einstellungen übernehmen: Nichts wird gemerkt oder weitergezählt</translation>
    </message>
    <message>
        <source>what a project that is not remembered is compared with</source>
        <translation>die Vorlage, mit der ein nicht gemerktes Projekt verglichen wird</translation>
    </message>
    <message>
        <source>Looks whether all that the creation made still stands in a project (the latest, or the one in that folder), and names what is missing. Changes nothing.</source>
        <translation>Prüft, ob in einem Projekt (dem neuesten oder dem in diesem Ordner) noch alles da ist, was beim Anlegen entstanden ist, und nennt, was fehlt. Ändert nichts.</translation>
    </message>
    <message>
        <source>Opens the window; the next project goes into the folder.</source>
        <translation>Öffnet das Fenster; das nächste Projekt wird in diesem Ordner angelegt.</translation>
    </message>
    <message>
        <source>Opens the window, which says whether the project in the folder is complete.</source>
        <translation>Öffnet das Fenster, das dann sagt, ob das Projekt in diesem Ordner vollständig ist.</translation>
    </message>
    <message>
        <source>for every user of this computer; needs root</source>
        <translation>für alle Benutzer dieses Computers; nur mit root-Rechten</translation>
    </message>
    <message>
        <source>what nobody changes, with commas: parameters, keys of settings, or none; else parameters, separatorChar, dateFormat and strictNaming</source>
        <translation>was niemand ändern kann, mit Kommas getrennt: parameters, Schlüssel von Einstellungen oder none; sonst parameters, separatorChar, dateFormat und strictNaming</translation>
    </message>
    <message>
        <source>Says which set-up your studio shares with this computer.</source>
        <translation>Sagt, welche gemeinsame Einrichtung Ihr Studio für diesen Computer bereitstellt.</translation>
    </message>
    <message>
        <source>Takes templates, parameters and settings from a shared folder, and follows it from then on.</source>
        <translation>Übernimmt Vorlagen, Parameter und Einstellungen aus einem gemeinsamen Ordner und hält sie von da an auf dessen Stand.</translation>
    </message>
    <message>
        <source>Goes back to your own templates, parameters and settings.</source>
        <translation>Kehrt zu Ihren eigenen Vorlagen, Parametern und Einstellungen zurück.</translation>
    </message>
    <message>
        <source>Writes the present templates, parameters and settings into a folder, for many computers to use.</source>
        <translation>Schreibt die jetzigen Vorlagen, Parameter und Einstellungen in einen Ordner, damit viele Computer sie verwenden können.</translation>
    </message>
</context>
<context>
    <name>CreateCommand</name>
    <message>
        <source>Repeats would make more than %1 items. Say --many if that is what you want.</source>
        <translation>Wiederholungen würden mehr als %1 Objekte anlegen. Wenn Sie das möchten, geben Sie --many an.</translation>
    </message>
    <message>
        <source>A creation was cut off. This is left of it: %1</source>
        <translation>Ein Projekt wurde nicht fertig angelegt. Davon ist übrig: %1</translation>
    </message>
    <message>
        <source>Tessaro clean-up --yes moves it to the Trash.</source>
        <translation>Tessaro clean-up --yes legt es in den Papierkorb.</translation>
    </message>
    <message>
        <source>Tessaro clean-up --yes takes note of it.</source>
        <translation>Tessaro clean-up --yes nimmt es zur Kenntnis.</translation>
    </message>
    <message>
        <source>Nothing was moved to the Trash; say --yes to do it.</source>
        <translation>Nichts wurde in den Papierkorb gelegt; dazu ist --yes nötig.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1
Use --overwrite to move it to the Trash and create it anew.</source>
        <translation>Ein Projekt mit diesem Namen gibt es bereits: %1
Mit --overwrite kommt es in den Papierkorb und wird neu angelegt.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>Die Vorlagenbibliothek lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>There is no room for the shipped templates.</source>
        <translation>Für die mitgelieferten Vorlagen ist kein Platz.</translation>
    </message>
    <message>
        <source>The shipped templates cannot be unpacked.</source>
        <translation>Die mitgelieferten Vorlagen lassen sich nicht entpacken.</translation>
    </message>
    <message>
        <source>There is no template in %1.</source>
        <translation>In %1 liegt keine Vorlage.</translation>
    </message>
    <message>
        <source>There is no template “%1”. %2</source>
        <translation>Es gibt keine Vorlage „%1“. %2</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read. Mend them, or remove the file.</source>
        <translation>Die Regeln der Vorlage lassen sich nicht lesen. Berichtigen Sie sie, oder entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>(--set &quot;%1=…&quot;)</source>
        <translation>(--set &quot;%1=…&quot;)</translation>
    </message>
    <message>
        <source>No fixed project location is set. Say where to create the project with --in FOLDER.</source>
        <translation>Es ist kein fester Projektspeicherort eingestellt. Geben Sie mit --in FOLDER an, wo das Projekt angelegt werden soll.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>The folder name is too long: %1</source>
        <translation>Der Ordnername ist zu lang: %1</translation>
    </message>
    <message>
        <source>This folder of the template cannot be read: %1</source>
        <translation>Dieser Ordner der Vorlage lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>Stopped. Nothing of the project was kept.</source>
        <translation>Abgebrochen. Vom Projekt wurde nichts behalten.</translation>
    </message>
    <message>
        <source>The project was made, and is gone: %1</source>
        <translation>Das Projekt wurde angelegt, ist aber nicht mehr da: %1</translation>
    </message>
    <message>
        <source>The log names each item and the cause: %1</source>
        <translation>Das Protokoll nennt jedes Objekt und die Ursache: %1</translation>
    </message>
    <message>
        <source>  (keeps this name: its new one is taken)</source>
        <translation>  (behält diesen Namen: der neue ist vergeben)</translation>
    </message>
    <message>
        <source>  (keeps this name: its new one is too long)</source>
        <translation>  (behält diesen Namen: der neue ist zu lang)</translation>
    </message>
    <message>
        <source>  (left out)</source>
        <translation>  (ausgelassen)</translation>
    </message>
    <message>
        <source>  (was %1)</source>
        <translation>  (vorher %1)</translation>
    </message>
    <message>
        <source>Standard input can be only one of --values and --from.</source>
        <translation>Die Standardeingabe ist nur für --values oder für --from möglich, nicht für beide.</translation>
    </message>
    <message>
        <source>The values cannot be read.</source>
        <translation>Die Werte lassen sich nicht lesen.</translation>
    </message>
    <message>
        <source>The values are no JSON object: %1</source>
        <translation>Die Werte sind kein JSON-Objekt: %1</translation>
    </message>
    <message>
        <source>it does not begin with a brace</source>
        <translation>am Anfang fehlt die geschweifte Klammer</translation>
    </message>
    <message>
        <source>The value of “%1” is no text, no number and no list of them.</source>
        <translation>Der Wert von „%1“ ist weder Text noch Zahl noch eine Liste davon.</translation>
    </message>
    <message>
        <source>--ask needs a terminal to ask at.</source>
        <translation>--ask braucht ein Terminal, um fragen zu können.</translation>
    </message>
    <message>
        <source>Stopped. Nothing was created.</source>
        <translation>Abgebrochen. Nichts wurde angelegt.</translation>
    </message>
</context>
<context>
    <name>CreateCommandTable</name>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Line %1, %2</source>
        <translation>Zeile %1, %2</translation>
    </message>
    <message>
        <source>Nothing was created. --go-on leaves out the rows with problems.</source>
        <translation>Nichts wurde angelegt. --go-on lässt die Zeilen mit Problemen aus.</translation>
    </message>
    <message>
        <source>The table cannot be read.</source>
        <translation>Die Tabelle lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>Looking at projects: %L1</source>
        <translation>Projekte werden geprüft: %L1</translation>
    </message>
    <message>
        <source>Stopped. Nothing was created.</source>
        <translation>Abgebrochen. Nichts wurde angelegt.</translation>
    </message>
    <message>
        <source>No parameter is called: %1</source>
        <translation>Ohne passenden Parameter: %1</translation>
    </message>
    <message>
        <source>Other problems: %L1</source>
        <translation>Weitere Probleme: %L1</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>What had been created was moved to the Trash. --go-on keeps what can be made.</source>
        <translation>Was schon angelegt war, liegt im Papierkorb. --go-on behält, was sich anlegen lässt.</translation>
    </message>
    <message>
        <source>Stopped. Projects that were not begun: %L1</source>
        <translation>Abgebrochen. Nicht begonnene Projekte: %L1</translation>
    </message>
    <message>
        <source>Rows left out: %L1. The log names each item and the cause: %2</source>
        <translation>Ausgelassene Zeilen: %L1. Das Protokoll nennt jedes Objekt und die Ursache: %2</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Das Programm, dem neue Projekte gemeldet werden, ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>--ask asks for one project; a table with --from has its values in its cells.</source>
        <translation>--ask fragt für ein Projekt; eine Tabelle mit --from hat ihre Werte in den Zellen.</translation>
    </message>
</context>
<context>
    <name>EditingGuard</name>
    <message>
        <source>These templates are set by your studio</source>
        <translation>Diese Vorlagen sind von Ihrem Studio festgelegt</translation>
    </message>
    <message>
        <source>They are changed in the studio’s own folder, and come to every computer from there: %1</source>
        <translation>Sie werden im Ordner des Studios geändert und kommen von dort auf alle Computer: %1</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>Creating %1</source>
        <translation>%1 wird angelegt</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>%1 wird kopiert</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>%1 wird verschoben</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1 wird entfernt</translation>
    </message>
    <message>
        <source>Please check that you have write permissions for the destination directory.</source>
        <translation>Bitte prüfen Sie, ob Sie Schreibrechte für den Zielordner haben.</translation>
    </message>
    <message>
        <source>“%1” cannot be moved to the Trash</source>
        <translation>„%1“ lässt sich nicht in den Papierkorb legen</translation>
    </message>
    <message>
        <source>Its drive has no Trash that you may use. It can be put beside under a name with today&apos;s date, be deleted for good, or be kept as it is.</source>
        <translation>Das Laufwerk hat keinen Papierkorb, den Sie benutzen dürfen. Das Objekt kann unter einem Namen mit dem heutigen Datum beiseitegelegt, endgültig gelöscht oder unverändert behalten werden.</translation>
    </message>
    <message>
        <source>Put Beside</source>
        <translation>Beiseitelegen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Compressing %1</source>
        <translation>%1 wird komprimiert</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Choose the Template Library</source>
        <translation>Vorlagenbibliothek wählen</translation>
    </message>
    <message>
        <source>An administrator’s. It holds for you alone, unless an administrator sets it for every user of this computer. Switching one off asks for it.</source>
        <translation>Gemeint ist das Passwort eines Administrators. Diese Schalter gelten nur für Sie, es sei denn, ein Administrator setzt sie für alle Benutzer dieses Computers. Beim Ausschalten wird nach dem Passwort gefragt.</translation>
    </message>
    <message>
        <source>Templates in %1: %2</source>
        <translation>Vorlagen in %1: %2</translation>
    </message>
    <message>
        <source>New location: %1</source>
        <translation>Neuer Speicherort: %1</translation>
    </message>
    <message>
        <source>Would you like to move your templates to the new location?</source>
        <translation>Möchten Sie Ihre Vorlagen an den neuen Speicherort verschieben?</translation>
    </message>
    <message>
        <source>Any templates outside of the new backup location will not be displayed in the Templates pane.</source>
        <translation>Vorlagen außerhalb des neuen Speicherorts erscheinen nicht im Vorlagenbereich.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Don&apos;t Move</source>
        <translation>Belassen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>Moving %n templates</source>
        <translation>
            <numerusform>%n Vorlage wird verschoben</numerusform>
            <numerusform>%n Vorlagen werden verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> und %n weitere</numerusform>
            <numerusform> und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ verschieben</translation>
    </message>
    <message>
        <source>These have stayed where they were: %1.</source>
        <translation>Am alten Ort geblieben sind: %1.</translation>
    </message>
    <message>
        <source>Choose the Shared Set-up</source>
        <translation>Gemeinsame Einrichtung wählen</translation>
    </message>
    <message>
        <source>This set-up cannot be used</source>
        <translation>Diese Einrichtung lässt sich nicht verwenden</translation>
    </message>
    <message>
        <source>The folder needs a file “%1”, which “Tessaro setup export” writes.</source>
        <translation>Im Ordner muss eine Datei „%1“ liegen, die „Tessaro setup export“ anlegt.</translation>
    </message>
    <message>
        <source>Another program takes over or uses a set-up just now. Please try again in a moment.</source>
        <translation>Ein anderes Programm übernimmt oder verwendet gerade eine Einrichtung. Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The studio’s set-up is still in use</source>
        <translation>Die Einrichtung des Studios wird noch verwendet</translation>
    </message>
    <message>
        <source>Your own counts again as soon as what uses it has finished.</source>
        <translation>Ihre eigene gilt wieder, sobald das fertig ist, was sie verwendet.</translation>
    </message>
</context>
<context>
    <name>HistoryCommand</name>
    <message>
        <source>The project is not at its place any more: %1</source>
        <translation>Das Projekt ist nicht mehr an seinem Ort: %1</translation>
    </message>
    <message>
        <source>%1 could not be undone.</source>
        <translation>%1 ließ sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>The project that had its place is still in the Trash: %1</source>
        <translation>Das Projekt, das vorher dort lag, ist noch im Papierkorb: %1</translation>
    </message>
    <message>
        <source>This stays; the rest is in the Trash.</source>
        <translation>Das Genannte bleibt liegen; der Rest ist im Papierkorb.</translation>
    </message>
    <message>
        <source>Undoing projects: %L1</source>
        <translation>Projekte werden rückgängig gemacht: %L1</translation>
    </message>
    <message>
        <source>Stopped. Projects that stay: %L1</source>
        <translation>Abgebrochen. Projekte, die bleiben: %L1</translation>
    </message>
    <message>
        <source>  (not there any more)</source>
        <translation>  (nicht mehr vorhanden)</translation>
    </message>
    <message>
        <source>There is no project to undo.</source>
        <translation>Es gibt kein Projekt, das sich rückgängig machen lässt.</translation>
    </message>
    <message>
        <source>“%1” is no project that is remembered. Tessaro history lists them.</source>
        <translation>„%1“ gehört nicht zu den gemerkten Projekten. Tessaro history listet sie auf.</translation>
    </message>
    <message>
        <source>Undoing %1</source>
        <translation>%1 wird rückgängig gemacht</translation>
    </message>
</context>
<context>
    <name>ImportJobs</name>
    <message>
        <source>%@ already exists in this location. Are you sure you wish to overwrite it?</source>
        <translation>%@ gibt es an diesem Ort bereits. Wirklich überschreiben?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>Was dort liegt, kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Overwrite All</source>
        <translation>Alle überschreiben</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ kopieren</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n items</source>
        <translation>
            <numerusform>%n Objekt wird kopiert</numerusform>
            <numerusform>%n Objekte werden kopiert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPanel</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
</context>
<context>
    <name>IndentedList</name>
    <message>
        <source>The list has more than 10,000 lines.</source>
        <translation>Die Liste hat mehr als 10.000 Zeilen.</translation>
    </message>
    <message>
        <source>Line %1 gives no name for a folder: %2</source>
        <translation>Zeile %1 ergibt keinen Ordnernamen: %2</translation>
    </message>
</context>
<context>
    <name>ItemNames</name>
    <message>
        <source>The name would be empty: its values are.</source>
        <translation>Der Name wäre leer, weil seine Werte leer sind.</translation>
    </message>
    <message>
        <source>The name would be “%1”, which leads elsewhere.</source>
        <translation>Der Name wäre „%1“ und würde an einen anderen Ort führen.</translation>
    </message>
    <message>
        <source>The name would have %1 bytes, and 255 are possible.</source>
        <translation>Der Name hätte %1 Byte; möglich sind 255.</translation>
    </message>
    <message>
        <source>%1 puts a “/” into the name: %2</source>
        <translation>%1 bringt einen „/“ in den Namen: %2</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Up Arrow</source>
        <translation>Pfeil auf</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Rücktab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
</context>
<context>
    <name>Labels</name>
    <message>
        <source>grey</source>
        <translation>grau</translation>
    </message>
    <message>
        <source>green</source>
        <translation>grün</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violett</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blau</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>gelb</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
</context>
<context>
    <name>LogsCommand</name>
    <message>
        <source>There is no log at %1.</source>
        <translation>Unter %1 liegt kein Protokoll.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The logs could not be gathered.</source>
        <translation>Die Protokolle ließen sich nicht sammeln.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Objekte: %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>&amp;Create Project</source>
        <translation>Projekt &amp;anlegen</translation>
    </message>
    <message>
        <source>Create From &amp;Table…</source>
        <translation>Aus &amp;Tabelle anlegen…</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Letzte Projekte</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>Show &amp;Result</source>
        <translation>&amp;Ergebnis zeigen</translation>
    </message>
    <message>
        <source>Show Template &amp;Library</source>
        <translation>Vorlagen&amp;bibliothek zeigen</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>&amp;Vorlage</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Neue Vorlage</translation>
    </message>
    <message>
        <source>&amp;Import Template…</source>
        <translation>Vorlage &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export Template…</source>
        <translation>Vorlage &amp;exportieren…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Templates…</source>
        <translation>Standardvorlagen &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tessaro on the &amp;Web</source>
        <translation>Tessaro im &amp;Web</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>&amp;Protokoll</translation>
    </message>
    <message>
        <source>View &amp;Task Log</source>
        <translation>&amp;Aufgabenprotokoll</translation>
    </message>
    <message>
        <source>&amp;Gather Logs</source>
        <translation>Protokolle &amp;sammeln</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Nach &amp;Updates suchen…</translation>
    </message>
    <message>
        <source>&amp;Report a Bug…</source>
        <translation>&amp;Fehler melden…</translation>
    </message>
    <message>
        <source>&amp;Suggest a Feature…</source>
        <translation>Funktion &amp;vorschlagen…</translation>
    </message>
    <message>
        <source>More &amp;Products</source>
        <translation>Weitere Pro&amp;dukte</translation>
    </message>
    <message>
        <source>&amp;Vantrel on the Web</source>
        <translation>Vantrel im W&amp;eb</translation>
    </message>
    <message>
        <source>&amp;About Tessaro</source>
        <translation>Ü&amp;ber Tessaro</translation>
    </message>
    <message>
        <source>C&amp;heck Project…</source>
        <translation>Projekt &amp;prüfen…</translation>
    </message>
    <message>
        <source>Cl&amp;ear History</source>
        <translation>&amp;Verlauf löschen</translation>
    </message>
    <message>
        <source>Tessaro &amp;Help</source>
        <translation>Tessaro-&amp;Hilfe</translation>
    </message>
    <message>
        <source>User &amp;Manual (PDF)</source>
        <translation>Be&amp;nutzerhandbuch (PDF)</translation>
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
        <translation>Vor&amp;lage</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>No templates yet: &amp;install the standard ones</source>
        <translation>Noch keine Vorlagen: Standardvorlagen &amp;installieren</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>Neu v&amp;ersuchen</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>Filename parameters</source>
        <translation>Dateinamenparameter</translation>
    </message>
    <message>
        <source>Project:</source>
        <translation>Projekt:</translation>
    </message>
    <message>
        <source>A project with this name already exists.</source>
        <translation>Ein Projekt mit diesem Namen gibt es bereits.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Move what was made to the Trash (Ctrl+Z)</source>
        <translation>Was angelegt wurde, in den Papierkorb legen (Strg+Z)</translation>
    </message>
    <message>
        <source>&amp;Create Project</source>
        <translation>Projekt a&amp;nlegen</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>No parameters yet</source>
        <translation>Noch keine Parameter</translation>
    </message>
    <message>
        <source>Edit the Parameters…</source>
        <translation>Parameter bearbeiten…</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>More Products</source>
        <translation>Weitere Produkte</translation>
    </message>
    <message>
        <source>Start a project (Ctrl+1)</source>
        <translation>Ein Projekt beginnen (Strg+1)</translation>
    </message>
    <message>
        <source>Look after the templates (Ctrl+2)</source>
        <translation>Die Vorlagen pflegen (Strg+2)</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Objekte</translation>
    </message>
    <message>
        <source>Created ‘%1’ in %2.</source>
        <translation>‚%1‘ in %2 angelegt.</translation>
    </message>
    <message>
        <source>Created in %1: %L2 projects.</source>
        <translation>In %1 angelegte Projekte: %L2.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <comment>what is undone</comment>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <comment>what is done again</comment>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Tessaro User Manual</source>
        <translation>Tessaro-Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Im Handbuch suchen</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Text of the chapter</source>
        <translation>Text des Kapitels</translation>
    </message>
</context>
<context>
    <name>MoveAcross</name>
    <message>
        <source>It changed while it was moved, or the copy is not whole</source>
        <translation>Es hat sich beim Verschieben geändert, oder die Kopie ist unvollständig</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message>
        <source>A folder cannot be put into itself</source>
        <translation>Ein Ordner lässt sich nicht in sich selbst ablegen</translation>
    </message>
    <message>
        <source>It was stopped</source>
        <translation>Der Vorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>It was not wanted</source>
        <translation>Der Vorgang wurde abgelehnt</translation>
    </message>
    <message>
        <source>Administrator rights are needed and were not given</source>
        <translation>Administratorrechte sind nötig und wurden nicht erteilt</translation>
    </message>
    <message>
        <source>It did not happen in time</source>
        <translation>Die Wartezeit ist abgelaufen</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Der Inhalt ist beschädigt</translation>
    </message>
    <message>
        <source>It is not there</source>
        <translation>Nicht vorhanden</translation>
    </message>
    <message>
        <source>Something of this name is there already</source>
        <translation>Etwas mit diesem Namen gibt es dort bereits</translation>
    </message>
    <message>
        <source>It is no folder</source>
        <translation>Es ist kein Ordner</translation>
    </message>
    <message>
        <source>It did not work</source>
        <translation>Der Vorgang ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Another program uses it just now</source>
        <translation>Ein anderes Programm verwendet es gerade</translation>
    </message>
</context>
<context>
    <name>OwnParametersSheet</name>
    <message>
        <source>Parameters of “%1”</source>
        <translation>Parameter von „%1“</translation>
    </message>
    <message>
        <source>Add a parameter</source>
        <translation>Parameter hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected parameters</source>
        <translation>Ausgewählte Parameter entfernen</translation>
    </message>
    <message>
        <source>Its &amp;Values…</source>
        <translation>&amp;Werte…</translation>
    </message>
    <message>
        <source>Projects of this template have these parameters, after the common ones:</source>
        <translation>Projekte aus dieser Vorlage haben nach den gemeinsamen auch diese Parameter:</translation>
    </message>
    <message>
        <source>The common parameters in projects of this template:</source>
        <translation>Die gemeinsamen Parameter in Projekten aus dieser Vorlage:</translation>
    </message>
    <message>
        <source>Parameters of the template</source>
        <translation>Parameter der Vorlage</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Common parameters</source>
        <translation>Gemeinsame Parameter</translation>
    </message>
    <message>
        <source>as everywhere</source>
        <translation>wie überall</translation>
    </message>
    <message>
        <source>always</source>
        <translation>immer</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>entfällt</translation>
    </message>
    <message>
        <source>What becomes of %1</source>
        <translation>Was mit %1 geschieht</translation>
    </message>
    <message>
        <source>Value of %1</source>
        <translation>Wert von %1</translation>
    </message>
    <message>
        <source>Each parameter needs a title.</source>
        <translation>Jeder Parameter braucht einen Titel.</translation>
    </message>
    <message>
        <source>Two parameters are called “%1”.</source>
        <translation>Zwei Parameter heißen „%1“.</translation>
    </message>
</context>
<context>
    <name>ParameterDetails</name>
    <message>
        <source>Three letters, a dash, three digits</source>
        <translation>Drei Buchstaben, ein Bindestrich, drei Ziffern</translation>
    </message>
    <message>
        <source>Several &amp;choices at once</source>
        <translation>Mehrere &amp;zugleich wählbar</translation>
    </message>
    <message>
        <source>Part of the project’s &amp;name</source>
        <translation>Teil des Projekt&amp;namens</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Werte von „%1“</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>Beliebiger Text</translation>
    </message>
    <message>
        <source>A whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>A date from a calendar</source>
        <translation>Datum aus dem Kalender</translation>
    </message>
    <message>
        <source>A folder from a panel</source>
        <translation>Ordner aus dem Dateidialog</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Wie eingegeben</translation>
    </message>
    <message>
        <source>CAPITALS</source>
        <translation>GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>small letters</source>
        <translation>kleinbuchstaben</translation>
    </message>
    <message>
        <source>Each Word Capital</source>
        <translation>Jedes Wort Groß</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>&amp;Schreibweise:</translation>
    </message>
    <message>
        <source>&amp;Most characters:</source>
        <translation>Höchst&amp;länge:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>&amp;Said when it does not fit:</source>
        <translation>&amp;Hinweis bei Abweichung:</translation>
    </message>
    <message>
        <source>Computed &amp;from others:</source>
        <translation>Aus anderen &amp;berechnet:</translation>
    </message>
    <message>
        <source>The pattern is no regular expression: %1</source>
        <translation>Das Muster ist kein regulärer Ausdruck: %1</translation>
    </message>
</context>
<context>
    <name>ParameterEditor</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>(auto)</source>
        <translation>(auto)</translation>
    </message>
    <message>
        <source>The file does not hold a list of parameters.</source>
        <translation>Die Datei enthält keine Parameterliste.</translation>
    </message>
    <message>
        <source>Entry %1 of the file is not a parameter with a title.</source>
        <translation>Eintrag %1 der Datei ist kein Parameter mit einem Titel.</translation>
    </message>
</context>
<context>
    <name>ParameterEditorModel</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>The choices, each on a line of its own; the first is the default.</source>
        <translation>Die Auswahlwerte, jeder in einer eigenen Zeile; der erste ist die Vorgabe.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflicht</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>What the value is called</source>
        <translation>Wie der Wert heißt</translation>
    </message>
    <message>
        <source>How it is filled in</source>
        <translation>Wie er ausgefüllt wird</translation>
    </message>
    <message>
        <source>What it begins with; for a choice, the choices</source>
        <translation>Womit er beginnt; bei einer Auswahl die Auswahlwerte</translation>
    </message>
    <message>
        <source>Begins a new folder level</source>
        <translation>Beginnt eine neue Ordnerebene</translation>
    </message>
    <message>
        <source>Remembers what was typed, and offers it again (Save History)</source>
        <translation>Merkt sich Eingaben und bietet sie wieder an (Verlauf speichern)</translation>
    </message>
    <message>
        <source>Must not be empty</source>
        <translation>Darf nicht leer sein</translation>
    </message>
    <message>
        <source>Cannot be changed in the project pane</source>
        <translation>Lässt sich im Projektbereich nicht ändern</translation>
    </message>
    <message>
        <source>New Parameter</source>
        <translation>Neuer Parameter</translation>
    </message>
</context>
<context>
    <name>ParametersCommand</name>
    <message>
        <source>There is no parameter “%1”.</source>
        <translation>Es gibt keinen Parameter „%1“.</translation>
    </message>
    <message>
        <source>There are several parameters “%1”. Please give them titles of their own, in the window.</source>
        <translation>Es gibt mehrere Parameter „%1“. Bitte geben Sie ihnen im Fenster eigene Titel.</translation>
    </message>
    <message>
        <source>“%1” is no kind of parameter. There are: %2.</source>
        <translation>„%1“ ist keine Parameterart. Möglich sind: %2.</translation>
    </message>
    <message>
        <source>The parameters could not be stored.</source>
        <translation>Die Parameter ließen sich nicht speichern.</translation>
    </message>
    <message>
        <source>Nothing was removed. This cannot be undone; say --yes to do it.</source>
        <translation>Nichts wurde entfernt. Es lässt sich nicht rückgängig machen; deshalb ist --yes nötig.</translation>
    </message>
    <message>
        <source>The position is a number from 1 to %1.</source>
        <translation>Die Position ist eine Zahl von 1 bis %1.</translation>
    </message>
    <message>
        <source>A parameter has no “%1”. It has: %2.</source>
        <translation>Ein Parameter hat kein „%1“. Möglich sind: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be that. It can be: %2.</source>
        <translation>„%1“ ist hier nicht möglich. Möglich sind: %2.</translation>
    </message>
    <message>
        <source>The length is a number from 0 (any) to 255.</source>
        <translation>Die Länge ist eine Zahl von 0 (beliebig) bis 255.</translation>
    </message>
    <message>
        <source>The pattern is no regular expression: %1</source>
        <translation>Das Muster ist kein regulärer Ausdruck: %1</translation>
    </message>
    <message>
        <source>The parameters could not be exported.</source>
        <translation>Die Parameter ließen sich nicht exportieren.</translation>
    </message>
    <message>
        <source>The parameters could not be imported.</source>
        <translation>Die Parameter ließen sich nicht importieren.</translation>
    </message>
    <message>
        <source>Nothing was changed. The list would be replaced; say --yes to do it.</source>
        <translation>Nichts wurde geändert. Die Liste würde ersetzt; dazu ist --yes nötig.</translation>
    </message>
</context>
<context>
    <name>ParametersPane</name>
    <message>
        <source>(blank)</source>
        <translation>(Leerz.)</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this parameter?</source>
        <translation>Möchten Sie diesen Parameter wirklich entfernen?</translation>
    </message>
    <message>
        <source>Ctrl+Z brings it back for as long as this window is open.</source>
        <translation>Strg+Z bringt ihn zurück, solange dieses Fenster offen ist.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigenes</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Heute: %1</translation>
    </message>
    <message>
        <source>Slashes and colons are left out of folder names: it will be less than %1.</source>
        <translation>Schrägstriche und Doppelpunkte entfallen in Ordnernamen: Übrig bleibt weniger als %1.</translation>
    </message>
</context>
<context>
    <name>PathControl</name>
    <message>
        <source>Project folder</source>
        <translation>Projektordner</translation>
    </message>
</context>
<context>
    <name>PickEditor</name>
    <message>
        <source>Pick a date (Alt+Down)</source>
        <translation>Datum wählen (Alt+Pfeil ab)</translation>
    </message>
    <message>
        <source>Choose a folder (Alt+Down)</source>
        <translation>Ordner wählen (Alt+Pfeil ab)</translation>
    </message>
    <message>
        <source>Check some (Alt+Down)</source>
        <translation>Werte ankreuzen (Alt+Pfeil ab)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>PlaceButton</name>
    <message>
        <source>Choose a place…</source>
        <translation>Speicherort wählen…</translation>
    </message>
    <message>
        <source>Where the project goes</source>
        <translation>Wo das Projekt angelegt wird</translation>
    </message>
    <message>
        <source>The project goes to %1</source>
        <translation>Das Projekt wird in %1 angelegt</translation>
    </message>
    <message>
        <source>Place: none yet</source>
        <translation>Speicherort: noch keiner</translation>
    </message>
    <message>
        <source>Place: %1</source>
        <translation>Speicherort: %1</translation>
    </message>
    <message>
        <source>&amp;Choose a Folder…</source>
        <translation>Ordner &amp;wählen…</translation>
    </message>
    <message>
        <source>&amp;Unpin This Place</source>
        <translation>Speicherort &amp;lösen</translation>
    </message>
    <message>
        <source>&amp;Pin This Place</source>
        <translation>Speicherort an&amp;heften</translation>
    </message>
</context>
<context>
    <name>Prefs_Dialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Template &amp;library:</source>
        <translation>Vorlagen&amp;bibliothek:</translation>
    </message>
    <message>
        <source>Template library</source>
        <translation>Vorlagenbibliothek</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>The folder in which your templates lie. Templates elsewhere are not shown.</source>
        <translation>Der Ordner, in dem Ihre Vorlagen liegen. Vorlagen an anderen Orten erscheinen nicht.</translation>
    </message>
    <message>
        <source>After a project:</source>
        <translation>Nach dem Anlegen:</translation>
    </message>
    <message>
        <source>&amp;Open its folder</source>
        <translation>Projekt&amp;ordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit Tessaro</source>
        <translation>Tessaro b&amp;eenden</translation>
    </message>
    <message>
        <source>Template pane:</source>
        <translation>Vorlagenbereich:</translation>
    </message>
    <message>
        <source>&amp;Show every folder opened</source>
        <translation>Alle Ordner &amp;aufgeklappt zeigen</translation>
    </message>
    <message>
        <source>Ask for a password:</source>
        <translation>Passwort verlangen:</translation>
    </message>
    <message>
        <source>When &amp;Tessaro starts</source>
        <translation>Beim &amp;Start von Tessaro</translation>
    </message>
    <message>
        <source>Before the &amp;preferences open</source>
        <translation>Vor dem Öffnen der E&amp;instellungen</translation>
    </message>
    <message>
        <source>An administrator’s. It holds for every user of this computer, and switching one off asks for it.</source>
        <translation>Gemeint ist das Passwort eines Administrators. Diese Schalter gelten für alle Benutzer dieses Computers; beim Ausschalten wird nach dem Passwort gefragt.</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Speicherort:</translation>
    </message>
    <message>
        <source>&amp;Create every project in this folder:</source>
        <translation>Alle Projekte in diesem Ordner an&amp;legen:</translation>
    </message>
    <message>
        <source>Fixed project location</source>
        <translation>Fester Projektspeicherort</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Wä&amp;hlen…</translation>
    </message>
    <message>
        <source>Otherwise you choose a folder for each project.</source>
        <translation>Sonst wählen Sie für jedes Projekt einen Ordner.</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>Namen:</translation>
    </message>
    <message>
        <source>Only &amp;letters, digits, hyphens and underscores</source>
        <translation>Nur &amp;Buchstaben, Ziffern, Binde- und Unterstriche</translation>
    </message>
    <message>
        <source>Anything else is left out of what you type: for servers and programs that stumble over spaces and accents.</source>
        <translation>Alles andere wird aus Ihren Eingaben entfernt: für Server und Programme, die über Leerzeichen, Umlaute und Akzente stolpern.</translation>
    </message>
    <message>
        <source>Filename parameters</source>
        <translation>Dateinamenparameter</translation>
    </message>
    <message>
        <source>Add a parameter</source>
        <translation>Parameter hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected parameters</source>
        <translation>Ausgewählte Parameter entfernen</translation>
    </message>
    <message>
        <source>Its &amp;Values…</source>
        <translation>&amp;Werte…</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>&amp;Date format:</source>
        <translation>&amp;Datumsformat:</translation>
    </message>
    <message>
        <source>Date format</source>
        <translation>Datumsformat</translation>
    </message>
    <message>
        <source>Custom date format</source>
        <translation>Eigenes Datumsformat</translation>
    </message>
    <message>
        <source>A project now:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>Folders of a project</source>
        <translation>Ordner eines Projekts</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Shared set-&amp;up:</source>
        <translation>&amp;Gemeinsame Einrichtung:</translation>
    </message>
    <message>
        <source>Shared set-up</source>
        <translation>Gemeinsame Einrichtung</translation>
    </message>
    <message>
        <source>A folder in which your studio keeps templates, parameters and settings for everybody. Empty: your own.</source>
        <translation>Ein Ordner, in dem Ihr Studio Vorlagen, Parameter und Einstellungen für alle bereithält. Leer: Ihre eigenen.</translation>
    </message>
    <message>
        <source>Before templates are chan&amp;ged</source>
        <translation>Vor Änderungen an &amp;Vorlagen</translation>
    </message>
    <message>
        <source>What is grey is set by your studio.</source>
        <translation>Was grau ist, gibt Ihr Studio vor.</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Stop the work (Escape)</source>
        <translation>Vorgang abbrechen (Esc)</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
</context>
<context>
    <name>ProjectBatch</name>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Line %1 makes the same project: %2</source>
        <translation>Zeile %1 ergibt dasselbe Projekt: %2</translation>
    </message>
    <message>
        <source>This row has more cells than there are columns.</source>
        <translation>Diese Zeile hat mehr Zellen, als es Spalten gibt.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1</source>
        <translation>Ein Projekt mit diesem Namen gibt es bereits: %1</translation>
    </message>
    <message>
        <source>Repeats would make more than %L1 items.</source>
        <translation>Wiederholungen würden mehr als %L1 Objekte anlegen.</translation>
    </message>
    <message>
        <source>The new name of %1 is taken, or too long.</source>
        <translation>Der neue Name von %1 ist vergeben oder zu lang.</translation>
    </message>
</context>
<context>
    <name>ProjectCheck</name>
    <message>
        <source>%1: is missing</source>
        <translation>%1: fehlt</translation>
    </message>
    <message>
        <source>%1: a file stands where a folder was made, or the other way round</source>
        <translation>%1: eine Datei, wo ein Ordner angelegt wurde, oder umgekehrt</translation>
    </message>
    <message>
        <source>%1: had contents, and is empty</source>
        <translation>%1: hatte einen Inhalt und ist jetzt leer</translation>
    </message>
    <message>
        <source>%1: cannot be looked at</source>
        <translation>%1: lässt sich nicht prüfen</translation>
    </message>
</context>
<context>
    <name>ProjectCreation</name>
    <message>
        <source>Unable to create folder %@</source>
        <translation>Der Ordner %@ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Creating %1</source>
        <translation>%1 wird angelegt</translation>
    </message>
    <message>
        <source>What was typed, and the numbers that were taken, could not be stored</source>
        <translation>Die Eingaben und die vergebenen Nummern ließen sich nicht speichern</translation>
    </message>
    <message>
        <source>The next project may get the same number.</source>
        <translation>Das nächste Projekt könnte dieselbe Nummer bekommen.</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ verschieben</translation>
    </message>
    <message>
        <source>Something of the stopped project is left in %@</source>
        <translation>Vom abgebrochenen Projekt liegt noch etwas in %@</translation>
    </message>
    <message>
        <source>The old project %@ is in the Trash</source>
        <translation>Das alte Projekt %@ liegt im Papierkorb</translation>
    </message>
    <message>
        <source>It was put there before the creation was stopped.</source>
        <translation>Es kam dorthin, bevor das Anlegen abgebrochen wurde.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1</source>
        <translation>Ein Projekt mit diesem Namen gibt es bereits: %1</translation>
    </message>
    <message>
        <source>A project with this name already exists. Are you sure you wish to overwrite it?</source>
        <translation>Ein Projekt mit diesem Namen gibt es bereits. Möchten Sie es wirklich überschreiben?</translation>
    </message>
    <message>
        <source>The old project will be placed in the trash.</source>
        <translation>Das alte Projekt kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unable to move %@ to the Trash</source>
        <translation>%@ lässt sich nicht in den Papierkorb legen</translation>
    </message>
    <message>
        <source>The old project was left as it is, and no new one was created. Please check that you have write permissions for the folder it lies in.</source>
        <translation>Das alte Projekt blieb unverändert, ein neues wurde nicht angelegt. Bitte prüfen Sie, ob Sie Schreibrechte für den Ordner haben, in dem es liegt.</translation>
    </message>
    <message>
        <source>labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>Zugriffsrechte</translation>
    </message>
    <message>
        <source>owners</source>
        <translation>Eigentümer</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>Datumsangaben</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>und %n weiteres; das Protokoll nennt alle</numerusform>
            <numerusform>und %n weitere; das Protokoll nennt alle</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ would get more than %ld items from repeats</source>
        <translation>%@ bekäme durch Wiederholungen mehr als %ld Objekte</translation>
    </message>
    <message>
        <source>Is that what you want?</source>
        <translation>Möchten Sie das?</translation>
    </message>
    <message>
        <source>Create Them</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Its repeats would make more than %ld items.</source>
        <translation>Die Wiederholungen würden mehr als %ld Objekte anlegen.</translation>
    </message>
    <message>
        <source>Others like this: %1</source>
        <translation>Weitere dieser Art: %1</translation>
    </message>
    <message>
        <source>The template’s rules and the values do not fit; nothing was created</source>
        <translation>Die Regeln der Vorlage und die Werte passen nicht zusammen; nichts wurde angelegt</translation>
    </message>
    <message>
        <source>Unable to copy contents of template</source>
        <translation>Der Inhalt der Vorlage lässt sich nicht kopieren</translation>
    </message>
    <message>
        <source>The drive at %@ does not keep everything. The project is complete, but for the template&apos;s %@.</source>
        <translation>Das Laufwerk unter %@ kann nicht alles speichern. Das Projekt ist vollständig; aus der Vorlage fehlen nur: %@.</translation>
    </message>
    <message>
        <source>Unable to look for names to replace in %@</source>
        <translation>In %@ ließ sich nicht nach Namen suchen, die ersetzt werden sollen</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Das Programm, dem neue Projekte gemeldet werden, ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The project was created; nothing was undone.</source>
        <translation>Das Projekt wurde angelegt; nichts wurde rückgängig gemacht.</translation>
    </message>
</context>
<context>
    <name>ProjectPane</name>
    <message>
        <source>Choose the Project Location</source>
        <translation>Projektspeicherort wählen</translation>
    </message>
</context>
<context>
    <name>ProjectTable</name>
    <message>
        <source>This is no table of text. Please save the sheet as CSV (UTF-8).</source>
        <translation>Das ist keine Texttabelle. Bitte speichern Sie das Tabellenblatt als CSV (UTF-8).</translation>
    </message>
    <message>
        <source>The table has more than %L1 rows. Please divide it.</source>
        <translation>Die Tabelle hat mehr als %L1 Zeilen. Bitte teilen Sie sie auf.</translation>
    </message>
    <message>
        <source>The table has no rows. The first one names the parameters, each other one is a project.</source>
        <translation>Die Tabelle hat keine Zeilen. Die erste nennt die Parameter, jede weitere ist ein Projekt.</translation>
    </message>
    <message>
        <source>Two columns are called “%1”.</source>
        <translation>Zwei Spalten heißen „%1“.</translation>
    </message>
    <message>
        <source>The quotes that are opened in line %1 are never closed.</source>
        <translation>Die Anführungszeichen, die in Zeile %1 beginnen, werden nicht geschlossen.</translation>
    </message>
</context>
<context>
    <name>RenameSheet</name>
    <message numerus="yes">
        <source>Rename %n Items</source>
        <translation>
            <numerusform>%n Objekt umbenennen</numerusform>
            <numerusform>%n Objekte umbenennen</numerusform>
        </translation>
    </message>
    <message>
        <source>the whole name</source>
        <translation>der ganze Name</translation>
    </message>
    <message>
        <source>Day ## counts: Day 01, Day 02 …</source>
        <translation>Tag ## zählt: Tag 01, Tag 02 …</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>&amp;Ersetzen durch:</translation>
    </message>
    <message>
        <source>First &amp;number:</source>
        <translation>Erste &amp;Nummer:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Wird zu</translation>
    </message>
    <message>
        <source>What the names become</source>
        <translation>Was aus den Namen wird</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>stays as it is</source>
        <translation>bleibt unverändert</translation>
    </message>
</context>
<context>
    <name>RequestCheck</name>
    <message>
        <source>You must specify at least one parameter.</source>
        <translation>Sie müssen mindestens einen Parameter angeben.</translation>
    </message>
    <message>
        <source>The values give a folder level without a usable name (nothing, or dots only). Please change them.</source>
        <translation>Die Werte ergeben eine Ordnerebene ohne brauchbaren Namen (leer oder nur Punkte). Bitte ändern Sie sie.</translation>
    </message>
    <message>
        <source>The name of a folder can have 255 bytes, and this one has %1. Please shorten a value.</source>
        <translation>Ein Ordnername darf 255 Byte lang sein, dieser ist %1 Byte lang. Bitte kürzen Sie einen Wert.</translation>
    </message>
    <message>
        <source>Unable to create folder</source>
        <translation>Der Ordner lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>&apos;%@&apos; cannot be left blank</source>
        <translation>„%@“ darf nicht leer bleiben</translation>
    </message>
    <message>
        <source>Please fill in this parameter before creating a project.</source>
        <translation>Bitte füllen Sie diesen Parameter aus, bevor Sie ein Projekt anlegen.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; cannot count any further</source>
        <translation>„%@“ kann nicht weiterzählen</translation>
    </message>
    <message>
        <source>Its number has too many digits: counters end at 2147483646. A date in front of a number is better a parameter of its own.</source>
        <translation>Die Nummer hat zu viele Ziffern: Zähler enden bei 2147483646. Für ein Datum vor der Nummer nehmen Sie besser einen eigenen Parameter.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; has to be changed</source>
        <translation>„%@“ muss geändert werden</translation>
    </message>
    <message>
        <source>There is no parameter “%1”. %2</source>
        <translation>Es gibt keinen Parameter „%1“. %2</translation>
    </message>
    <message>
        <source>The parameter “%1” is locked.</source>
        <translation>Der Parameter „%1“ ist gesperrt.</translation>
    </message>
    <message>
        <source>“%1” is not among the choices of “%2”. %3</source>
        <translation>„%1“ gehört nicht zur Auswahl von „%2“. %3</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Vorhanden sind: %1.</translation>
    </message>
    <message>
        <source>The studio’s templates are just being brought up to date. Please try again in a moment.</source>
        <translation>Die Vorlagen des Studios werden gerade auf den neuesten Stand gebracht. Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
</context>
<context>
    <name>ResultModel</name>
    <message>
        <source>too long for a folder</source>
        <translation>zu lang für einen Ordner</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <translation>%1, Ordner</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>the new name is taken</source>
        <translation>der neue Name ist vergeben</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>der neue Name ist zu lang</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>vorher %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
</context>
<context>
    <name>ResultPane</name>
    <message>
        <source>The project as it will be</source>
        <translation>Das Projekt, wie es aussehen wird</translation>
    </message>
    <message>
        <source>Folders: %1, files: %2, %3</source>
        <translation>Ordner: %1, Dateien: %2, %3</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Probleme: %1</translation>
    </message>
    <message>
        <source>Names that cannot be given: %1</source>
        <translation>Nicht mögliche Namen: %1</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read: %1</source>
        <translation>Die Regeln der Vorlage lassen sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>Repeats make more than %L1 items. These are the first.</source>
        <translation>Wiederholungen ergeben mehr als %L1 Objekte. Dies sind die ersten.</translation>
    </message>
    <message>
        <source>A project of this name is there already. It goes to the Trash when this one is created. Items: %1</source>
        <translation>Ein Projekt mit diesem Namen gibt es bereits. Es kommt in den Papierkorb, wenn dieses angelegt wird. Objekte: %1</translation>
    </message>
</context>
<context>
    <name>RuleInspector</name>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Put Them &amp;Aside</source>
        <translation>Beisei&amp;telegen</translation>
    </message>
    <message>
        <source>all of these are true</source>
        <translation>alle zutreffen</translation>
    </message>
    <message>
        <source>any of these is true</source>
        <translation>eine davon zutrifft</translation>
    </message>
    <message>
        <source>When it is made</source>
        <translation>Wann es angelegt wird</translation>
    </message>
    <message>
        <source>Add &amp;Condition</source>
        <translation>Neue Bedin&amp;gung</translation>
    </message>
    <message>
        <source>once</source>
        <translation>einmal</translation>
    </message>
    <message>
        <source>once for each number</source>
        <translation>einmal je Zahl</translation>
    </message>
    <message>
        <source>once for each value</source>
        <translation>einmal je Wert</translation>
    </message>
    <message>
        <source>How often it is made</source>
        <translation>Wie oft es angelegt wird</translation>
    </message>
    <message>
        <source>How &amp;often:</source>
        <translation>W&amp;ie oft:</translation>
    </message>
    <message>
        <source>Of the parameter</source>
        <translation>Aus dem Parameter</translation>
    </message>
    <message>
        <source>Called in names</source>
        <translation>Bezeichnung in Namen</translation>
    </message>
    <message>
        <source>of</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>as</source>
        <translation>als</translation>
    </message>
    <message>
        <source>Fill in values in its te&amp;xt</source>
        <translation>Werte in den Te&amp;xt einsetzen</translation>
    </message>
    <message>
        <source>The whole template</source>
        <translation>Die ganze Vorlage</translation>
    </message>
    <message>
        <source>&amp;Fill in values in names</source>
        <translation>Werte in &amp;Namen einsetzen</translation>
    </message>
    <message>
        <source>{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}</source>
        <translation>{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}</translation>
    </message>
    <message>
        <source>Va&amp;lues in the text of:</source>
        <translation>&amp;Werte im Text von:</translation>
    </message>
    <message>
        <source>Its Pa&amp;rameters…</source>
        <translation>Eigene Pa&amp;rameter…</translation>
    </message>
    <message>
        <source>Select one item for its rules.</source>
        <translation>Bitte wählen Sie ein Objekt aus.</translation>
    </message>
    <message>
        <source>No template is selected.</source>
        <translation>Keine Vorlage ausgewählt.</translation>
    </message>
    <message>
        <source>Made always.</source>
        <translation>Immer anlegen.</translation>
    </message>
    <message>
        <source>&amp;Made if:</source>
        <translation>An&amp;legen, wenn:</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Remove this condition</source>
        <translation>Diese Bedingung entfernen</translation>
    </message>
    <message>
        <source>Its name has the number as {%1}, or {%1:00} with two places.</source>
        <translation>In seinem Namen steht {%1} für die Zahl, {%1:00} für zwei Stellen.</translation>
    </message>
    <message>
        <source>Its name has the value as {%1}.</source>
        <translation>In seinem Namen steht {%1} für den Wert.</translation>
    </message>
    <message>
        <source>Rules of items that are gone:</source>
        <translation>Regeln nicht mehr vorhandener Objekte:</translation>
    </message>
    <message>
        <source>Remove the rule of %1</source>
        <translation>Regel von %1 entfernen</translation>
    </message>
</context>
<context>
    <name>RuledTree</name>
    <message>
        <source>Another item here gets the name “%1”, too.</source>
        <translation>Ein anderes Objekt hier bekommt ebenfalls den Namen „%1“.</translation>
    </message>
</context>
<context>
    <name>RulesCommand</name>
    <message>
        <source>This is no JSON: %1, at byte %2.</source>
        <translation>Das ist kein JSON: %1, bei Byte %2.</translation>
    </message>
    <message>
        <source>Rules are one JSON object: { … }.</source>
        <translation>Regeln sind ein JSON-Objekt: { … }.</translation>
    </message>
    <message>
        <source>The old rules were damaged; they are kept as %1.</source>
        <translation>Die alten Regeln waren beschädigt; sie bleiben als %1 erhalten.</translation>
    </message>
    <message>
        <source>The rules cannot be read.</source>
        <translation>Die Regeln lassen sich nicht lesen.</translation>
    </message>
    <message>
        <source>The rules were not changed.</source>
        <translation>Die Regeln wurden nicht geändert.</translation>
    </message>
    <message>
        <source>There is no template “%1”.</source>
        <translation>Es gibt keine Vorlage „%1“.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Hier sind Administratorrechte nötig; sie wurden verweigert.</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read; --set puts others in their place and keeps them beside.</source>
        <translation>Die Regeln der Vorlage lassen sich nicht lesen; --set setzt andere an ihre Stelle und legt die alten beiseite.</translation>
    </message>
    <message>
        <source>There is a rule for an item that is gone: %1</source>
        <translation>Es gibt eine Regel für ein Objekt, das nicht mehr da ist: %1</translation>
    </message>
</context>
<context>
    <name>SearchComboBox</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The value is on or off.</source>
        <translation>Der Wert ist on oder off.</translation>
    </message>
    <message>
        <source>Please type the whole path, from the first slash on, or choose a folder.</source>
        <translation>Bitte geben Sie den ganzen Pfad ab dem ersten Schrägstrich ein, oder wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>A file stands there. Please choose a folder.</source>
        <translation>Dort liegt eine Datei. Bitte wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>Slashes and colons cannot be in a folder&apos;s name.</source>
        <translation>Schrägstriche und Doppelpunkte sind in Ordnernamen nicht möglich.</translation>
    </message>
    <message>
        <source>At most ten characters.</source>
        <translation>Höchstens zehn Zeichen.</translation>
    </message>
    <message>
        <source>This gives no date. %Y is the year, %m the month, %d the day.</source>
        <translation>Das ergibt kein Datum. %Y ist das Jahr, %m der Monat, %d der Tag.</translation>
    </message>
    <message>
        <source>The percent sign at the end has no letter behind it.</source>
        <translation>Auf das Prozentzeichen am Ende folgt kein Buchstabe.</translation>
    </message>
    <message>
        <source>One of the percent signs has a letter behind it that stands for nothing. %Y is the year, %m the month, %d the day.</source>
        <translation>Auf eines der Prozentzeichen folgt ein Buchstabe, der für nichts steht. %Y ist das Jahr, %m der Monat, %d der Tag.</translation>
    </message>
    <message>
        <source>folder of the template library</source>
        <translation>Ordner der Vorlagenbibliothek</translation>
    </message>
    <message>
        <source>template of new projects</source>
        <translation>Vorlage neuer Projekte</translation>
    </message>
    <message>
        <source>create every project in one folder</source>
        <translation>alle Projekte in einem Ordner anlegen</translation>
    </message>
    <message>
        <source>that folder</source>
        <translation>dieser Ordner</translation>
    </message>
    <message>
        <source>between the values of one folder level</source>
        <translation>zwischen den Werten einer Ordnerebene</translation>
    </message>
    <message>
        <source>how dates are written</source>
        <translation>wie ein Datum geschrieben wird</translation>
    </message>
    <message>
        <source>only letters, digits, - and _</source>
        <translation>nur Buchstaben, Ziffern, - und _</translation>
    </message>
    <message>
        <source>open a new project&apos;s folder</source>
        <translation>Ordner eines neuen Projekts öffnen</translation>
    </message>
    <message>
        <source>quit after a project</source>
        <translation>nach dem Anlegen eines Projekts beenden</translation>
    </message>
    <message>
        <source>show every folder of a template opened</source>
        <translation>alle Ordner einer Vorlage aufgeklappt zeigen</translation>
    </message>
    <message>
        <source>ask for a password at the start</source>
        <translation>beim Start Passwort verlangen</translation>
    </message>
    <message>
        <source>ask before templates are changed</source>
        <translation>vor Änderungen an Vorlagen Passwort verlangen</translation>
    </message>
    <message>
        <source>ask before settings are changed</source>
        <translation>vor Änderungen an Einstellungen Passwort verlangen</translation>
    </message>
    <message>
        <source>There is no template “%1”. There are: %2.</source>
        <translation>Es gibt keine Vorlage „%1“. Vorhanden sind: %2.</translation>
    </message>
    <message>
        <source>Please type the whole path of a program that may be run.</source>
        <translation>Bitte geben Sie den ganzen Pfad eines ausführbaren Programms ein.</translation>
    </message>
    <message>
        <source>The value is a number of seconds, from 1 to %1.</source>
        <translation>Der Wert ist eine Anzahl von Sekunden, von 1 bis %1.</translation>
    </message>
    <message>
        <source>program that gets each new project as JSON on its standard input</source>
        <translation>Programm, das jedes neue Projekt als JSON über die Standardeingabe bekommt</translation>
    </message>
    <message>
        <source>how many seconds it may take</source>
        <translation>wie viele Sekunden es laufen darf</translation>
    </message>
    <message>
        <source>folder of the set-up that your studio shares</source>
        <translation>Ordner der gemeinsamen Einrichtung Ihres Studios</translation>
    </message>
    <message>
        <source>Set by your studio</source>
        <translation>Von Ihrem Studio festgelegt</translation>
    </message>
</context>
<context>
    <name>SettingsCommand</name>
    <message>
        <source>There is no setting “%1”. Tessaro settings lists them.</source>
        <translation>Es gibt keine Einstellung „%1“. Tessaro settings listet alle auf.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Hier sind Administratorrechte nötig; sie wurden verweigert.</translation>
    </message>
    <message>
        <source>The setting could not be stored.</source>
        <translation>Die Einstellung ließ sich nicht speichern.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>Die Vorlagenbibliothek lässt sich nicht lesen.</translation>
    </message>
</context>
<context>
    <name>SetupCommand</name>
    <message>
        <source>No set-up is shared.</source>
        <translation>Es gibt keine gemeinsame Einrichtung.</translation>
    </message>
    <message>
        <source>Folder: %1
Templates: %2
Locked: %3
Last change: %4</source>
        <translation>Ordner: %1
Vorlagen: %2
Gesperrt: %3
Letzte Änderung: %4</translation>
    </message>
    <message>
        <source>the studio’s</source>
        <translation>die des Studios</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>Ihre eigenen</translation>
    </message>
    <message>
        <source>The setting could not be stored.</source>
        <translation>Die Einstellung ließ sich nicht speichern.</translation>
    </message>
    <message>
        <source>This folder holds no set-up that can be used. Tessaro setup export writes one.</source>
        <translation>Dieser Ordner enthält keine verwendbare Einrichtung. Tessaro setup export legt eine an.</translation>
    </message>
    <message>
        <source>What can be locked: parameters, %1; or none.</source>
        <translation>Sperren lassen sich: parameters, %1; oder none.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The set-up could not be written.</source>
        <translation>Die Einrichtung ließ sich nicht schreiben.</translation>
    </message>
    <message>
        <source>It is set for every user of this computer; an administrator takes it away: %1</source>
        <translation>Sie ist für alle Benutzer dieses Computers eingestellt; ein Administrator kann sie entfernen: %1</translation>
    </message>
    <message>
        <source>Another program takes over or uses a set-up just now. Please try again in a moment.</source>
        <translation>Ein anderes Programm übernimmt oder verwendet gerade eine Einrichtung. Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>Die Vorlagenbibliothek lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The set-up was left; it counts until whatever uses it has finished.</source>
        <translation>Die Einrichtung wurde verlassen; sie gilt, bis fertig ist, was sie verwendet.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>StudioLibrary</name>
    <message>
        <source>Taking over the studio’s set-up</source>
        <translation>Die Einrichtung des Studios wird übernommen</translation>
    </message>
    <message>
        <source>The studio’s set-up cannot be reached. The copy of %1 is used.</source>
        <translation>Die Einrichtung des Studios ist nicht erreichbar. Die Kopie vom %1 wird verwendet.</translation>
    </message>
    <message>
        <source>The studio’s set-up cannot be reached. Your own is used.</source>
        <translation>Die Einrichtung des Studios ist nicht erreichbar. Ihre eigene wird verwendet.</translation>
    </message>
    <message>
        <source>Writing the studio’s set-up</source>
        <translation>Die Einrichtung des Studios wird geschrieben</translation>
    </message>
    <message>
        <source>Part of the studio’s set-up could not be taken over.</source>
        <translation>Ein Teil der Einrichtung des Studios ließ sich nicht übernehmen.</translation>
    </message>
    <message>
        <source>Another program takes over or uses the studio’s set-up just now; what is new waits.</source>
        <translation>Ein anderes Programm übernimmt oder verwendet gerade die Einrichtung des Studios; Neues wartet so lange.</translation>
    </message>
    <message>
        <source>The studio’s set-up could not be taken over. The copy of %1 is used.</source>
        <translation>Die Einrichtung des Studios ließ sich nicht übernehmen. Die Kopie vom %1 wird verwendet.</translation>
    </message>
    <message>
        <source>The studio’s set-up could not be taken over. Your own is used.</source>
        <translation>Die Einrichtung des Studios ließ sich nicht übernehmen. Ihre eigene wird verwendet.</translation>
    </message>
</context>
<context>
    <name>TableSheet</name>
    <message>
        <source>&amp;All of them, or none</source>
        <translation>&amp;Alle oder keines</translation>
    </message>
    <message>
        <source>&amp;Leave out rows with problems</source>
        <translation>&amp;Zeilen mit Problemen auslassen</translation>
    </message>
    <message>
        <source>Create From Table</source>
        <translation>Aus Tabelle anlegen</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>The first row names parameters, each other one is a project (CSV, or a spreadsheet’s cells). A column “Template” chooses the template.</source>
        <translation>Die erste Zeile nennt die Parameter, jede weitere ist ein Projekt (CSV oder Zellen aus einer Tabellenkalkulation). Eine Spalte „Template“ wählt die Vorlage.</translation>
    </message>
    <message>
        <source>The folder that the projects go to</source>
        <translation>Der Ordner für die Projekte</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>In:</source>
        <translation>In:</translation>
    </message>
    <message>
        <source>Create Pro&amp;jects</source>
        <translation>Projekte a&amp;nlegen</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>The project of the selected row</source>
        <translation>Das Projekt der ausgewählten Zeile</translation>
    </message>
    <message>
        <source>Choose a table</source>
        <translation>Tabelle wählen</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt *.tab);;All files (*)</source>
        <translation>Tabellen (*.csv *.tsv *.txt *.tab);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose a destination</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>Please choose a folder.</source>
        <translation>Bitte wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>Looking at the table…</source>
        <translation>Tabelle wird geprüft…</translation>
    </message>
    <message>
        <source>Projects: %L1</source>
        <translation>Projekte: %L1</translation>
    </message>
    <message>
        <source>Projects: %L1, with problems: %L2</source>
        <translation>Projekte: %L1, mit Problemen: %L2</translation>
    </message>
    <message>
        <source>No parameter is called: %1</source>
        <translation>Ohne passenden Parameter: %1</translation>
    </message>
</context>
<context>
    <name>TemplateCommand</name>
    <message>
        <source>There is no template “%1”. There are: %2.</source>
        <translation>Es gibt keine Vorlage „%1“. Vorhanden sind: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be a template&apos;s name. Leave out slashes, colons, and dots at the beginning.</source>
        <translation>„%1“ ist als Name einer Vorlage nicht möglich. Lassen Sie Schrägstriche, Doppelpunkte und Punkte am Anfang weg.</translation>
    </message>
    <message>
        <source>There is a template “%1” already.</source>
        <translation>Eine Vorlage „%1“ gibt es bereits.</translation>
    </message>
    <message>
        <source>Nothing was removed. Say --yes to move the template to the Trash.</source>
        <translation>Nichts wurde entfernt. Mit --yes kommt die Vorlage in den Papierkorb.</translation>
    </message>
    <message>
        <source>--unset belongs to template default, without a name.</source>
        <translation>--unset gehört zu template default, ohne Namen.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Hier sind Administratorrechte nötig; sie wurden verweigert.</translation>
    </message>
    <message>
        <source>The template has no folder “Files”: %1</source>
        <translation>Die Vorlage hat keinen Ordner „Files“: %1</translation>
    </message>
    <message>
        <source>This folder of the template cannot be read:</source>
        <translation>Dieser Ordner der Vorlage lässt sich nicht lesen:</translation>
    </message>
    <message>
        <source>%1 is not a template: its name ends neither in “.tzt” nor in “.tzt.zip”.</source>
        <translation>%1 ist keine Vorlage: Der Name endet weder auf „.tzt“ noch auf „.tzt.zip“.</translation>
    </message>
    <message>
        <source>%1 exists already. Please say another name.</source>
        <translation>%1 gibt es bereits. Bitte geben Sie einen anderen Namen an.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>%1 is a link; what it leads to is not changed from here.</source>
        <translation>%1 ist eine Verknüpfung; ihr Ziel wird von hier aus nicht geändert.</translation>
    </message>
    <message>
        <source>This is no template, it lacks the folder %1.</source>
        <translation>Das ist keine Vorlage; ihr fehlt der Ordner %1.</translation>
    </message>
    <message>
        <source>Not all folders could be made.</source>
        <translation>Nicht alle Ordner ließen sich anlegen.</translation>
    </message>
    <message>
        <source>Nothing was restored. Say --yes to put back the templates that ship with Tessaro; changed ones go to the Trash.</source>
        <translation>Nichts wurde wiederhergestellt. Mit --yes werden die mitgelieferten Vorlagen wiederhergestellt; geänderte kommen in den Papierkorb.</translation>
    </message>
    <message>
        <source>Not all templates could be restored.</source>
        <translation>Nicht alle Vorlagen ließen sich wiederherstellen.</translation>
    </message>
</context>
<context>
    <name>TemplateLibrary</name>
    <message>
        <source>Unable to create directory %@</source>
        <translation>Der Ordner %@ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ kopieren</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove the template &apos;%@&apos;?</source>
        <translation>Möchten Sie die Vorlage „%@“ wirklich entfernen?</translation>
    </message>
    <message>
        <source>The template file will be placed in your Trash.</source>
        <translation>Die Vorlage kommt in Ihren Papierkorb.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unable to remove template %@</source>
        <translation>Die Vorlage %@ lässt sich nicht entfernen</translation>
    </message>
    <message>
        <source>Please check that you have write permissions for this file.</source>
        <translation>Bitte prüfen Sie, ob Sie Schreibrechte für diese Datei haben.</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>You must enter a filename without invalid characters.</source>
        <translation>Bitte geben Sie einen Dateinamen ohne unzulässige Zeichen ein.</translation>
    </message>
    <message>
        <source>Template already exists</source>
        <translation>Vorlage bereits vorhanden</translation>
    </message>
    <message>
        <source>You cannot rename this template to %@ because there is already a template with this name.</source>
        <translation>Diese Vorlage kann nicht in %@ umbenannt werden, weil es bereits eine Vorlage mit diesem Namen gibt.</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ verschieben</translation>
    </message>
    <message>
        <source>Unable to export %@</source>
        <translation>%@ lässt sich nicht exportieren</translation>
    </message>
    <message numerus="yes">
        <source>%n items of %1 could not be put into the archive as they are</source>
        <translation>
            <numerusform>%n Objekt von %1 ließ sich nicht unverändert ins Archiv aufnehmen</numerusform>
            <numerusform>%n Objekte von %1 ließen sich nicht unverändert ins Archiv aufnehmen</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to read %@</source>
        <translation>%@ lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>Please ask for the file again, or unpack it and take in the folder.</source>
        <translation>Bitte lassen Sie sich die Datei noch einmal schicken, oder entpacken Sie sie und importieren Sie den Ordner.</translation>
    </message>
    <message>
        <source>%@ holds no template</source>
        <translation>%@ enthält keine Vorlage</translation>
    </message>
    <message>
        <source>An archive of a template holds one folder whose name ends in “.tzt”.</source>
        <translation>Das Archiv einer Vorlage enthält genau einen Ordner, dessen Name auf „.tzt“ endet.</translation>
    </message>
    <message>
        <source>%@ is not a template</source>
        <translation>%@ ist keine Vorlage</translation>
    </message>
    <message>
        <source>A template is a folder whose name ends in “.tzt”, with a folder “Files” in it. Please choose such a folder.</source>
        <translation>Eine Vorlage ist ein Ordner, dessen Name auf „.tzt“ endet und der einen Ordner „Files“ enthält. Bitte wählen Sie einen solchen Ordner.</translation>
    </message>
</context>
<context>
    <name>TemplatePane</name>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Remove the selected template</source>
        <translation>Ausgewählte Vorlage entfernen</translation>
    </message>
    <message>
        <source>Filter the contents</source>
        <translation>Inhalt filtern</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Contents of the template</source>
        <translation>Inhalt der Vorlage</translation>
    </message>
    <message>
        <source>Add a folder, a project file, or what lies elsewhere</source>
        <translation>Ordner, Projektdatei oder vorhandene Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add to the template</source>
        <translation>Zur Vorlage hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Ausgewählte Objekte entfernen</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Neue Vorlage</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>Entfe&amp;rnen…</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>Im Datei&amp;manager zeigen</translation>
    </message>
    <message>
        <source>New &amp;Folder</source>
        <translation>Neuer &amp;Ordner</translation>
    </message>
    <message>
        <source>Import F&amp;iles and Folders…</source>
        <translation>Dateien und Ordner &amp;importieren…</translation>
    </message>
    <message>
        <source>Import Folder &amp;Structure…</source>
        <translation>Ordner&amp;struktur importieren…</translation>
    </message>
    <message>
        <source>New Folder &amp;Beside</source>
        <translation>Neuer Ordner da&amp;neben</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtern</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Drop here for the top level</source>
        <translation>Für die oberste Ebene hier ablegen</translation>
    </message>
    <message>
        <source>&amp;Rules</source>
        <translation>Re&amp;geln</translation>
    </message>
    <message>
        <source>Rules of the template and its items (Ctrl+I)</source>
        <translation>Regeln der Vorlage und ihrer Objekte (Strg+I)</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>Die Regeln lassen sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>Select a template on the left.</source>
        <translation>Wählen Sie links eine Vorlage aus.</translation>
    </message>
    <message>
        <source>Make a template with the plus sign on the left.</source>
        <translation>Legen Sie mit dem Pluszeichen links eine Vorlage an.</translation>
    </message>
    <message>
        <source>Drop files and folders here, or add a folder.</source>
        <translation>Ziehen Sie Dateien und Ordner hierher, oder fügen Sie einen Ordner hinzu.</translation>
    </message>
    <message>
        <source>No label</source>
        <translation>Kein Etikett</translation>
    </message>
    <message>
        <source>Label %1</source>
        <translation>Etikett %1</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>E&amp;tikett</translation>
    </message>
    <message>
        <source>“%1” cannot be undone</source>
        <translation>„%1“ lässt sich nicht rückgängig machen</translation>
    </message>
    <message>
        <source>“%1” cannot be done again</source>
        <translation>„%1“ lässt sich nicht wiederholen</translation>
    </message>
    <message>
        <source>Your studio shares no templates yet.</source>
        <translation>Ihr Studio stellt noch keine Vorlagen bereit.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
</context>
<context>
    <name>TemplateRules</name>
    <message>
        <source>“%1” is compared by size, and “%2” is no number.</source>
        <translation>„%1“ wird der Größe nach verglichen, aber „%2“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>A condition asks for the parameter “%1”, which there is none of.</source>
        <translation>Eine Bedingung verlangt den Parameter „%1“, den es nicht gibt.</translation>
    </message>
    <message>
        <source>A repeat asks for the parameter “%1”, which there is none of.</source>
        <translation>Eine Wiederholung verlangt den Parameter „%1“, den es nicht gibt.</translation>
    </message>
    <message>
        <source>“%1” has no value yet: how many?</source>
        <translation>„%1“ hat noch keinen Wert: Wie viele?</translation>
    </message>
    <message>
        <source>“%1” is no number to count to: %2</source>
        <translation>„%1“ ist keine Zahl, bis zu der sich zählen lässt: %2</translation>
    </message>
    <message>
        <source>“%1” is too large a number: %2</source>
        <translation>„%1“ ist eine zu große Zahl: %2</translation>
    </message>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>ist nicht</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is not empty</source>
        <translation>ist nicht leer</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>ist größer als</translation>
    </message>
    <message>
        <source>“%1” holds something that is no text</source>
        <translation>„%1“ enthält etwas, das kein Text ist</translation>
    </message>
    <message>
        <source>“%1” holds something that is no dictionary</source>
        <translation>„%1“ enthält etwas, das kein Dictionary ist</translation>
    </message>
    <message>
        <source>“%1” is not of the right kind</source>
        <translation>„%1“ ist nicht von der richtigen Art</translation>
    </message>
    <message>
        <source>“%1” is no condition; there are: is, isNot, contains, isEmpty, isNotEmpty, isGreater</source>
        <translation>„%1“ ist keine Bedingung; es gibt: is, isNot, contains, isEmpty, isNotEmpty, isGreater</translation>
    </message>
    <message>
        <source>a condition names no parameter</source>
        <translation>eine Bedingung nennt keinen Parameter</translation>
    </message>
    <message>
        <source>“when” takes “all” or “any”, not “%1”</source>
        <translation>„when“ erwartet „all“ oder „any“, nicht „%1“</translation>
    </message>
    <message>
        <source>“repeat” names no parameter: {&quot;count&quot;: TITLE} or {&quot;values&quot;: TITLE}</source>
        <translation>„repeat“ nennt keinen Parameter: {&quot;count&quot;: TITLE} oder {&quot;values&quot;: TITLE}</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a repeat</source>
        <translation>„%1“ ist als Name einer Wiederholung nicht möglich</translation>
    </message>
    <message>
        <source>“repeat” takes “count” or “values”, and “as”, not “%1”</source>
        <translation>„repeat“ erwartet „count“ oder „values“ und „as“, nicht „%1“</translation>
    </message>
    <message>
        <source>Item %1 (%2)</source>
        <translation>Objekt %1 (%2)</translation>
    </message>
    <message>
        <source>its path names no item of the template</source>
        <translation>der Pfad nennt kein Objekt der Vorlage</translation>
    </message>
    <message>
        <source>These rules are of a later version of Tessaro.</source>
        <translation>Diese Regeln stammen aus einer neueren Version von Tessaro.</translation>
    </message>
    <message>
        <source>a parameter of “parameters” has no title</source>
        <translation>ein Parameter unter „parameters“ hat keinen Titel</translation>
    </message>
    <message>
        <source>two parameters of “parameters” are called “%1”</source>
        <translation>zwei Parameter unter „parameters“ heißen „%1“</translation>
    </message>
</context>
<context>
    <name>TemplateTreeModel</name>
    <message>
        <source>Link to %1</source>
        <translation>Verknüpfung mit %1</translation>
    </message>
    <message>
        <source>This lies behind a link, outside of the template. It is not changed from here.</source>
        <translation>Dies liegt hinter einer Verknüpfung, außerhalb der Vorlage. Von hier aus wird es nicht geändert.</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2, label %3</source>
        <translation>%1, %2, Etikett %3</translation>
    </message>
    <message>
        <source>only when %1 %2 %3</source>
        <translation>nur wenn gilt: %1 %2 %3</translation>
    </message>
    <message>
        <source>once for each number up to %1</source>
        <translation>einmal je Zahl bis %1</translation>
    </message>
    <message>
        <source>once for each value of %1</source>
        <translation>einmal je Wert von %1</translation>
    </message>
    <message>
        <source>values in its text</source>
        <translation>Werte im Text</translation>
    </message>
</context>
<context>
    <name>TerminalProgress</name>
    <message>
        <source>stopping</source>
        <translation>wird abgebrochen</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>, in %1</translation>
    </message>
</context>
<context>
    <name>TessaroAppDelegate</name>
    <message>
        <source>Tessaro needs an administrator’s password to start</source>
        <translation>Tessaro braucht zum Starten das Passwort eines Administrators</translation>
    </message>
    <message>
        <source>It was not given, or there is nobody who could ask for it. An administrator can switch this off with: sudo Tessaro settings unset requireAdminPassword</source>
        <translation>Es wurde nicht eingegeben, oder es läuft kein Dienst, der danach fragt. Ein Administrator kann dies ausschalten mit: sudo Tessaro settings unset requireAdminPassword</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Ihre Einstellungen lassen sich nicht lesen</translation>
    </message>
    <message>
        <source>Tessaro shows its defaults instead. What you change and the numbers that projects take are not kept until the file can be read again.</source>
        <translation>Tessaro zeigt stattdessen die Vorgaben. Was Sie ändern und welche Nummern Projekte bekommen, wird erst wieder gespeichert, wenn die Datei lesbar ist.</translation>
    </message>
    <message>
        <source>Welcome to Tessaro</source>
        <translation>Willkommen bei Tessaro</translation>
    </message>
    <message>
        <source>Simplify your creative workflows by organizing your assets before you start. Tessaro makes it easy to create customized folder structures for each project.

Modify the included templates to meet your needs or create your own from scratch.</source>
        <translation>Ordnen Sie Ihr Material, bevor die Arbeit beginnt, und Ihre Abläufe werden einfacher. Mit Tessaro legen Sie für jedes Projekt im Handumdrehen die passende Ordnerstruktur an.

Passen Sie die mitgelieferten Vorlagen an Ihren Bedarf an, oder bauen Sie eigene von Grund auf.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Tessaro ended unexpectedly the last time</source>
        <translation>Tessaro wurde beim letzten Mal unerwartet beendet</translation>
    </message>
    <message>
        <source>A report of it lies on this computer; what it says of the program helps to mend the fault. Your projects and templates are as they were.</source>
        <translation>Auf diesem Computer liegt ein Bericht darüber; er hilft, den Fehler im Programm zu beheben. Ihre Projekte und Vorlagen sind unverändert.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Bericht zeigen</translation>
    </message>
    <message>
        <source>A project was not finished</source>
        <translation>Ein Projekt wurde nicht fertig</translation>
    </message>
    <message>
        <source>Tessaro or the computer stopped while ‘%1’ was being made. What had been copied is here:

%2</source>
        <translation>Tessaro oder der Computer ist ausgefallen, während ‚%1‘ angelegt wurde. Was schon kopiert war, liegt hier:

%2</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>The unfinished project could not be put away</source>
        <translation>Das unfertige Projekt ließ sich nicht wegräumen</translation>
    </message>
    <message>
        <source>‘%1’ is not whole</source>
        <translation>‚%1‘ ist unvollständig</translation>
    </message>
    <message>
        <source>Projects that are not whole: %1</source>
        <translation>Unvollständige Projekte: %1</translation>
    </message>
    <message>
        <source>Create it once more, or take these files from the template.</source>
        <translation>Legen Sie es noch einmal an, oder übernehmen Sie diese Dateien aus der Vorlage.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>The library at %1 cannot be reached.</source>
        <translation>Die Bibliothek unter %1 ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>About Tessaro</source>
        <translation>Über Tessaro</translation>
    </message>
    <message>
        <source>Tessaro %1</source>
        <translation>Tessaro %1</translation>
    </message>
    <message>
        <source>Starts media and production projects from templates.

© Vantrel</source>
        <translation>Legt Medien- und Produktionsprojekte aus Vorlagen an.

© Vantrel</translation>
    </message>
    <message>
        <source>Creation of ‘%1’</source>
        <translation>Anlegen von ‚%1‘</translation>
    </message>
    <message>
        <source>Creation From Table</source>
        <translation>Anlegen aus Tabelle</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Undoing %1</source>
        <translation>%1 wird rückgängig gemacht</translation>
    </message>
    <message>
        <source>‘%1’ cannot be undone</source>
        <translation>‚%1‘ lässt sich nicht rückgängig machen</translation>
    </message>
    <message>
        <source>It is not at its place any more.</source>
        <translation>Es ist nicht mehr an seinem Ort.</translation>
    </message>
    <message>
        <source>‘%1’ is in the Trash.</source>
        <translation>‚%1‘ liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>The old project is still in the Trash</source>
        <translation>Das alte Projekt liegt noch im Papierkorb</translation>
    </message>
    <message>
        <source>What was untouched is in the Trash.</source>
        <translation>Was unverändert war, liegt im Papierkorb.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>und %n weiteres; das Protokoll nennt alle</numerusform>
            <numerusform>und %n weitere; das Protokoll nennt alle</numerusform>
        </translation>
    </message>
    <message>
        <source>Part of ‘%1’ stays</source>
        <translation>Ein Teil von ‚%1‘ bleibt</translation>
    </message>
    <message>
        <source>None Yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>Not There Any More</source>
        <translation>Nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Show in Its Folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Choose a destination</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>Choose where projects go</source>
        <translation>Speicherort für Projekte wählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>Projekt bereits vorhanden</translation>
    </message>
    <message>
        <source>Are you sure you wish to overwrite %@?</source>
        <translation>Möchten Sie %@ wirklich überschreiben?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stopped; nothing of the project was kept.</source>
        <translation>Abgebrochen; vom Projekt wurde nichts behalten.</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read</source>
        <translation>Die Regeln der Vorlage lassen sich nicht lesen</translation>
    </message>
    <message>
        <source>Nothing was created. The template pane shows what can be done.</source>
        <translation>Nichts wurde angelegt. Der Vorlagenbereich zeigt, was sich tun lässt.</translation>
    </message>
    <message>
        <source>The template has other parameters by now</source>
        <translation>Die Vorlage hat inzwischen andere Parameter</translation>
    </message>
    <message>
        <source>Nothing was created. Please look at the values again.</source>
        <translation>Nichts wurde angelegt. Bitte sehen Sie die Werte noch einmal durch.</translation>
    </message>
    <message>
        <source>Updates cannot be looked for</source>
        <translation>Nach Updates kann nicht gesucht werden</translation>
    </message>
    <message>
        <source>The software updater is not installed on this computer.</source>
        <translation>Das Programm für Softwareupdates ist auf diesem Computer nicht installiert.</translation>
    </message>
    <message>
        <source>and others: %L1; the log names each</source>
        <translation>und weitere: %L1; das Protokoll nennt alle</translation>
    </message>
    <message>
        <source>There is no template “%1”.</source>
        <translation>Es gibt keine Vorlage „%1“.</translation>
    </message>
    <message>
        <source>Nothing was kept: what had been created is in the Trash.</source>
        <translation>Nichts wurde behalten: Was schon angelegt war, liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>Rows that were left out: %L1</source>
        <translation>Ausgelassene Zeilen: %L1</translation>
    </message>
    <message>
        <source>The projects could not all be created</source>
        <translation>Nicht alle Projekte ließen sich anlegen</translation>
    </message>
    <message>
        <source>Not all went well</source>
        <translation>Nicht alles ist gelungen</translation>
    </message>
    <message>
        <source>Undoing projects: %L1</source>
        <translation>Projekte werden rückgängig gemacht: %L1</translation>
    </message>
    <message>
        <source>In the Trash: %L1 projects.</source>
        <translation>Projekte im Papierkorb: %L1.</translation>
    </message>
    <message>
        <source>Part of the projects stays</source>
        <translation>Ein Teil der Projekte bleibt</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Import Template</source>
        <translation>Vorlage importieren</translation>
    </message>
    <message>
        <source>%@ already exists. Overwrite?</source>
        <translation>%@ gibt es bereits. Überschreiben?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>Was dort liegt, kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Export “%1”</source>
        <translation>„%1“ exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Tessaro: closes when everything has been taken in</source>
        <translation>Tessaro: schließt, sobald alles importiert ist</translation>
    </message>
    <message>
        <source>%@ is not a template</source>
        <translation>%@ ist keine Vorlage</translation>
    </message>
    <message>
        <source>Tessaro takes in templates: folders whose name ends in “.tzt”, and archives of them, in “.tzt.zip”.</source>
        <translation>Tessaro importiert Vorlagen: Ordner, deren Name auf „.tzt“ endet, und Archive davon („.tzt.zip“).</translation>
    </message>
    <message>
        <source>Tessaro</source>
        <translation>Tessaro</translation>
    </message>
    <message>
        <source>Restore of the Default Templates</source>
        <translation>Wiederherstellen der Standardvorlagen</translation>
    </message>
    <message>
        <source>Not all templates could be restored</source>
        <translation>Nicht alle Vorlagen ließen sich wiederherstellen</translation>
    </message>
    <message>
        <source>Those that could not be replaced were left as they are.</source>
        <translation>Was sich nicht ersetzen ließ, blieb unverändert.</translation>
    </message>
    <message>
        <source>Are you sure you wish to restore the default Tessaro templates?</source>
        <translation>Möchten Sie die Standardvorlagen von Tessaro wirklich wiederherstellen?</translation>
    </message>
    <message>
        <source>This will restore the templates Tessaro ships with by default and will overwrite any modifications you have made to them.</source>
        <translation>Die mit Tessaro gelieferten Vorlagen werden wiederhergestellt; alle Ihre Änderungen daran werden überschrieben.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>History successfully cleared</source>
        <translation>Verlauf gelöscht</translation>
    </message>
    <message>
        <source>To switch history logging off entirely, go to Preferences and deselect Save History next to each parameter in the Parameters tab.</source>
        <translation>Um den Verlauf ganz auszuschalten, entfernen Sie in den Einstellungen unter „Parameter“ bei jedem Parameter das Häkchen in der Spalte „Verlauf“.</translation>
    </message>
    <message>
        <source>&amp;Check…</source>
        <translation>&amp;Prüfen…</translation>
    </message>
    <message>
        <source>Choose the project to check</source>
        <translation>Zu prüfendes Projekt wählen</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>‘%1’ cannot be checked</source>
        <translation>‚%1‘ lässt sich nicht prüfen</translation>
    </message>
    <message>
        <source>Tessaro does not remember this project; it was compared with the template “%1”.</source>
        <translation>Tessaro hat sich dieses Projekt nicht gemerkt; es wurde mit der Vorlage „%1“ verglichen.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; “Tessaro check” names each</source>
        <translation>
            <numerusform>und %n weiteres; „Tessaro check“ nennt alle</numerusform>
            <numerusform>und %n weitere; „Tessaro check“ nennt alle</numerusform>
        </translation>
    </message>
    <message>
        <source>Items that depend on values, not looked for: %L1</source>
        <translation>Von Werten abhängige Objekte, nicht geprüft: %L1</translation>
    </message>
    <message>
        <source>Items looked for: %L1</source>
        <translation>Geprüfte Objekte: %L1</translation>
    </message>
    <message>
        <source>‘%1’ is complete</source>
        <translation>‚%1‘ ist vollständig</translation>
    </message>
    <message>
        <source>Something is missing in ‘%1’</source>
        <translation>In ‚%1‘ fehlt etwas</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 wird geprüft</translation>
    </message>
    <message>
        <source>No project can be created there</source>
        <translation>Dort lässt sich kein Projekt anlegen</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Das Programm, dem neue Projekte gemeldet werden, ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Editing: from ingest to delivery</source>
        <translation>Schnitt: vom Einlesen bis zur Auslieferung</translation>
    </message>
    <message>
        <source>Photography: from card to client</source>
        <translation>Fotografie: von der Speicherkarte bis zum Kunden</translation>
    </message>
    <message>
        <source>Podcast and sound: an episode, a mix</source>
        <translation>Podcast und Ton: eine Folge, eine Mischung</translation>
    </message>
    <message>
        <source>What would you like to start with?</source>
        <translation>Womit möchten Sie beginnen?</translation>
    </message>
    <message>
        <source>The manual cannot be opened</source>
        <translation>Das Handbuch lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>This desktop has no program for PDF files. The same text can be read here.</source>
        <translation>Auf diesem Desktop gibt es kein Programm für PDF-Dateien. Derselbe Text lässt sich hier lesen.</translation>
    </message>
    <message>
        <source>Show It Here</source>
        <translation>Hier zeigen</translation>
    </message>
    <message>
        <source>It is missing; please install Tessaro again.</source>
        <translation>Es fehlt; bitte installieren Sie Tessaro neu.</translation>
    </message>
    <message>
        <source>Tessaro is at work; please ask again when it has finished.</source>
        <translation>Tessaro arbeitet gerade; bitte versuchen Sie es noch einmal, wenn es fertig ist.</translation>
    </message>
    <message>
        <source>Where projects go is set by your studio</source>
        <translation>Wohin Projekte kommen, gibt Ihr Studio vor</translation>
    </message>
    <message>
        <source>The studio’s templates are just being brought up to date</source>
        <translation>Die Vorlagen des Studios werden gerade auf den neuesten Stand gebracht</translation>
    </message>
    <message>
        <source>Nothing was created. Please try again in a moment.</source>
        <translation>Es wurde nichts angelegt. Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The parameters were not stored</source>
        <translation>Die Parameter wurden nicht gespeichert</translation>
    </message>
    <message>
        <source>Another template is shown by now: that of a studio’s set-up, or of another library.</source>
        <translation>Inzwischen wird eine andere Vorlage gezeigt: die der Einrichtung eines Studios oder einer anderen Bibliothek.</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>It is computed from itself, by way of others.</source>
        <translation>Der Wert wird über andere aus sich selbst berechnet.</translation>
    </message>
</context>
<context>
    <name>TextValues</name>
    <message>
        <source>%1 has characters that this file, which is no UTF-8, cannot hold. Please save it as UTF-8.</source>
        <translation>%1 enthält Zeichen, die in dieser Datei nicht möglich sind, da sie nicht UTF-8 ist. Bitte speichern Sie sie als UTF-8.</translation>
    </message>
    <message>
        <source>%1 has a character that XML cannot hold.</source>
        <translation>%1 enthält ein Zeichen, das in XML nicht möglich ist.</translation>
    </message>
    <message>
        <source>This is no text: no values can be filled in.</source>
        <translation>Das ist kein Text: Werte lassen sich nicht einsetzen.</translation>
    </message>
    <message>
        <source>Values cannot be filled in: %1</source>
        <translation>Werte lassen sich nicht einsetzen: %1</translation>
    </message>
</context>
<context>
    <name>Tokens</name>
    <message>
        <source>“%1” has no value yet.</source>
        <translation>„%1“ hat noch keinen Wert.</translation>
    </message>
    <message>
        <source>“%1” is no number: %2</source>
        <translation>„%1“ ist keine Zahl: %2</translation>
    </message>
    <message>
        <source>“%1” is no form of a date, as %Y-%m-%d is.</source>
        <translation>„%1“ ist kein Datumsformat wie %Y-%m-%d.</translation>
    </message>
    <message>
        <source>“%1” is no date: %2</source>
        <translation>„%1“ ist kein Datum: %2</translation>
    </message>
    <message>
        <source>“%1” is neither places of a number, as 000 is, nor a form of a date, as %Y is.</source>
        <translation>„%1“ ist weder eine Stellenangabe wie 000 noch ein Datumsformat wie %Y.</translation>
    </message>
    <message>
        <source>There is no parameter “%1”.</source>
        <translation>Es gibt keinen Parameter „%1“.</translation>
    </message>
    <message>
        <source>“%1” changes no value. There are: %2.</source>
        <translation>„%1“ ändert keinen Wert. Es gibt: %2.</translation>
    </message>
    <message>
        <source>A “{” without its “}”. Two of them, “{{”, stand for one that is meant.</source>
        <translation>Ein „{“ ohne „}“. Wenn die Klammer selbst gemeint ist, schreiben Sie „{{“.</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>it has been changed</source>
        <translation>wurde geändert</translation>
    </message>
    <message>
        <source>the creation has not made it</source>
        <translation>nicht beim Anlegen entstanden</translation>
    </message>
    <message>
        <source>it cannot be moved to the Trash</source>
        <translation>lässt sich nicht in den Papierkorb legen</translation>
    </message>
</context>
<context>
    <name>Unfinished</name>
    <message>
        <source>The computer lost its power, or was switched off, before the project had reached its drive.</source>
        <translation>Der Strom fiel aus, oder der Computer wurde ausgeschaltet, bevor das Projekt auf seinem Laufwerk angekommen war.</translation>
    </message>
    <message numerus="yes">
        <source>The computer lost its power, or was switched off, before all of the project had reached its drive. %n of its files are empty or cut off:</source>
        <translation>
            <numerusform>Der Strom fiel aus, oder der Computer wurde ausgeschaltet, bevor das ganze Projekt auf seinem Laufwerk angekommen war. %n Datei ist leer oder abgeschnitten:</numerusform>
            <numerusform>Der Strom fiel aus, oder der Computer wurde ausgeschaltet, bevor das ganze Projekt auf seinem Laufwerk angekommen war. %n Dateien sind leer oder abgeschnitten:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserDefaults</name>
    <message>
        <source>It is set for every user of this computer, and only an administrator can change it, with sudo Tessaro settings.</source>
        <translation>Die Einstellung gilt für alle Benutzer dieses Computers; nur ein Administrator kann sie ändern, mit sudo Tessaro settings.</translation>
    </message>
</context>
<context>
    <name>VTDataController</name>
    <message>
        <source>Unable to create directory %@</source>
        <translation>Der Ordner %@ lässt sich nicht anlegen</translation>
    </message>
</context>
<context>
    <name>VTImageTextCell</name>
    <message>
        <source>Name of %1</source>
        <translation>Name von %1</translation>
    </message>
</context>
<context>
    <name>VTKeys</name>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Create the project</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Show the project pane</source>
        <translation>Projektbereich zeigen</translation>
    </message>
    <message>
        <source>Show the template pane</source>
        <translation>Vorlagenbereich zeigen</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Import a template</source>
        <translation>Vorlage importieren</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>VTOutlineView</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VTPreferenceController</name>
    <message>
        <source>“%@” cannot be used</source>
        <translation>„%@“ ist nicht verwendbar</translation>
    </message>
    <message>
        <source>Unable to create folder %@</source>
        <translation>Der Ordner %@ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Tastenkürzel</translation>
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
        <translation>%1, gesperrt</translation>
    </message>
    <message>
        <source>%1, automatic</source>
        <translation>%1, automatisch</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>A project needs this value.</source>
        <translation>Ein Projekt braucht diesen Wert.</translation>
    </message>
    <message>
        <source>required</source>
        <translation>Pflichtfeld</translation>
    </message>
    <message>
        <source>Counters end at 2147483646. A date in front of a number is better a parameter of its own.</source>
        <translation>Zähler enden bei 2147483646. Für ein Datum vor der Nummer nehmen Sie besser einen eigenen Parameter.</translation>
    </message>
    <message>
        <source>counts no further</source>
        <translation>zählt nicht weiter</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>passt nicht</translation>
    </message>
    <message>
        <source>The name of a folder can have 255 bytes, and this one gets more.</source>
        <translation>Ein Ordnername darf 255 Byte lang sein, dieser wird länger.</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>No folder can be named like this (nothing, or dots only).</source>
        <translation>So kann kein Ordner heißen (leer oder nur Punkte).</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>kein Name</translation>
    </message>
    <message>
        <source>The template says this value.</source>
        <translation>Diesen Wert legt die Vorlage fest.</translation>
    </message>
    <message>
        <source>by the template</source>
        <translation>aus der Vorlage</translation>
    </message>
    <message>
        <source>not computed</source>
        <translation>nicht berechnet</translation>
    </message>
    <message>
        <source>Typed in place of “%1”. Delete puts that back.</source>
        <translation>Anstelle von „%1“ eingegeben. Entf stellt das wieder her.</translation>
    </message>
    <message>
        <source>typed over</source>
        <translation>überschrieben</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>VTSavePanel</name>
    <message>
        <source>Create Here</source>
        <translation>Hier anlegen</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyConfig</name>
    <message>
        <source>Commands and their shortcuts</source>
        <translation>Befehle und ihre Tastenkürzel</translation>
    </message>
    <message>
        <source>Select a command, press Return, then the keys. They work in every program. Delete takes a shortcut away.</source>
        <translation>Wählen Sie einen Befehl aus, drücken Sie die Eingabetaste und dann die Tasten. Sie wirken in jedem Programm. Entf entfernt ein Tastenkürzel.</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyFieldEditor</name>
    <message>
        <source>Press the keys of the shortcut</source>
        <translation>Tasten des Kürzels drücken</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Tasten drücken…</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyTableDelegate</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The shortcuts cannot be changed: %1 Please put that file aside and try again.</source>
        <translation>Die Tastenkürzel lassen sich nicht ändern: %1 Bitte legen Sie diese Datei beiseite, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Your desktop does not watch these keys now: %1</source>
        <translation>Ihr Desktop reagiert derzeit nicht auf diese Tasten: %1</translation>
    </message>
    <message>
        <source>Your desktop watches these keys while Tessaro runs, and may ask you about them.</source>
        <translation>Ihr Desktop reagiert auf diese Tasten, solange Tessaro läuft, und fragt Sie vielleicht danach.</translation>
    </message>
    <message>
        <source>Nothing on this computer watches these keys: neither the shortcut key manager nor a desktop with global shortcuts is there.</source>
        <translation>Auf diesem Computer reagiert nichts auf diese Tasten: Es gibt weder den Tastenkürzel-Manager noch einen Desktop mit globalen Tastenkürzeln.</translation>
    </message>
    <message>
        <source>%1 (also for “%2”)</source>
        <translation>%1 (auch für „%2“)</translation>
    </message>
    <message>
        <source>Only one of the two can have these keys. Please press others for one of them.</source>
        <translation>Nur einer der beiden Befehle kann diese Tasten haben. Bitte drücken Sie für einen davon andere.</translation>
    </message>
    <message>
        <source>no shortcut</source>
        <translation>kein Tastenkürzel</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
</context>
<context>
    <name>VTTemplateOutlineController</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import of Folders</source>
        <translation>Importieren von Ordnern</translation>
    </message>
    <message>
        <source>The rules cannot be changed</source>
        <translation>Die Regeln lassen sich nicht ändern</translation>
    </message>
    <message>
        <source>The rules were put aside</source>
        <translation>Die Regeln wurden beiseitegelegt</translation>
    </message>
    <message>
        <source>The rules cannot be put aside</source>
        <translation>Die Regeln lassen sich nicht beiseitelegen</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Unable to create folder %@</source>
        <translation>Der Ordner %@ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Neues Objekt</translation>
    </message>
    <message>
        <source>Unable to create project %@</source>
        <translation>Die Projektdatei %@ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Import Folder Structure</source>
        <translation>Ordnerstruktur importieren</translation>
    </message>
    <message>
        <source>Import Files and Folders</source>
        <translation>Dateien und Ordner importieren</translation>
    </message>
    <message>
        <source>this item</source>
        <translation>dieses Objekt</translation>
    </message>
    <message>
        <source>these items</source>
        <translation>diese Objekte</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove %@?</source>
        <translation>Möchten Sie %@ wirklich entfernen?</translation>
    </message>
    <message>
        <source>What is removed goes to the Trash. Undo brings it back.</source>
        <translation>Entferntes kommt in den Papierkorb. „Rückgängig“ bringt es zurück.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unable to remove file %@</source>
        <translation>%@ lässt sich nicht entfernen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ kopieren</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>You must enter a filename without invalid characters.</source>
        <translation>Bitte geben Sie einen Dateinamen ohne unzulässige Zeichen ein.</translation>
    </message>
    <message>
        <source>Item already exists</source>
        <translation>Objekt bereits vorhanden</translation>
    </message>
    <message>
        <source>You cannot rename this item to %@ because there is already a file or folder with this name.</source>
        <translation>Dieses Objekt kann nicht in %@ umbenannt werden, weil es bereits eine Datei oder einen Ordner mit diesem Namen gibt.</translation>
    </message>
    <message>
        <source>Unable to rename item</source>
        <translation>Das Objekt lässt sich nicht umbenennen</translation>
    </message>
    <message>
        <source>Please check your have write permissions for this item and its parent directory.</source>
        <translation>Bitte prüfen Sie, ob Sie Schreibrechte für dieses Objekt und den übergeordneten Ordner haben.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>%@ lässt sich nicht nach %@ verschieben</translation>
    </message>
    <message>
        <source>%@ already exists. Overwrite?</source>
        <translation>%@ gibt es bereits. Überschreiben?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>Was dort liegt, kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>The text is no list of folders</source>
        <translation>Der Text ist keine Ordnerliste</translation>
    </message>
    <message>
        <source>Unable to rename the items</source>
        <translation>Die Objekte lassen sich nicht umbenennen</translation>
    </message>
    <message>
        <source>“%1” cannot be a name.</source>
        <translation>„%1“ ist als Name nicht möglich.</translation>
    </message>
    <message>
        <source>Two of them would be called “%1”.</source>
        <translation>Zwei davon würden „%1“ heißen.</translation>
    </message>
    <message>
        <source>There is another item called “%1”.</source>
        <translation>Ein anderes Objekt heißt bereits „%1“.</translation>
    </message>
</context>
<context>
    <name>VTTemplateTableController</name>
    <message>
        <source>Unset &amp;Default</source>
        <translation>&amp;Standard aufheben</translation>
    </message>
    <message>
        <source>Set as &amp;Default</source>
        <translation>Zum &amp;Standard machen</translation>
    </message>
    <message>
        <source>Import of ‘%1’</source>
        <translation>Importieren von ‚%1‘</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>New Template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>%1, the default template</source>
        <translation>%1, die Standardvorlage</translation>
    </message>
</context>
<context>
    <name>VTTroubleshootingUtils</name>
    <message>
        <source>Gathering the logs</source>
        <translation>Protokolle werden gesammelt</translation>
    </message>
    <message>
        <source>No logs found</source>
        <translation>Keine Protokolle gefunden</translation>
    </message>
    <message>
        <source>There were no logs available to gather.</source>
        <translation>Es waren keine Protokolle zum Sammeln vorhanden.</translation>
    </message>
    <message>
        <source>Logs gathered successfully</source>
        <translation>Protokolle gesammelt</translation>
    </message>
    <message>
        <source>The gathered logs were placed on your desktop.</source>
        <translation>Die gesammelten Protokolle liegen auf Ihrem Schreibtisch.</translation>
    </message>
    <message>
        <source>Logs could not be gathered</source>
        <translation>Die Protokolle ließen sich nicht sammeln</translation>
    </message>
    <message>
        <source>Please check your file permissions.</source>
        <translation>Bitte prüfen Sie Ihre Zugriffsrechte.</translation>
    </message>
    <message>
        <source>No log found</source>
        <translation>Kein Protokoll gefunden</translation>
    </message>
    <message>
        <source>You must perform a task before viewing the log.</source>
        <translation>Ein Protokoll gibt es erst, wenn Sie etwas ausgeführt haben.</translation>
    </message>
    <message>
        <source>You must run the application as a task (e.g. through Cronwick) before viewing a log.</source>
        <translation>Ein Protokoll gibt es erst, wenn Sie das Programm als Aufgabe ausgeführt haben (z. B. mit Cronwick).</translation>
    </message>
</context>
<context>
    <name>ValueCellDelegate</name>
    <message>
        <source>(not set)</source>
        <translation>(kein Wert)</translation>
    </message>
</context>
<context>
    <name>ValueForms</name>
    <message>
        <source>This must be a whole number.</source>
        <translation>Dies muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>This must be a date as 2026-11-21.</source>
        <translation>Dies muss ein Datum wie 2026-11-21 sein.</translation>
    </message>
    <message>
        <source>“%1” is not among the choices.</source>
        <translation>„%1“ gehört nicht zur Auswahl.</translation>
    </message>
    <message>
        <source>This may have %1 characters, and has %2.</source>
        <translation>Erlaubt sind %1 Zeichen, hier sind es %2.</translation>
    </message>
    <message>
        <source>The parameter’s pattern is wrong: %1</source>
        <translation>Das Muster des Parameters ist falsch: %1</translation>
    </message>
    <message>
        <source>This does not fit the pattern %1.</source>
        <translation>Das passt nicht zum Muster %1.</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>The file is far too large for what it should be</source>
        <translation>Die Datei ist viel zu groß für ihren Zweck</translation>
    </message>
    <message>
        <source>The file is not a property list</source>
        <translation>Die Datei ist keine Property-Liste</translation>
    </message>
    <message>
        <source>A property list cannot hold this value</source>
        <translation>Eine Property-Liste kann diesen Wert nicht aufnehmen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tessaro: the window cannot be started; please install Tessaro again. %1</source>
        <translation>Tessaro: Das Fenster lässt sich nicht öffnen; bitte installieren Sie Tessaro neu. %1</translation>
    </message>
    <message>
        <source>Tessaro: there is no display for the window; “Tessaro create” makes a project without one (see --help).</source>
        <translation>Tessaro: Für das Fenster gibt es keinen Bildschirm; „Tessaro create“ legt ein Projekt ohne Fenster an (siehe --help).</translation>
    </message>
</context>
<context>
    <name>platform::GlobalShortcuts</name>
    <message>
        <source>The desktop has ended its global shortcuts.</source>
        <translation>Der Desktop hat seine globalen Tastenkürzel beendet.</translation>
    </message>
    <message>
        <source>The desktop did not give its global shortcuts.</source>
        <translation>Der Desktop hat keine globalen Tastenkürzel bereitgestellt.</translation>
    </message>
    <message>
        <source>The desktop did not take the shortcuts.</source>
        <translation>Der Desktop hat die Tastenkürzel nicht angenommen.</translation>
    </message>
</context>
</TS>
