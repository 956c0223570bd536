<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AdministratorQuestion</name>
    <message>
        <source>This needs an administrator’s password</source>
        <translation>Un mot de passe d’administrateur est nécessaire</translation>
    </message>
    <message>
        <source>None was accepted, or this desktop has no service running that asks for one.</source>
        <translation>Aucun n’a été accepté, ou ce bureau n’a pas de service en marche pour le demander.</translation>
    </message>
    <message>
        <source>Inside the Flatpak there are no administrator rights. Tessaro’s other packages have them.</source>
        <translation>Dans le Flatpak, il n’y a pas de droits d’administrateur. Les autres paquets de Tessaro en disposent.</translation>
    </message>
</context>
<context>
    <name>AfterCreation</name>
    <message>
        <source>Running %1</source>
        <translation>Exécution de %1</translation>
    </message>
    <message>
        <source>It ended with status %1.</source>
        <translation>Il s’est terminé avec le code de retour %1.</translation>
    </message>
    <message>
        <source>It ended with status %1: %2</source>
        <translation>Il s’est terminé avec le code de retour %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>BatchCreation</name>
    <message>
        <source>Creating projects: %L1</source>
        <translation>Création de projets&#xa0;: %L1</translation>
    </message>
</context>
<context>
    <name>BatchModel</name>
    <message>
        <source>no name</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>No parameter is called like this: the column is not used.</source>
        <translation>Aucun paramètre ne porte ce nom&#xa0;: la colonne est ignorée.</translation>
    </message>
</context>
<context>
    <name>BoundSwitch</name>
    <message>
        <source>The switch was left as it was</source>
        <translation>Le réglage est resté tel quel</translation>
    </message>
    <message>
        <source>The switch was left off</source>
        <translation>Le réglage est resté désactivé</translation>
    </message>
    <message>
        <source>Administrator rights could not be had just now. Tessaro would not start any more.</source>
        <translation>Impossible d’obtenir les droits d’administrateur pour l’instant. Tessaro ne démarrerait plus.</translation>
    </message>
</context>
<context>
    <name>BrowseAccessory</name>
    <message>
        <source>A project with this name already exists there. You will be asked what to do.</source>
        <translation>Un projet de ce nom existe déjà à cet endroit. Vous choisirez alors que faire.</translation>
    </message>
    <message>
        <source>Makes: %1</source>
        <translation>À créer&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>Tessaro does not remember this project, and there is no template to compare it with: %1</source>
        <translation>Tessaro n’a pas mémorisé ce projet, et il n’y a aucun modèle auquel le comparer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not remembered; compared with the template “%1”.</source>
        <translation>Projet non mémorisé&#xa0;; comparé au modèle «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Items that depend on values, not looked for: %L1</source>
        <translation>Éléments dépendant de valeurs, non vérifiés&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Complete. Items: %L1</source>
        <translation>Complet. Éléments&#xa0;: %L1</translation>
    </message>
    <message>
        <source>There is no project to check.</source>
        <translation>Il n’y a aucun projet à vérifier.</translation>
    </message>
    <message>
        <source>There is no template “%1”. %2</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» n’existe pas. %2</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Vérification de %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: %1</source>
        <translation>Usage&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was given %n words, which is not what it takes.</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» a reçu %n argument, ce qui ne convient pas.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» a reçu %n arguments, ce qui ne convient pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” needs %2.</source>
        <translation>«&#xa0;%1&#xa0;» exige %2.</translation>
    </message>
    <message>
        <source>%1 does not know “%2”.</source>
        <translation>%1 ne connaît pas «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” takes no value.</source>
        <translation>«&#xa0;%1&#xa0;» ne prend pas de valeur.</translation>
    </message>
    <message>
        <source>“%1” needs a value.</source>
        <translation>«&#xa0;%1&#xa0;» attend une valeur.</translation>
    </message>
    <message>
        <source>“%1 %2” is not of the form %3.</source>
        <translation>«&#xa0;%1 %2&#xa0;» n’est pas de la forme %3.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Les droits d’administrateur sont nécessaires ici et ont été refusés.</translation>
    </message>
    <message>
        <source>%1 needs to be told what to do: %2.</source>
        <translation>%1 attend une action&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 cannot “%2”. It can: %3.</source>
        <translation>%1 n’a pas d’action «&#xa0;%2&#xa0;». Actions possibles&#xa0;: %3.</translation>
    </message>
    <message>
        <source>“%1” is no command of Tessaro.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une commande de Tessaro.</translation>
    </message>
    <message>
        <source>The settings cannot be read, and nothing is done without them: neither the parameters nor the numbers that are taken are known.</source>
        <translation>Impossible de lire les réglages, et rien n’est fait sans eux&#xa0;: ni les paramètres ni les numéros déjà attribués ne sont connus.</translation>
    </message>
    <message>
        <source>Tessaro --help lists what it understands.</source>
        <translation>Tessaro --help liste ce qu’il comprend.</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Exit status: 0 done; 1 failed, or partly failed; 2 wrong usage; 3 the project or template exists and was not overwritten, the command was declined (--yes says yes), or the administrator&apos;s rights were refused; 4 stopped on the way (Ctrl+C): nothing was kept.</source>
        <translation>Code de retour&#xa0;: 0 réussite&#xa0;; 1 échec total ou partiel&#xa0;; 2 utilisation incorrecte&#xa0;; 3 le projet ou le modèle existe et n’a pas été remplacé, la commande n’a pas été confirmée (--yes la confirme) ou les droits d’administrateur ont été refusés&#xa0;; 4 interruption en cours de route (Ctrl+C)&#xa0;: rien n’a été conservé.</translation>
    </message>
    <message>
        <source>Tessaro starts media and production projects from templates.</source>
        <translation>Tessaro crée des projets de production et de médias à partir de modèles.</translation>
    </message>
    <message>
        <source>Opens the window.</source>
        <translation>Ouvre la fenêtre.</translation>
    </message>
    <message>
        <source>Takes the templates in and shows them.</source>
        <translation>Importe les modèles et les affiche.</translation>
    </message>
    <message>
        <source>“%1” is no command of Tessaro. Tessaro --help lists them.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une commande de Tessaro. Tessaro --help en donne la liste.</translation>
    </message>
    <message>
        <source>starts media and production projects from templates</source>
        <translation>crée des projets de production et de médias à partir de modèles</translation>
    </message>
    <message>
        <source>There is completion for bash, zsh and fish.</source>
        <translation>La complétion est disponible pour bash, zsh et fish.</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>afficher en JSON</translation>
    </message>
    <message>
        <source>without it nothing is done</source>
        <translation>sans cette option, rien n’est fait</translation>
    </message>
    <message>
        <source>the template; else the one that the window would choose</source>
        <translation>le modèle&#xa0;; sinon, celui que choisirait la fenêtre</translation>
    </message>
    <message>
        <source>the folder to create it in; else the fixed project location, when that is on</source>
        <translation>le dossier où le créer&#xa0;; sinon, l’emplacement fixe des projets, s’il est activé</translation>
    </message>
    <message>
        <source>a parameter&apos;s value, as if typed into its row; may be repeated</source>
        <translation>la valeur d’un paramètre, comme saisie dans sa ligne&#xa0;; répétable</translation>
    </message>
    <message>
        <source>a project for each row of a table (CSV; - is standard input), all or none</source>
        <translation>un projet par ligne d’un tableau (CSV&#xa0;; - pour l’entrée standard), tous ou aucun</translation>
    </message>
    <message>
        <source>with --from: leave out rows with problems, make the others</source>
        <translation>avec --from&#xa0;: ignorer les lignes en erreur, créer les autres</translation>
    </message>
    <message>
        <source>move an existing project of the name to the Trash first</source>
        <translation>mettre d’abord à la corbeille un projet existant de ce nom</translation>
    </message>
    <message>
        <source>make more than 10,000 items of repeats without a question</source>
        <translation>créer plus de 10&#xa0;000 éléments par répétition sans demander</translation>
    </message>
    <message>
        <source>print what would be made and change nothing</source>
        <translation>afficher ce qui serait créé, sans rien modifier</translation>
    </message>
    <message>
        <source>print one JSON object in place of the path</source>
        <translation>afficher un objet JSON au lieu du chemin</translation>
    </message>
    <message>
        <source>take the mark away</source>
        <translation>retirer la marque</translation>
    </message>
    <message>
        <source>the folder whose folders are made</source>
        <translation>le dossier dont les sous-dossiers sont reproduits</translation>
    </message>
    <message>
        <source>the rules as JSON; - is standard input, {} takes them away</source>
        <translation>les règles en JSON&#xa0;; - pour l’entrée standard, {} les supprime</translation>
    </message>
    <message>
        <source>remove rules whose item is gone</source>
        <translation>supprimer les règles dont l’élément a disparu</translation>
    </message>
    <message>
        <source>the log of commands in place of the window&apos;s</source>
        <translation>le journal des commandes au lieu de celui de la fenêtre</translation>
    </message>
    <message>
        <source>print only where it is</source>
        <translation>afficher seulement son emplacement</translation>
    </message>
    <message>
        <source>where it goes; else the desktop</source>
        <translation>le dossier où l’enregistrer&#xa0;; sinon, le bureau</translation>
    </message>
    <message>
        <source>a file that goes along; may be repeated</source>
        <translation>un fichier à joindre&#xa0;; répétable</translation>
    </message>
    <message>
        <source>Makes a project and prints its path.</source>
        <translation>Crée un projet et affiche son chemin.</translation>
    </message>
    <message>
        <source>Lists what creations that were cut off have left behind, and moves it to the Trash; names the projects that a power cut has damaged.</source>
        <translation>Liste ce qu’ont laissé les créations interrompues et le met à la corbeille&#xa0;; signale les projets endommagés par une coupure de courant.</translation>
    </message>
    <message>
        <source>Lists the last hundred projects that were made, the latest first.</source>
        <translation>Liste les cent derniers projets créés, du plus récent au plus ancien.</translation>
    </message>
    <message>
        <source>Moves what a creation made to the Trash, but for what was changed or added since; the latest, or the one of that path or name.</source>
        <translation>Met à la corbeille ce qu’une création a produit, sauf ce qui a été modifié ou ajouté depuis&#xa0;; la dernière, ou celle du chemin ou du nom donné.</translation>
    </message>
    <message>
        <source>Lists the templates, one a line; the default is marked with a star.</source>
        <translation>Liste les modèles, un par ligne&#xa0;; une étoile marque le modèle par défaut.</translation>
    </message>
    <message>
        <source>Makes an empty template.</source>
        <translation>Crée un modèle vide.</translation>
    </message>
    <message>
        <source>Copies a template under the next free name.</source>
        <translation>Duplique un modèle sous le prochain nom libre.</translation>
    </message>
    <message>
        <source>Gives a template another name.</source>
        <translation>Renomme un modèle.</translation>
    </message>
    <message>
        <source>Moves a template to the Trash.</source>
        <translation>Met un modèle à la corbeille.</translation>
    </message>
    <message>
        <source>Marks the default template, or prints it.</source>
        <translation>Définit le modèle par défaut, ou l’affiche.</translation>
    </message>
    <message>
        <source>Prints a template&apos;s tree.</source>
        <translation>Affiche l’arborescence d’un modèle.</translation>
    </message>
    <message>
        <source>Prints a template&apos;s rules as JSON, or takes them from a file; --gone removes those whose item is not there any more.</source>
        <translation>Affiche les règles d’un modèle en JSON, ou les lit dans un fichier&#xa0;; --gone supprime celles dont l’élément n’existe plus.</translation>
    </message>
    <message>
        <source>Takes in bundles (NAME.tzt) and archives of them (NAME.tzt.zip); one of the same name goes to the Trash.</source>
        <translation>Importe des modèles (NAME.tzt) ou leurs archives (NAME.tzt.zip)&#xa0;; un modèle de même nom va à la corbeille.</translation>
    </message>
    <message>
        <source>Writes a template as one archive, NAME.tzt.zip, and prints its path.</source>
        <translation>Enregistre un modèle en une seule archive, NAME.tzt.zip, et affiche son chemin.</translation>
    </message>
    <message>
        <source>Makes a folder&apos;s folders in the template, without files.</source>
        <translation>Reproduit dans le modèle les sous-dossiers d’un dossier, sans les fichiers.</translation>
    </message>
    <message>
        <source>Puts back the templates that ship with Tessaro; changed ones go to the Trash.</source>
        <translation>Restaure les modèles fournis avec Tessaro&#xa0;; ceux qui ont été modifiés vont à la corbeille.</translation>
    </message>
    <message>
        <source>Lists title, kind and value of each parameter; a / marks those that begin a folder level.</source>
        <translation>Liste le titre, le type et la valeur de chaque paramètre&#xa0;; un / marque ceux qui ouvrent un niveau de dossier.</translation>
    </message>
    <message>
        <source>Adds a parameter. Kinds: text, counter, date, user, choice.</source>
        <translation>Ajoute un paramètre. Types&#xa0;: text, counter, date, user, choice.</translation>
    </message>
    <message>
        <source>Changes a parameter. Keys: title, kind, default, folder, history, required, locked; form (number, date, folder), pattern, message, computed, case (upper, lower, title), length, several, in-name.</source>
        <translation>Modifie un paramètre. Clés&#xa0;: title, kind, default, folder, history, required, locked&#xa0;; form (number, date, folder), pattern, message, computed, case (upper, lower, title), length, several, in-name.</translation>
    </message>
    <message>
        <source>Moves a parameter to a position, counted from 1.</source>
        <translation>Déplace un paramètre à la position donnée, comptée à partir de 1.</translation>
    </message>
    <message>
        <source>Removes a parameter. This cannot be undone.</source>
        <translation>Supprime un paramètre. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Writes the list into a property list.</source>
        <translation>Enregistre la liste dans un fichier plist.</translation>
    </message>
    <message>
        <source>Replaces the whole list by that of a property list.</source>
        <translation>Remplace toute la liste par celle d’un fichier plist.</translation>
    </message>
    <message>
        <source>Forgets the values typed before.</source>
        <translation>Oublie les valeurs saisies jusqu’ici.</translation>
    </message>
    <message>
        <source>Lists each setting with its value and meaning.</source>
        <translation>Liste les réglages, avec leur valeur et leur signification.</translation>
    </message>
    <message>
        <source>Prints a setting&apos;s value.</source>
        <translation>Affiche la valeur d’un réglage.</translation>
    </message>
    <message>
        <source>Changes a setting; the value is checked first, as in the window.</source>
        <translation>Modifie un réglage&#xa0;; la valeur est d’abord vérifiée, comme dans la fenêtre.</translation>
    </message>
    <message>
        <source>The setting&apos;s default applies again.</source>
        <translation>Rend au réglage sa valeur par défaut.</translation>
    </message>
    <message>
        <source>Prints the log of the window.</source>
        <translation>Affiche le journal de la fenêtre.</translation>
    </message>
    <message>
        <source>Puts logs, crash reports and settings into one archive, for a support request.</source>
        <translation>Rassemble journaux, rapports de plantage et réglages dans une archive, pour une demande d’assistance.</translation>
    </message>
    <message>
        <source>Starts the updater&apos;s silent check.</source>
        <translation>Lance la vérification silencieuse des mises à jour.</translation>
    </message>
    <message>
        <source>Explains all verbs, or one; --help behind a verb does so, too.</source>
        <translation>Explique toutes les commandes, ou une seule&#xa0;; --help après une commande fait de même.</translation>
    </message>
    <message>
        <source>Prints what makes that shell complete Tessaro&apos;s words.</source>
        <translation>Affiche le script de complétion de Tessaro pour ce shell.</translation>
    </message>
    <message>
        <source>Prints the manual page, for man(1).</source>
        <translation>Affiche la page de manuel, pour man(1).</translation>
    </message>
    <message>
        <source>Prints the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>values as a JSON object from titles to values; - is standard input</source>
        <translation>valeurs en objet JSON dont les clés sont les titres&#xa0;; - pour l’entrée standard</translation>
    </message>
    <message>
        <source>ask at the terminal for what is required and missing</source>
        <translation>demander au terminal les valeurs requises manquantes</translation>
    </message>
    <message>
        <source>leave values and counters out of the settings: nothing is remembered or counted</source>
        <translation>ne pas enregistrer les valeurs et les compteurs dans les réglages&#xa0;: rien n’est mémorisé ni compté</translation>
    </message>
    <message>
        <source>what a project that is not remembered is compared with</source>
        <translation>le modèle auquel comparer un projet non mémorisé</translation>
    </message>
    <message>
        <source>Looks whether all that the creation made still stands in a project (the latest, or the one in that folder), and names what is missing. Changes nothing.</source>
        <translation>Vérifie que tout ce que la création a produit se trouve encore dans un projet (le dernier, ou celui de ce dossier) et indique ce qui manque. Ne modifie rien.</translation>
    </message>
    <message>
        <source>Opens the window; the next project goes into the folder.</source>
        <translation>Ouvre la fenêtre&#xa0;; le prochain projet sera créé dans ce dossier.</translation>
    </message>
    <message>
        <source>Opens the window, which says whether the project in the folder is complete.</source>
        <translation>Ouvre la fenêtre, qui indique si le projet de ce dossier est complet.</translation>
    </message>
    <message>
        <source>for every user of this computer; needs root</source>
        <translation>pour tous les utilisateurs de cet ordinateur&#xa0;; exige les droits root</translation>
    </message>
    <message>
        <source>what nobody changes, with commas: parameters, keys of settings, or none; else parameters, separatorChar, dateFormat and strictNaming</source>
        <translation>ce que personne ne peut modifier, séparé par des virgules&#xa0;: parameters, des clés de réglages ou none&#xa0;; sinon, parameters, separatorChar, dateFormat et strictNaming</translation>
    </message>
    <message>
        <source>Says which set-up your studio shares with this computer.</source>
        <translation>Indique quelle configuration votre studio partage avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Takes templates, parameters and settings from a shared folder, and follows it from then on.</source>
        <translation>Reprend les modèles, les paramètres et les réglages d’un dossier partagé et en suit désormais les changements.</translation>
    </message>
    <message>
        <source>Goes back to your own templates, parameters and settings.</source>
        <translation>Revient à vos propres modèles, paramètres et réglages.</translation>
    </message>
    <message>
        <source>Writes the present templates, parameters and settings into a folder, for many computers to use.</source>
        <translation>Enregistre les modèles, les paramètres et les réglages actuels dans un dossier, à l’usage de nombreux ordinateurs.</translation>
    </message>
</context>
<context>
    <name>CreateCommand</name>
    <message>
        <source>Repeats would make more than %1 items. Say --many if that is what you want.</source>
        <translation>Les répétitions créeraient plus de %1 éléments. Ajoutez --many si c’est ce que vous voulez.</translation>
    </message>
    <message>
        <source>A creation was cut off. This is left of it: %1</source>
        <translation>Une création a été interrompue. Voici ce qu’il en reste&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tessaro clean-up --yes moves it to the Trash.</source>
        <translation>Tessaro clean-up --yes le met à la corbeille.</translation>
    </message>
    <message>
        <source>Tessaro clean-up --yes takes note of it.</source>
        <translation>Tessaro clean-up --yes en prend acte.</translation>
    </message>
    <message>
        <source>Nothing was moved to the Trash; say --yes to do it.</source>
        <translation>Rien n’a été mis à la corbeille&#xa0;; ajoutez --yes pour le faire.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1
Use --overwrite to move it to the Trash and create it anew.</source>
        <translation>Un projet de ce nom existe déjà&#xa0;: %1
Utilisez --overwrite pour le mettre à la corbeille et le recréer.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>Impossible de lire la bibliothèque de modèles.</translation>
    </message>
    <message>
        <source>There is no room for the shipped templates.</source>
        <translation>Pas assez de place pour les modèles fournis.</translation>
    </message>
    <message>
        <source>The shipped templates cannot be unpacked.</source>
        <translation>Impossible d’extraire les modèles fournis.</translation>
    </message>
    <message>
        <source>There is no template in %1.</source>
        <translation>Il n’y a aucun modèle dans %1.</translation>
    </message>
    <message>
        <source>There is no template “%1”. %2</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» n’existe pas. %2</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read. Mend them, or remove the file.</source>
        <translation>Impossible de lire les règles du modèle. Corrigez-les ou supprimez le fichier.</translation>
    </message>
    <message>
        <source>(--set &quot;%1=…&quot;)</source>
        <translation>(--set &quot;%1=…&quot;)</translation>
    </message>
    <message>
        <source>No fixed project location is set. Say where to create the project with --in FOLDER.</source>
        <translation>Aucun emplacement fixe n’est défini pour les projets. Indiquez où créer le projet avec --in FOLDER.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Le dossier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrompu.</translation>
    </message>
    <message>
        <source>The folder name is too long: %1</source>
        <translation>Nom de dossier trop long&#xa0;: %1</translation>
    </message>
    <message>
        <source>This folder of the template cannot be read: %1</source>
        <translation>Impossible de lire ce dossier du modèle&#xa0;: %1</translation>
    </message>
    <message>
        <source>Stopped. Nothing of the project was kept.</source>
        <translation>Interrompu. Rien du projet n’a été conservé.</translation>
    </message>
    <message>
        <source>The project was made, and is gone: %1</source>
        <translation>Le projet a été créé, puis a disparu&#xa0;: %1</translation>
    </message>
    <message>
        <source>The log names each item and the cause: %1</source>
        <translation>Le journal indique chaque élément et la cause&#xa0;: %1</translation>
    </message>
    <message>
        <source>  (keeps this name: its new one is taken)</source>
        <translation>  (garde ce nom&#xa0;: le nouveau est déjà pris)</translation>
    </message>
    <message>
        <source>  (keeps this name: its new one is too long)</source>
        <translation>  (garde ce nom&#xa0;: le nouveau est trop long)</translation>
    </message>
    <message>
        <source>  (left out)</source>
        <translation>  (exclu)</translation>
    </message>
    <message>
        <source>  (was %1)</source>
        <translation>  (était %1)</translation>
    </message>
    <message>
        <source>Standard input can be only one of --values and --from.</source>
        <translation>L’entrée standard ne peut servir qu’à une seule des options --values et --from.</translation>
    </message>
    <message>
        <source>The values cannot be read.</source>
        <translation>Impossible de lire les valeurs.</translation>
    </message>
    <message>
        <source>The values are no JSON object: %1</source>
        <translation>Les valeurs ne forment pas un objet JSON&#xa0;: %1</translation>
    </message>
    <message>
        <source>it does not begin with a brace</source>
        <translation>il manque l’accolade au début</translation>
    </message>
    <message>
        <source>The value of “%1” is no text, no number and no list of them.</source>
        <translation>La valeur de «&#xa0;%1&#xa0;» n’est ni un texte, ni un nombre, ni une liste de textes ou de nombres.</translation>
    </message>
    <message>
        <source>--ask needs a terminal to ask at.</source>
        <translation>--ask exige un terminal où poser ses questions.</translation>
    </message>
    <message>
        <source>Stopped. Nothing was created.</source>
        <translation>Interrompu. Rien n’a été créé.</translation>
    </message>
</context>
<context>
    <name>CreateCommandTable</name>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Line %1, %2</source>
        <translation>Ligne %1, %2</translation>
    </message>
    <message>
        <source>Nothing was created. --go-on leaves out the rows with problems.</source>
        <translation>Rien n’a été créé. --go-on ignore les lignes en erreur.</translation>
    </message>
    <message>
        <source>The table cannot be read.</source>
        <translation>Impossible de lire le tableau.</translation>
    </message>
    <message>
        <source>Looking at projects: %L1</source>
        <translation>Examen des projets&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Stopped. Nothing was created.</source>
        <translation>Interrompu. Rien n’a été créé.</translation>
    </message>
    <message>
        <source>No parameter is called: %1</source>
        <translation>Aucun paramètre ne s’appelle&#xa0;: %1</translation>
    </message>
    <message>
        <source>Other problems: %L1</source>
        <translation>Autres problèmes&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrompu.</translation>
    </message>
    <message>
        <source>What had been created was moved to the Trash. --go-on keeps what can be made.</source>
        <translation>Ce qui avait été créé a été mis à la corbeille. --go-on garde ce qui peut être créé.</translation>
    </message>
    <message>
        <source>Stopped. Projects that were not begun: %L1</source>
        <translation>Interrompu. Projets non commencés&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Rows left out: %L1. The log names each item and the cause: %2</source>
        <translation>Lignes ignorées&#xa0;: %L1. Le journal indique chaque élément et la cause&#xa0;: %2</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Le programme informé des nouveaux projets a échoué</translation>
    </message>
    <message>
        <source>--ask asks for one project; a table with --from has its values in its cells.</source>
        <translation>--ask pose ses questions pour un seul projet&#xa0;; un tableau avec --from a ses valeurs dans ses cellules.</translation>
    </message>
</context>
<context>
    <name>EditingGuard</name>
    <message>
        <source>These templates are set by your studio</source>
        <translation>Ces modèles sont définis par votre studio</translation>
    </message>
    <message>
        <source>They are changed in the studio’s own folder, and come to every computer from there: %1</source>
        <translation>Ils se modifient dans le dossier du studio, d’où ils parviennent à tous les ordinateurs&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>Creating %1</source>
        <translation>Création de %1</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>Déplacement de %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Suppression de %1</translation>
    </message>
    <message>
        <source>Please check that you have write permissions for the destination directory.</source>
        <translation>Vérifiez que vous avez le droit d’écrire dans le dossier de destination.</translation>
    </message>
    <message>
        <source>“%1” cannot be moved to the Trash</source>
        <translation>Impossible de mettre «&#xa0;%1&#xa0;» à la corbeille</translation>
    </message>
    <message>
        <source>Its drive has no Trash that you may use. It can be put beside under a name with today&apos;s date, be deleted for good, or be kept as it is.</source>
        <translation>Le disque n’a pas de corbeille accessible. Vous pouvez ranger l’élément à côté sous un nom portant la date du jour, le supprimer définitivement ou le garder tel quel.</translation>
    </message>
    <message>
        <source>Put Beside</source>
        <translation>Ranger à côté</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Compressing %1</source>
        <translation>Compression de %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Choose the Template Library</source>
        <translation>Choisir la bibliothèque de modèles</translation>
    </message>
    <message>
        <source>An administrator’s. It holds for you alone, unless an administrator sets it for every user of this computer. Switching one off asks for it.</source>
        <translation>Celui d’un administrateur. Ces réglages ne valent que pour vous, sauf si un administrateur les impose à tous les utilisateurs de cet ordinateur. Pour en désactiver un, il faut le saisir.</translation>
    </message>
    <message>
        <source>Templates in %1: %2</source>
        <translation>Modèles dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>New location: %1</source>
        <translation>Nouvel emplacement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Would you like to move your templates to the new location?</source>
        <translation>Voulez-vous déplacer vos modèles vers le nouvel emplacement&#xa0;?</translation>
    </message>
    <message>
        <source>Any templates outside of the new backup location will not be displayed in the Templates pane.</source>
        <translation>Les modèles situés hors du nouvel emplacement n’apparaîtront pas dans le volet Modèles.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Don&apos;t Move</source>
        <translation>Ne pas déplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>Moving %n templates</source>
        <translation>
            <numerusform>Déplacement de %n modèle</numerusform>
            <numerusform>Déplacement de %n modèles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> et %n autre</numerusform>
            <numerusform> et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>Impossible de déplacer le fichier %@ vers %@</translation>
    </message>
    <message>
        <source>These have stayed where they were: %1.</source>
        <translation>Sont restés à leur place&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Choose the Shared Set-up</source>
        <translation>Choisir la configuration partagée</translation>
    </message>
    <message>
        <source>This set-up cannot be used</source>
        <translation>Impossible d’utiliser cette configuration</translation>
    </message>
    <message>
        <source>The folder needs a file “%1”, which “Tessaro setup export” writes.</source>
        <translation>Le dossier doit contenir un fichier «&#xa0;%1&#xa0;», que crée «&#xa0;Tessaro setup export&#xa0;».</translation>
    </message>
    <message>
        <source>Another program takes over or uses a set-up just now. Please try again in a moment.</source>
        <translation>Un autre programme reprend ou utilise une configuration en ce moment. Veuillez réessayer dans un instant.</translation>
    </message>
    <message>
        <source>The studio’s set-up is still in use</source>
        <translation>La configuration du studio est encore utilisée</translation>
    </message>
    <message>
        <source>Your own counts again as soon as what uses it has finished.</source>
        <translation>La vôtre s’appliquera de nouveau dès que ce qui l’utilise aura terminé.</translation>
    </message>
</context>
<context>
    <name>HistoryCommand</name>
    <message>
        <source>The project is not at its place any more: %1</source>
        <translation>Le projet n’est plus à sa place&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 could not be undone.</source>
        <translation>Impossible d’annuler %1.</translation>
    </message>
    <message>
        <source>The project that had its place is still in the Trash: %1</source>
        <translation>Le projet remplacé est encore dans la corbeille&#xa0;: %1</translation>
    </message>
    <message>
        <source>This stays; the rest is in the Trash.</source>
        <translation>Ceci reste en place&#xa0;; le reste est dans la corbeille.</translation>
    </message>
    <message>
        <source>Undoing projects: %L1</source>
        <translation>Annulation de projets&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Stopped. Projects that stay: %L1</source>
        <translation>Interrompu. Projets laissés en place&#xa0;: %L1</translation>
    </message>
    <message>
        <source>  (not there any more)</source>
        <translation>  (n’existe plus)</translation>
    </message>
    <message>
        <source>There is no project to undo.</source>
        <translation>Aucun projet à annuler.</translation>
    </message>
    <message>
        <source>“%1” is no project that is remembered. Tessaro history lists them.</source>
        <translation>«&#xa0;%1&#xa0;» ne figure pas parmi les projets mémorisés. Tessaro history en donne la liste.</translation>
    </message>
    <message>
        <source>Undoing %1</source>
        <translation>Annulation de %1</translation>
    </message>
</context>
<context>
    <name>ImportJobs</name>
    <message>
        <source>%@ already exists in this location. Are you sure you wish to overwrite it?</source>
        <translation>%@ existe déjà à cet emplacement. Voulez-vous vraiment le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>L’élément existant ira à la corbeille.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Overwrite All</source>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>Impossible de copier le fichier %@ vers %@</translation>
    </message>
    <message numerus="yes">
        <source>Copying %n items</source>
        <translation>
            <numerusform>Copie de %n élément</numerusform>
            <numerusform>Copie de %n éléments</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPanel</name>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
</context>
<context>
    <name>IndentedList</name>
    <message>
        <source>The list has more than 10,000 lines.</source>
        <translation>La liste dépasse 10&#xa0;000 lignes.</translation>
    </message>
    <message>
        <source>Line %1 gives no name for a folder: %2</source>
        <translation>La ligne %1 ne donne pas de nom de dossier&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ItemNames</name>
    <message>
        <source>The name would be empty: its values are.</source>
        <translation>Le nom serait vide&#xa0;: ses valeurs le sont.</translation>
    </message>
    <message>
        <source>The name would be “%1”, which leads elsewhere.</source>
        <translation>Le nom serait «&#xa0;%1&#xa0;», qui mène ailleurs.</translation>
    </message>
    <message>
        <source>The name would have %1 bytes, and 255 are possible.</source>
        <translation>Le nom ferait %1 octets, pour 255 au maximum.</translation>
    </message>
    <message>
        <source>%1 puts a “/” into the name: %2</source>
        <translation>%1 met un «&#xa0;/&#xa0;» dans le nom&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Up Arrow</source>
        <translation>Flèche haut</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Flèche bas</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Flèche gauche</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Flèche droite</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Tab arrière</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
</context>
<context>
    <name>Labels</name>
    <message>
        <source>grey</source>
        <translation>grise</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verte</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violette</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleue</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
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
        <translation>Journal introuvable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The logs could not be gathered.</source>
        <translation>Impossible de rassembler les journaux.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projet</translation>
    </message>
    <message>
        <source>&amp;Create Project</source>
        <translation>&amp;Créer le projet</translation>
    </message>
    <message>
        <source>Create From &amp;Table…</source>
        <translation>Créer depuis un &amp;tableau…</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Projets &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Modèles</translation>
    </message>
    <message>
        <source>Show &amp;Result</source>
        <translation>Afficher le &amp;résultat</translation>
    </message>
    <message>
        <source>Show Template &amp;Library</source>
        <translation>Ouvrir la &amp;bibliothèque</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Nouveau modèle</translation>
    </message>
    <message>
        <source>&amp;Import Template…</source>
        <translation>&amp;Importer un modèle…</translation>
    </message>
    <message>
        <source>&amp;Export Template…</source>
        <translation>&amp;Exporter le modèle…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Templates…</source>
        <translation>&amp;Restaurer les modèles fournis…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Tessaro on the &amp;Web</source>
        <translation>Tessaro sur le &amp;web</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>View &amp;Task Log</source>
        <translation>Journal des &amp;tâches</translation>
    </message>
    <message>
        <source>&amp;Gather Logs</source>
        <translation>&amp;Rassembler les journaux</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Vérifier les mises à jo&amp;ur…</translation>
    </message>
    <message>
        <source>&amp;Report a Bug…</source>
        <translation>&amp;Signaler un bug…</translation>
    </message>
    <message>
        <source>&amp;Suggest a Feature…</source>
        <translation>Proposer une &amp;fonction…</translation>
    </message>
    <message>
        <source>More &amp;Products</source>
        <translation>Autres &amp;produits</translation>
    </message>
    <message>
        <source>&amp;Vantrel on the Web</source>
        <translation>&amp;Vantrel sur le web</translation>
    </message>
    <message>
        <source>&amp;About Tessaro</source>
        <translation>À pr&amp;opos de Tessaro</translation>
    </message>
    <message>
        <source>C&amp;heck Project…</source>
        <translation>&amp;Vérifier un projet…</translation>
    </message>
    <message>
        <source>Cl&amp;ear History</source>
        <translation>Effacer l’&amp;historique</translation>
    </message>
    <message>
        <source>Tessaro &amp;Help</source>
        <translation>A&amp;ide de Tessaro</translation>
    </message>
    <message>
        <source>User &amp;Manual (PDF)</source>
        <translation>&amp;Mode d’emploi (PDF)</translation>
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
        <translation>M&amp;odèle</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>No templates yet: &amp;install the standard ones</source>
        <translation>Pas encore de modèle&#xa0;: &amp;installer ceux fournis</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Filename parameters</source>
        <translation>Paramètres du nom de fichier</translation>
    </message>
    <message>
        <source>Project:</source>
        <translation>Projet&#xa0;:</translation>
    </message>
    <message>
        <source>A project with this name already exists.</source>
        <translation>Un projet de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Move what was made to the Trash (Ctrl+Z)</source>
        <translation>Mettre à la corbeille ce qui a été créé (Ctrl+Z)</translation>
    </message>
    <message>
        <source>&amp;Create Project</source>
        <translation>&amp;Créer le projet</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>No parameters yet</source>
        <translation>Pas encore de paramètre</translation>
    </message>
    <message>
        <source>Edit the Parameters…</source>
        <translation>Modifier les paramètres…</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>More Products</source>
        <translation>Autres produits</translation>
    </message>
    <message>
        <source>Start a project (Ctrl+1)</source>
        <translation>Commencer un projet (Ctrl+1)</translation>
    </message>
    <message>
        <source>Look after the templates (Ctrl+2)</source>
        <translation>Gérer les modèles (Ctrl+2)</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>É&amp;léments</translation>
    </message>
    <message>
        <source>Created ‘%1’ in %2.</source>
        <translation>«&#xa0;%1&#xa0;» a été créé dans %2.</translation>
    </message>
    <message>
        <source>Created in %1: %L2 projects.</source>
        <translation>Projets créés dans %1&#xa0;: %L2.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <comment>what is undone</comment>
        <translation>A&amp;nnuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <comment>what is done again</comment>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Tessaro User Manual</source>
        <translation>Mode d’emploi de Tessaro</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Rechercher dans le mode d’emploi</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>Text of the chapter</source>
        <translation>Texte du chapitre</translation>
    </message>
</context>
<context>
    <name>MoveAcross</name>
    <message>
        <source>It changed while it was moved, or the copy is not whole</source>
        <translation>L’élément a changé pendant le déplacement, ou la copie est incomplète</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message>
        <source>A folder cannot be put into itself</source>
        <translation>Un dossier ne peut pas être placé dans lui-même</translation>
    </message>
    <message>
        <source>It was stopped</source>
        <translation>Opération interrompue</translation>
    </message>
    <message>
        <source>It was not wanted</source>
        <translation>Opération refusée</translation>
    </message>
    <message>
        <source>Administrator rights are needed and were not given</source>
        <translation>Les droits d’administrateur sont nécessaires et n’ont pas été accordés</translation>
    </message>
    <message>
        <source>It did not happen in time</source>
        <translation>Délai dépassé</translation>
    </message>
    <message>
        <source>It is damaged</source>
        <translation>Contenu endommagé</translation>
    </message>
    <message>
        <source>It is not there</source>
        <translation>Élément introuvable</translation>
    </message>
    <message>
        <source>Something of this name is there already</source>
        <translation>Un élément de ce nom existe déjà</translation>
    </message>
    <message>
        <source>It is no folder</source>
        <translation>Ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>It did not work</source>
        <translation>L’opération a échoué</translation>
    </message>
    <message>
        <source>Another program uses it just now</source>
        <translation>Un autre programme l’utilise en ce moment</translation>
    </message>
</context>
<context>
    <name>OwnParametersSheet</name>
    <message>
        <source>Parameters of “%1”</source>
        <translation>Paramètres de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Add a parameter</source>
        <translation>Ajouter un paramètre</translation>
    </message>
    <message>
        <source>Remove the selected parameters</source>
        <translation>Supprimer les paramètres sélectionnés</translation>
    </message>
    <message>
        <source>Its &amp;Values…</source>
        <translation>&amp;Valeurs…</translation>
    </message>
    <message>
        <source>Projects of this template have these parameters, after the common ones:</source>
        <translation>Les projets de ce modèle ont ces paramètres, après les paramètres communs&#xa0;:</translation>
    </message>
    <message>
        <source>The common parameters in projects of this template:</source>
        <translation>Les paramètres communs dans les projets de ce modèle&#xa0;:</translation>
    </message>
    <message>
        <source>Parameters of the template</source>
        <translation>Paramètres du modèle</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Common parameters</source>
        <translation>Paramètres communs</translation>
    </message>
    <message>
        <source>as everywhere</source>
        <translation>comme ailleurs</translation>
    </message>
    <message>
        <source>always</source>
        <translation>toujours</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>exclu</translation>
    </message>
    <message>
        <source>What becomes of %1</source>
        <translation>Traitement de %1</translation>
    </message>
    <message>
        <source>Value of %1</source>
        <translation>Valeur de %1</translation>
    </message>
    <message>
        <source>Each parameter needs a title.</source>
        <translation>Chaque paramètre doit avoir un titre.</translation>
    </message>
    <message>
        <source>Two parameters are called “%1”.</source>
        <translation>Deux paramètres s’appellent «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ParameterDetails</name>
    <message>
        <source>Three letters, a dash, three digits</source>
        <translation>Trois lettres, un tiret, trois chiffres</translation>
    </message>
    <message>
        <source>Several &amp;choices at once</source>
        <translation>&amp;Plusieurs choix à la fois</translation>
    </message>
    <message>
        <source>Part of the project’s &amp;name</source>
        <translation>Fait partie du &amp;nom du projet</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Valeurs de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>Texte libre</translation>
    </message>
    <message>
        <source>A whole number</source>
        <translation>Nombre entier</translation>
    </message>
    <message>
        <source>A date from a calendar</source>
        <translation>Date d’un calendrier</translation>
    </message>
    <message>
        <source>A folder from a panel</source>
        <translation>Dossier à choisir</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Comme saisi</translation>
    </message>
    <message>
        <source>CAPITALS</source>
        <translation>MAJUSCULES</translation>
    </message>
    <message>
        <source>small letters</source>
        <translation>minuscules</translation>
    </message>
    <message>
        <source>Each Word Capital</source>
        <translation>Majuscule À Chaque Mot</translation>
    </message>
    <message>
        <source>any</source>
        <translation>illimitée</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valeur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>&amp;Casse&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Most characters:</source>
        <translation>&amp;Longueur max.&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Motif&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Said when it does not fit:</source>
        <translation>Message en cas d’&amp;erreur&#xa0;:</translation>
    </message>
    <message>
        <source>Computed &amp;from others:</source>
        <translation>Calculée d’&amp;après&#xa0;:</translation>
    </message>
    <message>
        <source>The pattern is no regular expression: %1</source>
        <translation>Le motif n’est pas une expression régulière&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ParameterEditor</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>(auto)</source>
        <translation>(auto)</translation>
    </message>
    <message>
        <source>The file does not hold a list of parameters.</source>
        <translation>Le fichier ne contient pas de liste de paramètres.</translation>
    </message>
    <message>
        <source>Entry %1 of the file is not a parameter with a title.</source>
        <translation>L’entrée %1 du fichier n’est pas un paramètre avec un titre.</translation>
    </message>
</context>
<context>
    <name>ParameterEditorModel</name>
    <message>
        <source>on</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>off</source>
        <translation>non</translation>
    </message>
    <message>
        <source>The choices, each on a line of its own; the first is the default.</source>
        <translation>Les choix, un par ligne&#xa0;; le premier est le choix par défaut.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Défaut</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Requis</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrou</translation>
    </message>
    <message>
        <source>What the value is called</source>
        <translation>Nom donné à la valeur</translation>
    </message>
    <message>
        <source>How it is filled in</source>
        <translation>Façon de la renseigner</translation>
    </message>
    <message>
        <source>What it begins with; for a choice, the choices</source>
        <translation>Valeur de départ&#xa0;; pour un choix, la liste des choix</translation>
    </message>
    <message>
        <source>Begins a new folder level</source>
        <translation>Ouvre un nouveau niveau de dossier</translation>
    </message>
    <message>
        <source>Remembers what was typed, and offers it again (Save History)</source>
        <translation>Mémorise les saisies et les propose à nouveau (Historique)</translation>
    </message>
    <message>
        <source>Must not be empty</source>
        <translation>Ne doit pas rester vide</translation>
    </message>
    <message>
        <source>Cannot be changed in the project pane</source>
        <translation>Non modifiable dans le volet Projet</translation>
    </message>
    <message>
        <source>New Parameter</source>
        <translation>Nouveau paramètre</translation>
    </message>
</context>
<context>
    <name>ParametersCommand</name>
    <message>
        <source>There is no parameter “%1”.</source>
        <translation>Le paramètre «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>There are several parameters “%1”. Please give them titles of their own, in the window.</source>
        <translation>Plusieurs paramètres s’appellent «&#xa0;%1&#xa0;». Donnez à chacun son propre titre, dans la fenêtre.</translation>
    </message>
    <message>
        <source>“%1” is no kind of parameter. There are: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un type de paramètre. Types possibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The parameters could not be stored.</source>
        <translation>Impossible d’enregistrer les paramètres.</translation>
    </message>
    <message>
        <source>Nothing was removed. This cannot be undone; say --yes to do it.</source>
        <translation>Rien n’a été supprimé. Cette action est irréversible&#xa0;; ajoutez --yes pour la confirmer.</translation>
    </message>
    <message>
        <source>The position is a number from 1 to %1.</source>
        <translation>La position est un nombre de 1 à %1.</translation>
    </message>
    <message>
        <source>A parameter has no “%1”. It has: %2.</source>
        <translation>Un paramètre n’a pas de clé «&#xa0;%1&#xa0;». Clés possibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be that. It can be: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas admis. Valeurs possibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The length is a number from 0 (any) to 255.</source>
        <translation>La longueur est un nombre de 0 (illimitée) à 255.</translation>
    </message>
    <message>
        <source>The pattern is no regular expression: %1</source>
        <translation>Le motif n’est pas une expression régulière&#xa0;: %1</translation>
    </message>
    <message>
        <source>The parameters could not be exported.</source>
        <translation>Impossible d’exporter les paramètres.</translation>
    </message>
    <message>
        <source>The parameters could not be imported.</source>
        <translation>Impossible d’importer les paramètres.</translation>
    </message>
    <message>
        <source>Nothing was changed. The list would be replaced; say --yes to do it.</source>
        <translation>Rien n’a été modifié. La liste serait remplacée&#xa0;; ajoutez --yes pour le faire.</translation>
    </message>
</context>
<context>
    <name>ParametersPane</name>
    <message>
        <source>(blank)</source>
        <translation>(espace)</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this parameter?</source>
        <translation>Voulez-vous vraiment supprimer ce paramètre&#xa0;?</translation>
    </message>
    <message>
        <source>Ctrl+Z brings it back for as long as this window is open.</source>
        <translation>Ctrl+Z le rétablit tant que cette fenêtre reste ouverte.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Aujourd’hui&#xa0;: %1</translation>
    </message>
    <message>
        <source>Slashes and colons are left out of folder names: it will be less than %1.</source>
        <translation>Barres obliques et deux-points sont retirés des noms de dossier&#xa0;: il restera moins que %1.</translation>
    </message>
</context>
<context>
    <name>PathControl</name>
    <message>
        <source>Project folder</source>
        <translation>Dossier du projet</translation>
    </message>
</context>
<context>
    <name>PickEditor</name>
    <message>
        <source>Pick a date (Alt+Down)</source>
        <translation>Choisir une date (Alt+Flèche bas)</translation>
    </message>
    <message>
        <source>Choose a folder (Alt+Down)</source>
        <translation>Choisir un dossier (Alt+Flèche bas)</translation>
    </message>
    <message>
        <source>Check some (Alt+Down)</source>
        <translation>Cocher des choix (Alt+Flèche bas)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>PlaceButton</name>
    <message>
        <source>Choose a place…</source>
        <translation>Emplacement…</translation>
    </message>
    <message>
        <source>Where the project goes</source>
        <translation>Emplacement du projet</translation>
    </message>
    <message>
        <source>The project goes to %1</source>
        <translation>Le projet ira dans %1</translation>
    </message>
    <message>
        <source>Place: none yet</source>
        <translation>Emplacement&#xa0;: aucun pour l’instant</translation>
    </message>
    <message>
        <source>Place: %1</source>
        <translation>Emplacement&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Choose a Folder…</source>
        <translation>&amp;Choisir un dossier…</translation>
    </message>
    <message>
        <source>&amp;Unpin This Place</source>
        <translation>Désé&amp;pingler cet emplacement</translation>
    </message>
    <message>
        <source>&amp;Pin This Place</source>
        <translation>É&amp;pingler cet emplacement</translation>
    </message>
</context>
<context>
    <name>Prefs_Dialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Template &amp;library:</source>
        <translation>&amp;Bibliothèque de modèles&#xa0;:</translation>
    </message>
    <message>
        <source>Template library</source>
        <translation>Bibliothèque de modèles</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>The folder in which your templates lie. Templates elsewhere are not shown.</source>
        <translation>Le dossier où se trouvent vos modèles. Les modèles situés ailleurs ne sont pas affichés.</translation>
    </message>
    <message>
        <source>After a project:</source>
        <translation>Après la création&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Open its folder</source>
        <translation>&amp;Ouvrir le dossier</translation>
    </message>
    <message>
        <source>&amp;Quit Tessaro</source>
        <translation>&amp;Quitter Tessaro</translation>
    </message>
    <message>
        <source>Template pane:</source>
        <translation>Volet Modèles&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Show every folder opened</source>
        <translation>&amp;Déplier tous les dossiers</translation>
    </message>
    <message>
        <source>Ask for a password:</source>
        <translation>Demander un mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>When &amp;Tessaro starts</source>
        <translation>Au démarrage de &amp;Tessaro</translation>
    </message>
    <message>
        <source>Before the &amp;preferences open</source>
        <translation>Avant d’ouvrir les &amp;préférences</translation>
    </message>
    <message>
        <source>An administrator’s. It holds for every user of this computer, and switching one off asks for it.</source>
        <translation>Celui d’un administrateur. Ces réglages valent pour tous les utilisateurs de cet ordinateur. Pour en désactiver un, il faut le saisir.</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Create every project in this folder:</source>
        <translation>&amp;Créer tous les projets dans ce dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Fixed project location</source>
        <translation>Emplacement fixe des projets</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Otherwise you choose a folder for each project.</source>
        <translation>Sinon, vous choisissez un dossier pour chaque projet.</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>Noms&#xa0;:</translation>
    </message>
    <message>
        <source>Only &amp;letters, digits, hyphens and underscores</source>
        <translation>Uniquement &amp;lettres, chiffres, traits d’union et tirets bas</translation>
    </message>
    <message>
        <source>Anything else is left out of what you type: for servers and programs that stumble over spaces and accents.</source>
        <translation>Tout autre caractère est retiré de vos saisies&#xa0;: pour les serveurs et les programmes que gênent espaces et accents.</translation>
    </message>
    <message>
        <source>Filename parameters</source>
        <translation>Paramètres du nom de fichier</translation>
    </message>
    <message>
        <source>Add a parameter</source>
        <translation>Ajouter un paramètre</translation>
    </message>
    <message>
        <source>Remove the selected parameters</source>
        <translation>Supprimer les paramètres sélectionnés</translation>
    </message>
    <message>
        <source>Its &amp;Values…</source>
        <translation>&amp;Valeurs…</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Séparateur&#xa0;:</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>&amp;Date format:</source>
        <translation>Format de &amp;date&#xa0;:</translation>
    </message>
    <message>
        <source>Date format</source>
        <translation>Format de date</translation>
    </message>
    <message>
        <source>Custom date format</source>
        <translation>Autre format de date</translation>
    </message>
    <message>
        <source>A project now:</source>
        <translation>Aperçu du projet&#xa0;:</translation>
    </message>
    <message>
        <source>Folders of a project</source>
        <translation>Dossiers d’un projet</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Shared set-&amp;up:</source>
        <translation>Con&amp;figuration partagée&#xa0;:</translation>
    </message>
    <message>
        <source>Shared set-up</source>
        <translation>Configuration partagée</translation>
    </message>
    <message>
        <source>A folder in which your studio keeps templates, parameters and settings for everybody. Empty: your own.</source>
        <translation>Un dossier où votre studio conserve modèles, paramètres et réglages pour tous. Vide&#xa0;: les vôtres.</translation>
    </message>
    <message>
        <source>Before templates are chan&amp;ged</source>
        <translation>Avant de &amp;modifier les modèles</translation>
    </message>
    <message>
        <source>What is grey is set by your studio.</source>
        <translation>Ce qui est grisé est défini par votre studio.</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Stop the work (Escape)</source>
        <translation>Interrompre l’opération (Échap)</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Interruption…</translation>
    </message>
</context>
<context>
    <name>ProjectBatch</name>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>Line %1 makes the same project: %2</source>
        <translation>La ligne %1 donne le même projet&#xa0;: %2</translation>
    </message>
    <message>
        <source>This row has more cells than there are columns.</source>
        <translation>Cette ligne a plus de cellules qu’il n’y a de colonnes.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1</source>
        <translation>Un projet de ce nom existe déjà&#xa0;: %1</translation>
    </message>
    <message>
        <source>Repeats would make more than %L1 items.</source>
        <translation>Les répétitions créeraient plus de %L1 éléments.</translation>
    </message>
    <message>
        <source>The new name of %1 is taken, or too long.</source>
        <translation>Le nouveau nom de %1 est déjà pris ou trop long.</translation>
    </message>
</context>
<context>
    <name>ProjectCheck</name>
    <message>
        <source>%1: is missing</source>
        <translation>%1&#xa0;: introuvable</translation>
    </message>
    <message>
        <source>%1: a file stands where a folder was made, or the other way round</source>
        <translation>%1&#xa0;: un fichier à la place d’un dossier créé, ou l’inverse</translation>
    </message>
    <message>
        <source>%1: had contents, and is empty</source>
        <translation>%1&#xa0;: avait un contenu et est maintenant vide</translation>
    </message>
    <message>
        <source>%1: cannot be looked at</source>
        <translation>%1&#xa0;: impossible à vérifier</translation>
    </message>
</context>
<context>
    <name>ProjectCreation</name>
    <message>
        <source>Unable to create folder %@</source>
        <translation>Impossible de créer le dossier %@</translation>
    </message>
    <message>
        <source>Creating %1</source>
        <translation>Création de %1</translation>
    </message>
    <message>
        <source>What was typed, and the numbers that were taken, could not be stored</source>
        <translation>Impossible d’enregistrer les valeurs saisies et les numéros attribués</translation>
    </message>
    <message>
        <source>The next project may get the same number.</source>
        <translation>Le prochain projet pourrait recevoir le même numéro.</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>Impossible de déplacer le fichier %@ vers %@</translation>
    </message>
    <message>
        <source>Something of the stopped project is left in %@</source>
        <translation>Il reste une partie du projet interrompu dans %@</translation>
    </message>
    <message>
        <source>The old project %@ is in the Trash</source>
        <translation>L’ancien projet %@ est dans la corbeille</translation>
    </message>
    <message>
        <source>It was put there before the creation was stopped.</source>
        <translation>Il y a été mis avant l’interruption de la création.</translation>
    </message>
    <message>
        <source>A project with this name already exists: %1</source>
        <translation>Un projet de ce nom existe déjà&#xa0;: %1</translation>
    </message>
    <message>
        <source>A project with this name already exists. Are you sure you wish to overwrite it?</source>
        <translation>Un projet de ce nom existe déjà. Voulez-vous vraiment le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>The old project will be placed in the trash.</source>
        <translation>L’ancien projet sera mis à la corbeille.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unable to move %@ to the Trash</source>
        <translation>Impossible de mettre %@ à la corbeille</translation>
    </message>
    <message>
        <source>The old project was left as it is, and no new one was created. Please check that you have write permissions for the folder it lies in.</source>
        <translation>L’ancien projet est resté tel quel et aucun nouveau projet n’a été créé. Vérifiez que vous avez le droit d’écrire dans le dossier qui le contient.</translation>
    </message>
    <message>
        <source>labels</source>
        <translation>étiquettes</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>permissions</translation>
    </message>
    <message>
        <source>owners</source>
        <translation>propriétaires</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>dates</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>et %n autre&#xa0;; le détail est dans le journal</numerusform>
            <numerusform>et %n autres&#xa0;; le détail est dans le journal</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ would get more than %ld items from repeats</source>
        <translation>%@ recevrait plus de %ld éléments par répétition</translation>
    </message>
    <message>
        <source>Is that what you want?</source>
        <translation>Est-ce bien ce que vous voulez&#xa0;?</translation>
    </message>
    <message>
        <source>Create Them</source>
        <translation>Les créer</translation>
    </message>
    <message>
        <source>Its repeats would make more than %ld items.</source>
        <translation>Ses répétitions créeraient plus de %ld éléments.</translation>
    </message>
    <message>
        <source>Others like this: %1</source>
        <translation>Autres cas semblables&#xa0;: %1</translation>
    </message>
    <message>
        <source>The template’s rules and the values do not fit; nothing was created</source>
        <translation>Les règles du modèle et les valeurs ne s’accordent pas&#xa0;; rien n’a été créé</translation>
    </message>
    <message>
        <source>Unable to copy contents of template</source>
        <translation>Impossible de copier le contenu du modèle</translation>
    </message>
    <message>
        <source>The drive at %@ does not keep everything. The project is complete, but for the template&apos;s %@.</source>
        <translation>Le disque de %@ ne conserve pas tout. Le projet est complet, sauf ceci, qui vient du modèle&#xa0;: %@.</translation>
    </message>
    <message>
        <source>Unable to look for names to replace in %@</source>
        <translation>Impossible de rechercher les noms à remplacer dans %@</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Le programme informé des nouveaux projets a échoué</translation>
    </message>
    <message>
        <source>The project was created; nothing was undone.</source>
        <translation>Le projet a été créé&#xa0;; rien n’a été annulé.</translation>
    </message>
</context>
<context>
    <name>ProjectPane</name>
    <message>
        <source>Choose the Project Location</source>
        <translation>Choisir l’emplacement des projets</translation>
    </message>
</context>
<context>
    <name>ProjectTable</name>
    <message>
        <source>This is no table of text. Please save the sheet as CSV (UTF-8).</source>
        <translation>Ce n’est pas un tableau au format texte. Enregistrez la feuille en CSV (UTF-8).</translation>
    </message>
    <message>
        <source>The table has more than %L1 rows. Please divide it.</source>
        <translation>Le tableau dépasse %L1 lignes. Divisez-le.</translation>
    </message>
    <message>
        <source>The table has no rows. The first one names the parameters, each other one is a project.</source>
        <translation>Le tableau n’a pas de lignes. La première nomme les paramètres, chacune des suivantes est un projet.</translation>
    </message>
    <message>
        <source>Two columns are called “%1”.</source>
        <translation>Deux colonnes s’appellent «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The quotes that are opened in line %1 are never closed.</source>
        <translation>Les guillemets ouverts à la ligne %1 ne sont jamais fermés.</translation>
    </message>
</context>
<context>
    <name>RenameSheet</name>
    <message numerus="yes">
        <source>Rename %n Items</source>
        <translation>
            <numerusform>Renommer %n élément</numerusform>
            <numerusform>Renommer %n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>the whole name</source>
        <translation>le nom entier</translation>
    </message>
    <message>
        <source>Day ## counts: Day 01, Day 02 …</source>
        <translation>Jour ## numérote&#xa0;: Jour 01, Jour 02 …</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>Re&amp;chercher&#xa0;:</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>Remplacer &amp;par&#xa0;:</translation>
    </message>
    <message>
        <source>First &amp;number:</source>
        <translation>Premier &amp;numéro&#xa0;:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Devient</translation>
    </message>
    <message>
        <source>What the names become</source>
        <translation>Nouveaux noms</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>stays as it is</source>
        <translation>inchangé</translation>
    </message>
</context>
<context>
    <name>RequestCheck</name>
    <message>
        <source>You must specify at least one parameter.</source>
        <translation>Indiquez au moins un paramètre.</translation>
    </message>
    <message>
        <source>The values give a folder level without a usable name (nothing, or dots only). Please change them.</source>
        <translation>Avec ces valeurs, un niveau de dossier n’a pas de nom utilisable (rien, ou seulement des points). Modifiez-les.</translation>
    </message>
    <message>
        <source>The name of a folder can have 255 bytes, and this one has %1. Please shorten a value.</source>
        <translation>Le nom d’un dossier peut compter 255 octets&#xa0;; celui-ci en a %1. Raccourcissez une valeur.</translation>
    </message>
    <message>
        <source>Unable to create folder</source>
        <translation>Impossible de créer le dossier</translation>
    </message>
    <message>
        <source>&apos;%@&apos; cannot be left blank</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas rester vide</translation>
    </message>
    <message>
        <source>Please fill in this parameter before creating a project.</source>
        <translation>Remplissez ce paramètre avant de créer un projet.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; cannot count any further</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas compter plus loin</translation>
    </message>
    <message>
        <source>Its number has too many digits: counters end at 2147483646. A date in front of a number is better a parameter of its own.</source>
        <translation>Son numéro a trop de chiffres&#xa0;: les compteurs s’arrêtent à 2147483646. Plutôt que devant un numéro, placez la date dans son propre paramètre.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; has to be changed</source>
        <translation>«&#xa0;%@&#xa0;» doit être modifié</translation>
    </message>
    <message>
        <source>There is no parameter “%1”. %2</source>
        <translation>Le paramètre «&#xa0;%1&#xa0;» n’existe pas. %2</translation>
    </message>
    <message>
        <source>The parameter “%1” is locked.</source>
        <translation>Le paramètre «&#xa0;%1&#xa0;» est verrouillé.</translation>
    </message>
    <message>
        <source>“%1” is not among the choices of “%2”. %3</source>
        <translation>«&#xa0;%1&#xa0;» ne figure pas parmi les choix de «&#xa0;%2&#xa0;». %3</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>Il n’y en a aucun.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Disponibles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The studio’s templates are just being brought up to date. Please try again in a moment.</source>
        <translation>Les modèles du studio sont en cours de mise à jour. Veuillez réessayer dans un instant.</translation>
    </message>
</context>
<context>
    <name>ResultModel</name>
    <message>
        <source>too long for a folder</source>
        <translation>trop long pour un dossier</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <translation>%1, dossier</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>the new name is taken</source>
        <translation>nouveau nom déjà pris</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>nouveau nom trop long</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>exclu</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>était %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>ResultPane</name>
    <message>
        <source>The project as it will be</source>
        <translation>Le projet tel qu’il sera</translation>
    </message>
    <message>
        <source>Folders: %1, files: %2, %3</source>
        <translation>Dossiers&#xa0;: %1, fichiers&#xa0;: %2, %3</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problèmes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Names that cannot be given: %1</source>
        <translation>Noms impossibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read: %1</source>
        <translation>Impossible de lire les règles du modèle&#xa0;: %1</translation>
    </message>
    <message>
        <source>Repeats make more than %L1 items. These are the first.</source>
        <translation>Les répétitions donnent plus de %L1 éléments. Voici les premiers.</translation>
    </message>
    <message>
        <source>A project of this name is there already. It goes to the Trash when this one is created. Items: %1</source>
        <translation>Un projet de ce nom existe déjà. Il ira à la corbeille à la création de celui-ci. Éléments&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>RuleInspector</name>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Put Them &amp;Aside</source>
        <translation>Mettre de &amp;côté</translation>
    </message>
    <message>
        <source>all of these are true</source>
        <translation>toutes sont vraies</translation>
    </message>
    <message>
        <source>any of these is true</source>
        <translation>au moins une est vraie</translation>
    </message>
    <message>
        <source>When it is made</source>
        <translation>Condition de création</translation>
    </message>
    <message>
        <source>Add &amp;Condition</source>
        <translation>Nouvelle c&amp;ondition</translation>
    </message>
    <message>
        <source>once</source>
        <translation>une fois</translation>
    </message>
    <message>
        <source>once for each number</source>
        <translation>une fois par numéro</translation>
    </message>
    <message>
        <source>once for each value</source>
        <translation>une fois par valeur</translation>
    </message>
    <message>
        <source>How often it is made</source>
        <translation>Fréquence de création</translation>
    </message>
    <message>
        <source>How &amp;often:</source>
        <translation>Fré&amp;quence&#xa0;:</translation>
    </message>
    <message>
        <source>Of the parameter</source>
        <translation>Du paramètre</translation>
    </message>
    <message>
        <source>Called in names</source>
        <translation>Appelé dans les noms</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>as</source>
        <translation>comme</translation>
    </message>
    <message>
        <source>Fill in values in its te&amp;xt</source>
        <translation>Valeurs dans son te&amp;xte</translation>
    </message>
    <message>
        <source>The whole template</source>
        <translation>Le modèle entier</translation>
    </message>
    <message>
        <source>&amp;Fill in values in names</source>
        <translation>&amp;Valeurs dans les noms</translation>
    </message>
    <message>
        <source>{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}</source>
        <translation>{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}</translation>
    </message>
    <message>
        <source>Va&amp;lues in the text of:</source>
        <translation>Valeurs dans le &amp;texte de&#xa0;:</translation>
    </message>
    <message>
        <source>Its Pa&amp;rameters…</source>
        <translation>Paramètre&amp;s propres…</translation>
    </message>
    <message>
        <source>Select one item for its rules.</source>
        <translation>Sélectionnez un élément pour voir ses règles.</translation>
    </message>
    <message>
        <source>No template is selected.</source>
        <translation>Aucun modèle sélectionné.</translation>
    </message>
    <message>
        <source>Made always.</source>
        <translation>Toujours créé.</translation>
    </message>
    <message>
        <source>&amp;Made if:</source>
        <translation>Créé s&amp;i&#xa0;:</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Remove this condition</source>
        <translation>Supprimer cette condition</translation>
    </message>
    <message>
        <source>Its name has the number as {%1}, or {%1:00} with two places.</source>
        <translation>Dans son nom, {%1} donne le numéro, ou {%1:00} sur deux chiffres.</translation>
    </message>
    <message>
        <source>Its name has the value as {%1}.</source>
        <translation>Dans son nom, {%1} donne la valeur.</translation>
    </message>
    <message>
        <source>Rules of items that are gone:</source>
        <translation>Règles d’éléments disparus&#xa0;:</translation>
    </message>
    <message>
        <source>Remove the rule of %1</source>
        <translation>Supprimer la règle de %1</translation>
    </message>
</context>
<context>
    <name>RuledTree</name>
    <message>
        <source>Another item here gets the name “%1”, too.</source>
        <translation>Un autre élément reçoit ici aussi le nom «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>RulesCommand</name>
    <message>
        <source>This is no JSON: %1, at byte %2.</source>
        <translation>Ce n’est pas du JSON&#xa0;: %1, à l’octet %2.</translation>
    </message>
    <message>
        <source>Rules are one JSON object: { … }.</source>
        <translation>Les règles forment un seul objet JSON&#xa0;: { … }.</translation>
    </message>
    <message>
        <source>The old rules were damaged; they are kept as %1.</source>
        <translation>Les anciennes règles étaient endommagées&#xa0;; elles sont conservées sous %1.</translation>
    </message>
    <message>
        <source>The rules cannot be read.</source>
        <translation>Impossible de lire les règles.</translation>
    </message>
    <message>
        <source>The rules were not changed.</source>
        <translation>Les règles n’ont pas été modifiées.</translation>
    </message>
    <message>
        <source>There is no template “%1”.</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Les droits d’administrateur sont nécessaires ici et ont été refusés.</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read; --set puts others in their place and keeps them beside.</source>
        <translation>Impossible de lire les règles du modèle&#xa0;; --set en met d’autres à leur place et garde les anciennes à côté.</translation>
    </message>
    <message>
        <source>There is a rule for an item that is gone: %1</source>
        <translation>Une règle concerne un élément disparu&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SearchComboBox</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The value is on or off.</source>
        <translation>La valeur est on ou off.</translation>
    </message>
    <message>
        <source>Please type the whole path, from the first slash on, or choose a folder.</source>
        <translation>Saisissez le chemin entier, depuis la première barre oblique, ou choisissez un dossier.</translation>
    </message>
    <message>
        <source>A file stands there. Please choose a folder.</source>
        <translation>Un fichier se trouve déjà là. Choisissez un dossier.</translation>
    </message>
    <message>
        <source>Slashes and colons cannot be in a folder&apos;s name.</source>
        <translation>Un nom de dossier ne contient ni barre oblique ni deux-points.</translation>
    </message>
    <message>
        <source>At most ten characters.</source>
        <translation>Dix caractères au maximum.</translation>
    </message>
    <message>
        <source>This gives no date. %Y is the year, %m the month, %d the day.</source>
        <translation>Ceci ne donne pas de date. %Y est l’année, %m le mois, %d le jour.</translation>
    </message>
    <message>
        <source>The percent sign at the end has no letter behind it.</source>
        <translation>Le signe pour cent final n’est suivi d’aucune lettre.</translation>
    </message>
    <message>
        <source>One of the percent signs has a letter behind it that stands for nothing. %Y is the year, %m the month, %d the day.</source>
        <translation>Un signe pour cent est suivi d’une lettre qui ne signifie rien. %Y est l’année, %m le mois, %d le jour.</translation>
    </message>
    <message>
        <source>folder of the template library</source>
        <translation>dossier de la bibliothèque de modèles</translation>
    </message>
    <message>
        <source>template of new projects</source>
        <translation>modèle des nouveaux projets</translation>
    </message>
    <message>
        <source>create every project in one folder</source>
        <translation>créer tous les projets dans un même dossier</translation>
    </message>
    <message>
        <source>that folder</source>
        <translation>ce dossier</translation>
    </message>
    <message>
        <source>between the values of one folder level</source>
        <translation>entre les valeurs d’un même niveau de dossier</translation>
    </message>
    <message>
        <source>how dates are written</source>
        <translation>format des dates</translation>
    </message>
    <message>
        <source>only letters, digits, - and _</source>
        <translation>uniquement lettres, chiffres, - et _</translation>
    </message>
    <message>
        <source>open a new project&apos;s folder</source>
        <translation>ouvrir le dossier d’un nouveau projet</translation>
    </message>
    <message>
        <source>quit after a project</source>
        <translation>quitter après un projet</translation>
    </message>
    <message>
        <source>show every folder of a template opened</source>
        <translation>déplier tous les dossiers d’un modèle</translation>
    </message>
    <message>
        <source>ask for a password at the start</source>
        <translation>demander un mot de passe au démarrage</translation>
    </message>
    <message>
        <source>ask before templates are changed</source>
        <translation>demander un mot de passe avant de modifier les modèles</translation>
    </message>
    <message>
        <source>ask before settings are changed</source>
        <translation>demander un mot de passe avant de modifier les réglages</translation>
    </message>
    <message>
        <source>There is no template “%1”. There are: %2.</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» n’existe pas. Disponibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Please type the whole path of a program that may be run.</source>
        <translation>Saisissez le chemin entier d’un programme exécutable.</translation>
    </message>
    <message>
        <source>The value is a number of seconds, from 1 to %1.</source>
        <translation>La valeur est un nombre de secondes, de 1 à %1.</translation>
    </message>
    <message>
        <source>program that gets each new project as JSON on its standard input</source>
        <translation>programme qui reçoit chaque nouveau projet en JSON sur son entrée standard</translation>
    </message>
    <message>
        <source>how many seconds it may take</source>
        <translation>sa durée maximale, en secondes</translation>
    </message>
    <message>
        <source>folder of the set-up that your studio shares</source>
        <translation>dossier de la configuration que partage votre studio</translation>
    </message>
    <message>
        <source>Set by your studio</source>
        <translation>Défini par votre studio</translation>
    </message>
</context>
<context>
    <name>SettingsCommand</name>
    <message>
        <source>There is no setting “%1”. Tessaro settings lists them.</source>
        <translation>Le réglage «&#xa0;%1&#xa0;» n’existe pas. Tessaro settings en donne la liste.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Les droits d’administrateur sont nécessaires ici et ont été refusés.</translation>
    </message>
    <message>
        <source>The setting could not be stored.</source>
        <translation>Impossible d’enregistrer le réglage.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>Impossible de lire la bibliothèque de modèles.</translation>
    </message>
</context>
<context>
    <name>SetupCommand</name>
    <message>
        <source>No set-up is shared.</source>
        <translation>Aucune configuration n’est partagée.</translation>
    </message>
    <message>
        <source>Folder: %1
Templates: %2
Locked: %3
Last change: %4</source>
        <translation>Dossier&#xa0;: %1
Modèles&#xa0;: %2
Verrouillé&#xa0;: %3
Dernière modification&#xa0;: %4</translation>
    </message>
    <message>
        <source>the studio’s</source>
        <translation>ceux du studio</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>les vôtres</translation>
    </message>
    <message>
        <source>The setting could not be stored.</source>
        <translation>Impossible d’enregistrer le réglage.</translation>
    </message>
    <message>
        <source>This folder holds no set-up that can be used. Tessaro setup export writes one.</source>
        <translation>Ce dossier ne contient aucune configuration utilisable. Tessaro setup export en crée une.</translation>
    </message>
    <message>
        <source>What can be locked: parameters, %1; or none.</source>
        <translation>Verrouillage possible&#xa0;: parameters, %1&#xa0;; ou none.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Le dossier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>The set-up could not be written.</source>
        <translation>Impossible d’enregistrer la configuration.</translation>
    </message>
    <message>
        <source>It is set for every user of this computer; an administrator takes it away: %1</source>
        <translation>Elle est définie pour tous les utilisateurs de cet ordinateur&#xa0;; un administrateur peut la retirer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Another program takes over or uses a set-up just now. Please try again in a moment.</source>
        <translation>Un autre programme reprend ou utilise une configuration en ce moment. Veuillez réessayer dans un instant.</translation>
    </message>
    <message>
        <source>The template library cannot be read.</source>
        <translation>Impossible de lire la bibliothèque de modèles.</translation>
    </message>
    <message>
        <source>The set-up was left; it counts until whatever uses it has finished.</source>
        <translation>La configuration a été quittée ; elle s’applique jusqu’à ce que ce qui l’utilise ait terminé.</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Idle</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>StudioLibrary</name>
    <message>
        <source>Taking over the studio’s set-up</source>
        <translation>Reprise de la configuration du studio</translation>
    </message>
    <message>
        <source>The studio’s set-up cannot be reached. The copy of %1 is used.</source>
        <translation>La configuration du studio est inaccessible. La copie du %1 est utilisée.</translation>
    </message>
    <message>
        <source>The studio’s set-up cannot be reached. Your own is used.</source>
        <translation>La configuration du studio est inaccessible. La vôtre est utilisée.</translation>
    </message>
    <message>
        <source>Writing the studio’s set-up</source>
        <translation>Enregistrement de la configuration du studio</translation>
    </message>
    <message>
        <source>Part of the studio’s set-up could not be taken over.</source>
        <translation>Une partie de la configuration du studio n’a pas pu être reprise.</translation>
    </message>
    <message>
        <source>Another program takes over or uses the studio’s set-up just now; what is new waits.</source>
        <translation>Un autre programme reprend ou utilise la configuration du studio en ce moment ; les nouveautés attendent.</translation>
    </message>
    <message>
        <source>The studio’s set-up could not be taken over. The copy of %1 is used.</source>
        <translation>La configuration du studio n’a pas pu être reprise. La copie du %1 est utilisée.</translation>
    </message>
    <message>
        <source>The studio’s set-up could not be taken over. Your own is used.</source>
        <translation>La configuration du studio n’a pas pu être reprise. La vôtre est utilisée.</translation>
    </message>
</context>
<context>
    <name>TableSheet</name>
    <message>
        <source>&amp;All of them, or none</source>
        <translation>&amp;Tous ou aucun</translation>
    </message>
    <message>
        <source>&amp;Leave out rows with problems</source>
        <translation>&amp;Ignorer les lignes en erreur</translation>
    </message>
    <message>
        <source>Create From Table</source>
        <translation>Créer depuis un tableau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Coller</translation>
    </message>
    <message>
        <source>The first row names parameters, each other one is a project (CSV, or a spreadsheet’s cells). A column “Template” chooses the template.</source>
        <translation>La première ligne nomme les paramètres, chacune des suivantes est un projet (CSV ou cellules d’un tableur). Une colonne «&#xa0;Template&#xa0;» choisit le modèle.</translation>
    </message>
    <message>
        <source>The folder that the projects go to</source>
        <translation>Dossier où vont les projets</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>In:</source>
        <translation>Dans&#xa0;:</translation>
    </message>
    <message>
        <source>Create Pro&amp;jects</source>
        <translation>Créer les pro&amp;jets</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>The project of the selected row</source>
        <translation>Projet de la ligne sélectionnée</translation>
    </message>
    <message>
        <source>Choose a table</source>
        <translation>Choisir un tableau</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt *.tab);;All files (*)</source>
        <translation>Tableaux (*.csv *.tsv *.txt *.tab);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Choose a destination</source>
        <translation>Choisir une destination</translation>
    </message>
    <message>
        <source>Please choose a folder.</source>
        <translation>Choisissez un dossier.</translation>
    </message>
    <message>
        <source>Looking at the table…</source>
        <translation>Lecture du tableau…</translation>
    </message>
    <message>
        <source>Projects: %L1</source>
        <translation>Projets&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Projects: %L1, with problems: %L2</source>
        <translation>Projets&#xa0;: %L1, en erreur&#xa0;: %L2</translation>
    </message>
    <message>
        <source>No parameter is called: %1</source>
        <translation>Aucun paramètre ne s’appelle&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TemplateCommand</name>
    <message>
        <source>There is no template “%1”. There are: %2.</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» n’existe pas. Disponibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be a template&apos;s name. Leave out slashes, colons, and dots at the beginning.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être un nom de modèle. Pas de barres obliques, de deux-points ni de points au début.</translation>
    </message>
    <message>
        <source>There is a template “%1” already.</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>Nothing was removed. Say --yes to move the template to the Trash.</source>
        <translation>Rien n’a été supprimé. Ajoutez --yes pour mettre le modèle à la corbeille.</translation>
    </message>
    <message>
        <source>--unset belongs to template default, without a name.</source>
        <translation>--unset s’emploie avec template default, sans nom.</translation>
    </message>
    <message>
        <source>Administrator rights are required here, and were refused.</source>
        <translation>Les droits d’administrateur sont nécessaires ici et ont été refusés.</translation>
    </message>
    <message>
        <source>The template has no folder “Files”: %1</source>
        <translation>Le modèle n’a pas de dossier «&#xa0;Files&#xa0;»&#xa0;: %1</translation>
    </message>
    <message>
        <source>This folder of the template cannot be read:</source>
        <translation>Impossible de lire ce dossier du modèle&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is not a template: its name ends neither in “.tzt” nor in “.tzt.zip”.</source>
        <translation>%1 n’est pas un modèle&#xa0;: son nom ne finit ni par «&#xa0;.tzt&#xa0;» ni par «&#xa0;.tzt.zip&#xa0;».</translation>
    </message>
    <message>
        <source>%1 exists already. Please say another name.</source>
        <translation>%1 existe déjà. Donnez un autre nom.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>%1 is a link; what it leads to is not changed from here.</source>
        <translation>%1 est un lien&#xa0;; sa cible ne se modifie pas d’ici.</translation>
    </message>
    <message>
        <source>This is no template, it lacks the folder %1.</source>
        <translation>Ce n’est pas un modèle, il lui manque le dossier %1.</translation>
    </message>
    <message>
        <source>Not all folders could be made.</source>
        <translation>Certains dossiers n’ont pas pu être créés.</translation>
    </message>
    <message>
        <source>Nothing was restored. Say --yes to put back the templates that ship with Tessaro; changed ones go to the Trash.</source>
        <translation>Rien n’a été restauré. Ajoutez --yes pour restaurer les modèles fournis avec Tessaro&#xa0;; ceux qui ont été modifiés vont à la corbeille.</translation>
    </message>
    <message>
        <source>Not all templates could be restored.</source>
        <translation>Certains modèles n’ont pas pu être restaurés.</translation>
    </message>
</context>
<context>
    <name>TemplateLibrary</name>
    <message>
        <source>Unable to create directory %@</source>
        <translation>Impossible de créer le dossier %@</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>Impossible de copier le fichier %@ vers %@</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove the template &apos;%@&apos;?</source>
        <translation>Voulez-vous vraiment supprimer le modèle «&#xa0;%@&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>The template file will be placed in your Trash.</source>
        <translation>Le fichier du modèle sera mis à la corbeille.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unable to remove template %@</source>
        <translation>Impossible de supprimer le modèle %@</translation>
    </message>
    <message>
        <source>Please check that you have write permissions for this file.</source>
        <translation>Vérifiez que vous avez le droit de modifier ce fichier.</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nom de fichier incorrect</translation>
    </message>
    <message>
        <source>You must enter a filename without invalid characters.</source>
        <translation>Saisissez un nom de fichier sans caractères interdits.</translation>
    </message>
    <message>
        <source>Template already exists</source>
        <translation>Ce modèle existe déjà</translation>
    </message>
    <message>
        <source>You cannot rename this template to %@ because there is already a template with this name.</source>
        <translation>Impossible de renommer ce modèle en %@&#xa0;: un modèle porte déjà ce nom.</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>Impossible de déplacer le fichier %@ vers %@</translation>
    </message>
    <message>
        <source>Unable to export %@</source>
        <translation>Impossible d’exporter %@</translation>
    </message>
    <message numerus="yes">
        <source>%n items of %1 could not be put into the archive as they are</source>
        <translation>
            <numerusform>%n élément de %1 n’a pas pu être archivé tel quel</numerusform>
            <numerusform>%n éléments de %1 n’ont pas pu être archivés tels quels</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to read %@</source>
        <translation>Impossible de lire %@</translation>
    </message>
    <message>
        <source>Please ask for the file again, or unpack it and take in the folder.</source>
        <translation>Redemandez le fichier, ou décompressez-le et importez le dossier.</translation>
    </message>
    <message>
        <source>%@ holds no template</source>
        <translation>%@ ne contient pas de modèle</translation>
    </message>
    <message>
        <source>An archive of a template holds one folder whose name ends in “.tzt”.</source>
        <translation>L’archive d’un modèle contient un seul dossier, dont le nom finit par «&#xa0;.tzt&#xa0;».</translation>
    </message>
    <message>
        <source>%@ is not a template</source>
        <translation>%@ n’est pas un modèle</translation>
    </message>
    <message>
        <source>A template is a folder whose name ends in “.tzt”, with a folder “Files” in it. Please choose such a folder.</source>
        <translation>Un modèle est un dossier dont le nom finit par «&#xa0;.tzt&#xa0;» et qui contient un dossier «&#xa0;Files&#xa0;». Choisissez un dossier de ce type.</translation>
    </message>
</context>
<context>
    <name>TemplatePane</name>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Remove the selected template</source>
        <translation>Supprimer le modèle sélectionné</translation>
    </message>
    <message>
        <source>Filter the contents</source>
        <translation>Filtrer le contenu</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Contents of the template</source>
        <translation>Contenu du modèle</translation>
    </message>
    <message>
        <source>Add a folder, a project file, or what lies elsewhere</source>
        <translation>Ajouter un dossier, un fichier de projet ou des éléments d’ailleurs</translation>
    </message>
    <message>
        <source>Add to the template</source>
        <translation>Ajouter au modèle</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Supprimer les éléments sélectionnés</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Nouveau modèle</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Reno&amp;mmer</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>&amp;Afficher dans le dossier</translation>
    </message>
    <message>
        <source>New &amp;Folder</source>
        <translation>Nouveau &amp;dossier</translation>
    </message>
    <message>
        <source>Import F&amp;iles and Folders…</source>
        <translation>Importer f&amp;ichiers et dossiers…</translation>
    </message>
    <message>
        <source>Import Folder &amp;Structure…</source>
        <translation>Importer une a&amp;rborescence…</translation>
    </message>
    <message>
        <source>New Folder &amp;Beside</source>
        <translation>Nouveau dossier à cô&amp;té</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cou&amp;per</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtrer</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Drop here for the top level</source>
        <translation>Déposez ici pour le premier niveau</translation>
    </message>
    <message>
        <source>&amp;Rules</source>
        <translation>&amp;Règles</translation>
    </message>
    <message>
        <source>Rules of the template and its items (Ctrl+I)</source>
        <translation>Règles du modèle et de ses éléments (Ctrl+I)</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>Impossible de lire les règles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Select a template on the left.</source>
        <translation>Sélectionnez un modèle à gauche.</translation>
    </message>
    <message>
        <source>Make a template with the plus sign on the left.</source>
        <translation>Créez un modèle avec le signe plus, à gauche.</translation>
    </message>
    <message>
        <source>Drop files and folders here, or add a folder.</source>
        <translation>Déposez ici fichiers et dossiers, ou ajoutez un dossier.</translation>
    </message>
    <message>
        <source>No label</source>
        <translation>Sans étiquette</translation>
    </message>
    <message>
        <source>Label %1</source>
        <translation>Étiquette %1</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>Éti&amp;quette</translation>
    </message>
    <message>
        <source>“%1” cannot be undone</source>
        <translation>Impossible d’annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be done again</source>
        <translation>Impossible de rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Your studio shares no templates yet.</source>
        <translation>Votre studio ne partage encore aucun modèle.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Il est vide.</translation>
    </message>
</context>
<context>
    <name>TemplateRules</name>
    <message>
        <source>“%1” is compared by size, and “%2” is no number.</source>
        <translation>«&#xa0;%1&#xa0;» se compare par grandeur, et «&#xa0;%2&#xa0;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>A condition asks for the parameter “%1”, which there is none of.</source>
        <translation>Une condition utilise le paramètre «&#xa0;%1&#xa0;», qui n’existe pas.</translation>
    </message>
    <message>
        <source>A repeat asks for the parameter “%1”, which there is none of.</source>
        <translation>Une répétition utilise le paramètre «&#xa0;%1&#xa0;», qui n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” has no value yet: how many?</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas encore de valeur&#xa0;: combien&#xa0;?</translation>
    </message>
    <message>
        <source>“%1” is no number to count to: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre jusqu’auquel compter&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” is too large a number: %2</source>
        <translation>«&#xa0;%1&#xa0;» est un nombre trop grand&#xa0;: %2</translation>
    </message>
    <message>
        <source>is</source>
        <translation>est</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>n’est pas</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is not empty</source>
        <translation>n’est pas vide</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>est supérieur à</translation>
    </message>
    <message>
        <source>“%1” holds something that is no text</source>
        <translation>«&#xa0;%1&#xa0;» contient autre chose que du texte</translation>
    </message>
    <message>
        <source>“%1” holds something that is no dictionary</source>
        <translation>«&#xa0;%1&#xa0;» contient autre chose qu’un dictionnaire</translation>
    </message>
    <message>
        <source>“%1” is not of the right kind</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas du bon type</translation>
    </message>
    <message>
        <source>“%1” is no condition; there are: is, isNot, contains, isEmpty, isNotEmpty, isGreater</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une condition&#xa0;; conditions possibles&#xa0;: is, isNot, contains, isEmpty, isNotEmpty, isGreater</translation>
    </message>
    <message>
        <source>a condition names no parameter</source>
        <translation>une condition ne nomme aucun paramètre</translation>
    </message>
    <message>
        <source>“when” takes “all” or “any”, not “%1”</source>
        <translation>«&#xa0;when&#xa0;» accepte «&#xa0;all&#xa0;» ou «&#xa0;any&#xa0;», pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“repeat” names no parameter: {&quot;count&quot;: TITLE} or {&quot;values&quot;: TITLE}</source>
        <translation>«&#xa0;repeat&#xa0;» ne nomme aucun paramètre&#xa0;: {&quot;count&quot;: TITLE} ou {&quot;values&quot;: TITLE}</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a repeat</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être le nom d’une répétition</translation>
    </message>
    <message>
        <source>“repeat” takes “count” or “values”, and “as”, not “%1”</source>
        <translation>«&#xa0;repeat&#xa0;» accepte «&#xa0;count&#xa0;» ou «&#xa0;values&#xa0;», et «&#xa0;as&#xa0;», pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Item %1 (%2)</source>
        <translation>Élément %1 (%2)</translation>
    </message>
    <message>
        <source>its path names no item of the template</source>
        <translation>son chemin ne désigne aucun élément du modèle</translation>
    </message>
    <message>
        <source>These rules are of a later version of Tessaro.</source>
        <translation>Ces règles viennent d’une version plus récente de Tessaro.</translation>
    </message>
    <message>
        <source>a parameter of “parameters” has no title</source>
        <translation>un paramètre de «&#xa0;parameters&#xa0;» n’a pas de titre</translation>
    </message>
    <message>
        <source>two parameters of “parameters” are called “%1”</source>
        <translation>deux paramètres de «&#xa0;parameters&#xa0;» s’appellent «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>TemplateTreeModel</name>
    <message>
        <source>Link to %1</source>
        <translation>Lien vers %1</translation>
    </message>
    <message>
        <source>This lies behind a link, outside of the template. It is not changed from here.</source>
        <translation>Ceci se trouve derrière un lien, hors du modèle. On ne le modifie pas d’ici.</translation>
    </message>
    <message>
        <source>link</source>
        <translation>lien</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2, label %3</source>
        <translation>%1, %2, étiquette %3</translation>
    </message>
    <message>
        <source>only when %1 %2 %3</source>
        <translation>seulement si %1 %2 %3</translation>
    </message>
    <message>
        <source>once for each number up to %1</source>
        <translation>une fois par numéro jusqu’à %1</translation>
    </message>
    <message>
        <source>once for each value of %1</source>
        <translation>une fois par valeur de %1</translation>
    </message>
    <message>
        <source>values in its text</source>
        <translation>valeurs dans son texte</translation>
    </message>
</context>
<context>
    <name>TerminalProgress</name>
    <message>
        <source>stopping</source>
        <translation>interruption</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>, dans %1</translation>
    </message>
</context>
<context>
    <name>TessaroAppDelegate</name>
    <message>
        <source>Tessaro needs an administrator’s password to start</source>
        <translation>Tessaro exige un mot de passe d’administrateur pour démarrer</translation>
    </message>
    <message>
        <source>It was not given, or there is nobody who could ask for it. An administrator can switch this off with: sudo Tessaro settings unset requireAdminPassword</source>
        <translation>Il n’a pas été saisi, ou rien ne permet de le demander. Un administrateur peut désactiver cette protection avec&#xa0;: sudo Tessaro settings unset requireAdminPassword</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Impossible de lire vos réglages</translation>
    </message>
    <message>
        <source>Tessaro shows its defaults instead. What you change and the numbers that projects take are not kept until the file can be read again.</source>
        <translation>Tessaro affiche ses valeurs par défaut. Tant que le fichier reste illisible, vos modifications et les numéros attribués aux projets ne sont pas conservés.</translation>
    </message>
    <message>
        <source>Welcome to Tessaro</source>
        <translation>Bienvenue dans Tessaro</translation>
    </message>
    <message>
        <source>Simplify your creative workflows by organizing your assets before you start. Tessaro makes it easy to create customized folder structures for each project.

Modify the included templates to meet your needs or create your own from scratch.</source>
        <translation>Simplifiez votre travail de création&#xa0;: organisez tout avant de commencer. Avec Tessaro, créez facilement une arborescence de dossiers sur mesure pour chaque projet.

Adaptez les modèles fournis à vos besoins ou créez les vôtres de A à Z.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Mode d’emploi</translation>
    </message>
    <message>
        <source>Tessaro ended unexpectedly the last time</source>
        <translation>Tessaro s’est fermé de façon inattendue la dernière fois</translation>
    </message>
    <message>
        <source>A report of it lies on this computer; what it says of the program helps to mend the fault. Your projects and templates are as they were.</source>
        <translation>Un rapport est conservé sur cet ordinateur&#xa0;; ce qu’il dit du programme aide à corriger l’erreur. Vos projets et vos modèles sont intacts.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Voir le rapport</translation>
    </message>
    <message>
        <source>A project was not finished</source>
        <translation>Un projet n’a pas été terminé</translation>
    </message>
    <message>
        <source>Tessaro or the computer stopped while ‘%1’ was being made. What had been copied is here:

%2</source>
        <translation>Tessaro ou l’ordinateur s’est arrêté pendant la création de «&#xa0;%1&#xa0;». Ce qui avait été copié se trouve ici&#xa0;:

%2</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>The unfinished project could not be put away</source>
        <translation>Impossible d’écarter le projet inachevé</translation>
    </message>
    <message>
        <source>‘%1’ is not whole</source>
        <translation>«&#xa0;%1&#xa0;» est incomplet</translation>
    </message>
    <message>
        <source>Projects that are not whole: %1</source>
        <translation>Projets incomplets&#xa0;: %1</translation>
    </message>
    <message>
        <source>Create it once more, or take these files from the template.</source>
        <translation>Créez-le à nouveau, ou reprenez ces fichiers dans le modèle.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>The library at %1 cannot be reached.</source>
        <translation>La bibliothèque %1 est inaccessible.</translation>
    </message>
    <message>
        <source>About Tessaro</source>
        <translation>À propos de Tessaro</translation>
    </message>
    <message>
        <source>Tessaro %1</source>
        <translation>Tessaro %1</translation>
    </message>
    <message>
        <source>Starts media and production projects from templates.

© Vantrel</source>
        <translation>Crée des projets de production et de médias à partir de modèles.

© Vantrel</translation>
    </message>
    <message>
        <source>Creation of ‘%1’</source>
        <translation>Création de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Creation From Table</source>
        <translation>Création depuis un tableau</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Effacement de l’historique</translation>
    </message>
    <message>
        <source>Undoing %1</source>
        <translation>Annulation de %1</translation>
    </message>
    <message>
        <source>‘%1’ cannot be undone</source>
        <translation>Impossible d’annuler «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>It is not at its place any more.</source>
        <translation>Il n’est plus à sa place.</translation>
    </message>
    <message>
        <source>‘%1’ is in the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» est dans la corbeille.</translation>
    </message>
    <message>
        <source>The old project is still in the Trash</source>
        <translation>L’ancien projet est encore dans la corbeille</translation>
    </message>
    <message>
        <source>What was untouched is in the Trash.</source>
        <translation>Ce qui n’avait pas changé est dans la corbeille.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>et %n autre&#xa0;; le détail est dans le journal</numerusform>
            <numerusform>et %n autres&#xa0;; le détail est dans le journal</numerusform>
        </translation>
    </message>
    <message>
        <source>Part of ‘%1’ stays</source>
        <translation>Une partie de «&#xa0;%1&#xa0;» reste en place</translation>
    </message>
    <message>
        <source>None Yet</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Not There Any More</source>
        <translation>N’existe plus</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Show in Its Folder</source>
        <translation>&amp;Afficher dans le dossier</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Choose a destination</source>
        <translation>Choisir une destination</translation>
    </message>
    <message>
        <source>Choose where projects go</source>
        <translation>Choisir l’emplacement des projets</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>Ce projet existe déjà</translation>
    </message>
    <message>
        <source>Are you sure you wish to overwrite %@?</source>
        <translation>Voulez-vous vraiment remplacer %@&#xa0;?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stopped; nothing of the project was kept.</source>
        <translation>Interrompu&#xa0;; rien du projet n’a été conservé.</translation>
    </message>
    <message>
        <source>The template’s rules cannot be read</source>
        <translation>Impossible de lire les règles du modèle</translation>
    </message>
    <message>
        <source>Nothing was created. The template pane shows what can be done.</source>
        <translation>Rien n’a été créé. Le volet Modèles montre ce qu’il est possible de faire.</translation>
    </message>
    <message>
        <source>The template has other parameters by now</source>
        <translation>Les paramètres du modèle ont changé entre-temps</translation>
    </message>
    <message>
        <source>Nothing was created. Please look at the values again.</source>
        <translation>Rien n’a été créé. Revoyez les valeurs.</translation>
    </message>
    <message>
        <source>Updates cannot be looked for</source>
        <translation>Impossible de vérifier les mises à jour</translation>
    </message>
    <message>
        <source>The software updater is not installed on this computer.</source>
        <translation>L’outil de mise à jour n’est pas installé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>and others: %L1; the log names each</source>
        <translation>et d’autres&#xa0;: %L1&#xa0;; le détail est dans le journal</translation>
    </message>
    <message>
        <source>There is no template “%1”.</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>Nothing was kept: what had been created is in the Trash.</source>
        <translation>Rien n’a été conservé&#xa0;: ce qui avait été créé est dans la corbeille.</translation>
    </message>
    <message>
        <source>Rows that were left out: %L1</source>
        <translation>Lignes ignorées&#xa0;: %L1</translation>
    </message>
    <message>
        <source>The projects could not all be created</source>
        <translation>Certains projets n’ont pas pu être créés</translation>
    </message>
    <message>
        <source>Not all went well</source>
        <translation>Il y a eu des problèmes</translation>
    </message>
    <message>
        <source>Undoing projects: %L1</source>
        <translation>Annulation de projets&#xa0;: %L1</translation>
    </message>
    <message>
        <source>In the Trash: %L1 projects.</source>
        <translation>Projets mis à la corbeille&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Part of the projects stays</source>
        <translation>Une partie des projets reste en place</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Import Template</source>
        <translation>Importer un modèle</translation>
    </message>
    <message>
        <source>%@ already exists. Overwrite?</source>
        <translation>%@ existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>L’élément existant ira à la corbeille.</translation>
    </message>
    <message>
        <source>Export “%1”</source>
        <translation>Exporter «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Tessaro: closes when everything has been taken in</source>
        <translation>Tessaro&#xa0;: fermeture une fois l’import terminé</translation>
    </message>
    <message>
        <source>%@ is not a template</source>
        <translation>%@ n’est pas un modèle</translation>
    </message>
    <message>
        <source>Tessaro takes in templates: folders whose name ends in “.tzt”, and archives of them, in “.tzt.zip”.</source>
        <translation>Tessaro importe des modèles&#xa0;: des dossiers dont le nom finit par «&#xa0;.tzt&#xa0;» et leurs archives, en «&#xa0;.tzt.zip&#xa0;».</translation>
    </message>
    <message>
        <source>Tessaro</source>
        <translation>Tessaro</translation>
    </message>
    <message>
        <source>Restore of the Default Templates</source>
        <translation>Restauration des modèles fournis</translation>
    </message>
    <message>
        <source>Not all templates could be restored</source>
        <translation>Certains modèles n’ont pas pu être restaurés</translation>
    </message>
    <message>
        <source>Those that could not be replaced were left as they are.</source>
        <translation>Ceux qui n’ont pas pu être remplacés sont restés tels quels.</translation>
    </message>
    <message>
        <source>Are you sure you wish to restore the default Tessaro templates?</source>
        <translation>Voulez-vous vraiment restaurer les modèles fournis avec Tessaro&#xa0;?</translation>
    </message>
    <message>
        <source>This will restore the templates Tessaro ships with by default and will overwrite any modifications you have made to them.</source>
        <translation>Les modèles fournis avec Tessaro retrouveront leur état d’origine et remplaceront vos versions modifiées.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>History successfully cleared</source>
        <translation>Historique effacé</translation>
    </message>
    <message>
        <source>To switch history logging off entirely, go to Preferences and deselect Save History next to each parameter in the Parameters tab.</source>
        <translation>Pour désactiver complètement l’historique, ouvrez les Préférences et décochez Historique pour chaque paramètre dans l’onglet Paramètres.</translation>
    </message>
    <message>
        <source>&amp;Check…</source>
        <translation>&amp;Vérifier…</translation>
    </message>
    <message>
        <source>Choose the project to check</source>
        <translation>Choisir le projet à vérifier</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>‘%1’ cannot be checked</source>
        <translation>Impossible de vérifier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Tessaro does not remember this project; it was compared with the template “%1”.</source>
        <translation>Tessaro n’a pas mémorisé ce projet&#xa0;; il a été comparé au modèle «&#xa0;%1&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>and %n more; “Tessaro check” names each</source>
        <translation>
            <numerusform>et %n autre&#xa0;; «&#xa0;Tessaro check&#xa0;» donne le détail</numerusform>
            <numerusform>et %n autres&#xa0;; «&#xa0;Tessaro check&#xa0;» donne le détail</numerusform>
        </translation>
    </message>
    <message>
        <source>Items that depend on values, not looked for: %L1</source>
        <translation>Éléments dépendant de valeurs, non vérifiés&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Items looked for: %L1</source>
        <translation>Éléments vérifiés&#xa0;: %L1</translation>
    </message>
    <message>
        <source>‘%1’ is complete</source>
        <translation>«&#xa0;%1&#xa0;» est complet</translation>
    </message>
    <message>
        <source>Something is missing in ‘%1’</source>
        <translation>Il manque quelque chose dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Vérification de %1</translation>
    </message>
    <message>
        <source>No project can be created there</source>
        <translation>Impossible de créer un projet à cet endroit</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The program that runs after each creation has failed</source>
        <translation>Le programme informé des nouveaux projets a échoué</translation>
    </message>
    <message>
        <source>Editing: from ingest to delivery</source>
        <translation>Montage&#xa0;: de l’acquisition à la livraison</translation>
    </message>
    <message>
        <source>Photography: from card to client</source>
        <translation>Photographie&#xa0;: de la carte au client</translation>
    </message>
    <message>
        <source>Podcast and sound: an episode, a mix</source>
        <translation>Podcast et son&#xa0;: un épisode, un mixage</translation>
    </message>
    <message>
        <source>What would you like to start with?</source>
        <translation>Par quoi voulez-vous commencer&#xa0;?</translation>
    </message>
    <message>
        <source>The manual cannot be opened</source>
        <translation>Impossible d’ouvrir le mode d’emploi</translation>
    </message>
    <message>
        <source>This desktop has no program for PDF files. The same text can be read here.</source>
        <translation>Ce bureau n’a pas de programme pour les fichiers PDF. Le même texte peut être lu ici.</translation>
    </message>
    <message>
        <source>Show It Here</source>
        <translation>Afficher ici</translation>
    </message>
    <message>
        <source>It is missing; please install Tessaro again.</source>
        <translation>Il est introuvable&#xa0;; réinstallez Tessaro.</translation>
    </message>
    <message>
        <source>Tessaro is at work; please ask again when it has finished.</source>
        <translation>Tessaro travaille&#xa0;; réessayez quand il aura terminé.</translation>
    </message>
    <message>
        <source>Where projects go is set by your studio</source>
        <translation>L’emplacement des projets est défini par votre studio</translation>
    </message>
    <message>
        <source>The studio’s templates are just being brought up to date</source>
        <translation>Les modèles du studio sont en cours de mise à jour</translation>
    </message>
    <message>
        <source>Nothing was created. Please try again in a moment.</source>
        <translation>Rien n’a été créé. Veuillez réessayer dans un instant.</translation>
    </message>
    <message>
        <source>The parameters were not stored</source>
        <translation>Les paramètres n’ont pas été enregistrés</translation>
    </message>
    <message>
        <source>Another template is shown by now: that of a studio’s set-up, or of another library.</source>
        <translation>Un autre modèle est désormais affiché : celui de la configuration d’un studio, ou d’une autre bibliothèque.</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>It is computed from itself, by way of others.</source>
        <translation>La valeur dépend d’elle-même, à travers d’autres.</translation>
    </message>
</context>
<context>
    <name>TextValues</name>
    <message>
        <source>%1 has characters that this file, which is no UTF-8, cannot hold. Please save it as UTF-8.</source>
        <translation>%1 contient des caractères que ce fichier, qui n’est pas en UTF-8, ne peut pas contenir. Enregistrez-le en UTF-8.</translation>
    </message>
    <message>
        <source>%1 has a character that XML cannot hold.</source>
        <translation>%1 contient un caractère interdit en XML.</translation>
    </message>
    <message>
        <source>This is no text: no values can be filled in.</source>
        <translation>Ce n’est pas du texte&#xa0;: impossible d’y insérer des valeurs.</translation>
    </message>
    <message>
        <source>Values cannot be filled in: %1</source>
        <translation>Impossible d’insérer les valeurs&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Tokens</name>
    <message>
        <source>“%1” has no value yet.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas encore de valeur.</translation>
    </message>
    <message>
        <source>“%1” is no number: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” is no form of a date, as %Y-%m-%d is.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un format de date tel que %Y-%m-%d.</translation>
    </message>
    <message>
        <source>“%1” is no date: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” is neither places of a number, as 000 is, nor a form of a date, as %Y is.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un format de nombre tel que 000, ni un format de date tel que %Y.</translation>
    </message>
    <message>
        <source>There is no parameter “%1”.</source>
        <translation>Le paramètre «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” changes no value. There are: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne transforme aucune valeur. Disponibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>A “{” without its “}”. Two of them, “{{”, stand for one that is meant.</source>
        <translation>Un «&#xa0;{&#xa0;» sans son «&#xa0;}&#xa0;». Doublez-le, «&#xa0;{{&#xa0;», pour l’écrire tel quel.</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>it has been changed</source>
        <translation>modifié depuis la création</translation>
    </message>
    <message>
        <source>the creation has not made it</source>
        <translation>ne vient pas de la création</translation>
    </message>
    <message>
        <source>it cannot be moved to the Trash</source>
        <translation>impossible à mettre à la corbeille</translation>
    </message>
</context>
<context>
    <name>Unfinished</name>
    <message>
        <source>The computer lost its power, or was switched off, before the project had reached its drive.</source>
        <translation>L’ordinateur a été éteint ou privé de courant avant que le projet ne soit écrit sur son disque.</translation>
    </message>
    <message numerus="yes">
        <source>The computer lost its power, or was switched off, before all of the project had reached its drive. %n of its files are empty or cut off:</source>
        <translation>
            <numerusform>L’ordinateur a été éteint ou privé de courant avant que le projet ne soit entièrement écrit sur son disque. %n de ses fichiers est vide ou tronqué&#xa0;:</numerusform>
            <numerusform>L’ordinateur a été éteint ou privé de courant avant que le projet ne soit entièrement écrit sur son disque. %n de ses fichiers sont vides ou tronqués&#xa0;:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserDefaults</name>
    <message>
        <source>It is set for every user of this computer, and only an administrator can change it, with sudo Tessaro settings.</source>
        <translation>Ce réglage vaut pour tous les utilisateurs de cet ordinateur&#xa0;; seul un administrateur peut le modifier, avec sudo Tessaro settings.</translation>
    </message>
</context>
<context>
    <name>VTDataController</name>
    <message>
        <source>Unable to create directory %@</source>
        <translation>Impossible de créer le dossier %@</translation>
    </message>
</context>
<context>
    <name>VTImageTextCell</name>
    <message>
        <source>Name of %1</source>
        <translation>Nom de %1</translation>
    </message>
</context>
<context>
    <name>VTKeys</name>
    <message>
        <source>New project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Create the project</source>
        <translation>Créer le projet</translation>
    </message>
    <message>
        <source>Show the project pane</source>
        <translation>Afficher le volet Projet</translation>
    </message>
    <message>
        <source>Show the template pane</source>
        <translation>Afficher le volet Modèles</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Import a template</source>
        <translation>Importer un modèle</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>VTOutlineView</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VTPreferenceController</name>
    <message>
        <source>“%@” cannot be used</source>
        <translation>Impossible d’utiliser «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>Unable to create folder %@</source>
        <translation>Impossible de créer le dossier %@</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Raccourcis</translation>
    </message>
</context>
<context>
    <name>VTProjectTableController</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, locked</source>
        <translation>%1, verrouillé</translation>
    </message>
    <message>
        <source>%1, automatic</source>
        <translation>%1, automatique</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>A project needs this value.</source>
        <translation>Un projet a besoin de cette valeur.</translation>
    </message>
    <message>
        <source>required</source>
        <translation>requis</translation>
    </message>
    <message>
        <source>Counters end at 2147483646. A date in front of a number is better a parameter of its own.</source>
        <translation>Les compteurs s’arrêtent à 2147483646. Plutôt que devant un numéro, placez la date dans son propre paramètre.</translation>
    </message>
    <message>
        <source>counts no further</source>
        <translation>limite atteinte</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>non conforme</translation>
    </message>
    <message>
        <source>The name of a folder can have 255 bytes, and this one gets more.</source>
        <translation>Le nom d’un dossier peut compter 255 octets&#xa0;; celui-ci en a davantage.</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>trop long</translation>
    </message>
    <message>
        <source>No folder can be named like this (nothing, or dots only).</source>
        <translation>Aucun dossier ne peut porter ce nom (rien, ou seulement des points).</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>The template says this value.</source>
        <translation>Cette valeur est fixée par le modèle.</translation>
    </message>
    <message>
        <source>by the template</source>
        <translation>par le modèle</translation>
    </message>
    <message>
        <source>not computed</source>
        <translation>non calculé</translation>
    </message>
    <message>
        <source>Typed in place of “%1”. Delete puts that back.</source>
        <translation>Saisi à la place de «&#xa0;%1&#xa0;». Suppr rétablit cette valeur.</translation>
    </message>
    <message>
        <source>typed over</source>
        <translation>saisi</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>VTSavePanel</name>
    <message>
        <source>Create Here</source>
        <translation>Créer ici</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyConfig</name>
    <message>
        <source>Commands and their shortcuts</source>
        <translation>Commandes et leurs raccourcis</translation>
    </message>
    <message>
        <source>Select a command, press Return, then the keys. They work in every program. Delete takes a shortcut away.</source>
        <translation>Sélectionnez une commande, appuyez sur Entrée, puis sur les touches voulues. Elles agissent dans tous les programmes. Suppr retire un raccourci.</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyFieldEditor</name>
    <message>
        <source>Press the keys of the shortcut</source>
        <translation>Appuyez sur les touches du raccourci</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Tapez le raccourci…</translation>
    </message>
</context>
<context>
    <name>VTShortcutKeyTableDelegate</name>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>The shortcuts cannot be changed: %1 Please put that file aside and try again.</source>
        <translation>Impossible de modifier les raccourcis&#xa0;: %1 Mettez ce fichier de côté et réessayez.</translation>
    </message>
    <message>
        <source>Your desktop does not watch these keys now: %1</source>
        <translation>Votre bureau ne surveille pas ces touches pour l’instant&#xa0;: %1</translation>
    </message>
    <message>
        <source>Your desktop watches these keys while Tessaro runs, and may ask you about them.</source>
        <translation>Votre bureau surveille ces touches tant que Tessaro est ouvert et peut vous interroger à leur sujet.</translation>
    </message>
    <message>
        <source>Nothing on this computer watches these keys: neither the shortcut key manager nor a desktop with global shortcuts is there.</source>
        <translation>Rien ne surveille ces touches sur cet ordinateur&#xa0;: il n’y a ni gestionnaire de raccourcis ni bureau avec raccourcis globaux.</translation>
    </message>
    <message>
        <source>%1 (also for “%2”)</source>
        <translation>%1 (aussi pour «&#xa0;%2&#xa0;»)</translation>
    </message>
    <message>
        <source>Only one of the two can have these keys. Please press others for one of them.</source>
        <translation>Une seule des deux commandes peut avoir ces touches. Choisissez-en d’autres pour l’une d’elles.</translation>
    </message>
    <message>
        <source>no shortcut</source>
        <translation>aucun raccourci</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
</context>
<context>
    <name>VTTemplateOutlineController</name>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Import of Folders</source>
        <translation>Import de dossiers</translation>
    </message>
    <message>
        <source>The rules cannot be changed</source>
        <translation>Impossible de modifier les règles</translation>
    </message>
    <message>
        <source>The rules were put aside</source>
        <translation>Les règles ont été mises de côté</translation>
    </message>
    <message>
        <source>The rules cannot be put aside</source>
        <translation>Impossible de mettre les règles de côté</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Unable to create folder %@</source>
        <translation>Impossible de créer le dossier %@</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Nouvel élément</translation>
    </message>
    <message>
        <source>Unable to create project %@</source>
        <translation>Impossible de créer le projet %@</translation>
    </message>
    <message>
        <source>Import Folder Structure</source>
        <translation>Importer une arborescence</translation>
    </message>
    <message>
        <source>Import Files and Folders</source>
        <translation>Importer fichiers et dossiers</translation>
    </message>
    <message>
        <source>this item</source>
        <translation>cet élément</translation>
    </message>
    <message>
        <source>these items</source>
        <translation>ces éléments</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove %@?</source>
        <translation>Voulez-vous vraiment supprimer %@&#xa0;?</translation>
    </message>
    <message>
        <source>What is removed goes to the Trash. Undo brings it back.</source>
        <translation>Les éléments supprimés vont à la corbeille. La commande Annuler les rétablit.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unable to remove file %@</source>
        <translation>Impossible de supprimer le fichier %@</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Unable to copy file %@ to %@</source>
        <translation>Impossible de copier le fichier %@ vers %@</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nom de fichier incorrect</translation>
    </message>
    <message>
        <source>You must enter a filename without invalid characters.</source>
        <translation>Saisissez un nom de fichier sans caractères interdits.</translation>
    </message>
    <message>
        <source>Item already exists</source>
        <translation>Cet élément existe déjà</translation>
    </message>
    <message>
        <source>You cannot rename this item to %@ because there is already a file or folder with this name.</source>
        <translation>Impossible de renommer cet élément en %@&#xa0;: un fichier ou un dossier porte déjà ce nom.</translation>
    </message>
    <message>
        <source>Unable to rename item</source>
        <translation>Impossible de renommer l’élément</translation>
    </message>
    <message>
        <source>Please check your have write permissions for this item and its parent directory.</source>
        <translation>Vérifiez que vous avez le droit de modifier cet élément et le dossier qui le contient.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Unable to move file %@ to %@</source>
        <translation>Impossible de déplacer le fichier %@ vers %@</translation>
    </message>
    <message>
        <source>%@ already exists. Overwrite?</source>
        <translation>%@ existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>What is there goes to the Trash.</source>
        <translation>L’élément existant ira à la corbeille.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>The text is no list of folders</source>
        <translation>Le texte n’est pas une liste de dossiers</translation>
    </message>
    <message>
        <source>Unable to rename the items</source>
        <translation>Impossible de renommer les éléments</translation>
    </message>
    <message>
        <source>“%1” cannot be a name.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être un nom.</translation>
    </message>
    <message>
        <source>Two of them would be called “%1”.</source>
        <translation>Deux d’entre eux s’appelleraient «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is another item called “%1”.</source>
        <translation>Un autre élément s’appelle «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>VTTemplateTableController</name>
    <message>
        <source>Unset &amp;Default</source>
        <translation>Ne plus définir par &amp;défaut</translation>
    </message>
    <message>
        <source>Set as &amp;Default</source>
        <translation>Définir par &amp;défaut</translation>
    </message>
    <message>
        <source>Import of ‘%1’</source>
        <translation>Import de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>New Template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>%1, the default template</source>
        <translation>%1, le modèle par défaut</translation>
    </message>
</context>
<context>
    <name>VTTroubleshootingUtils</name>
    <message>
        <source>Gathering the logs</source>
        <translation>Rassemblement des journaux</translation>
    </message>
    <message>
        <source>No logs found</source>
        <translation>Aucun journal trouvé</translation>
    </message>
    <message>
        <source>There were no logs available to gather.</source>
        <translation>Il n’y avait aucun journal à rassembler.</translation>
    </message>
    <message>
        <source>Logs gathered successfully</source>
        <translation>Journaux rassemblés</translation>
    </message>
    <message>
        <source>The gathered logs were placed on your desktop.</source>
        <translation>Les journaux rassemblés se trouvent sur votre bureau.</translation>
    </message>
    <message>
        <source>Logs could not be gathered</source>
        <translation>Impossible de rassembler les journaux</translation>
    </message>
    <message>
        <source>Please check your file permissions.</source>
        <translation>Vérifiez vos droits d’accès aux fichiers.</translation>
    </message>
    <message>
        <source>No log found</source>
        <translation>Aucun journal trouvé</translation>
    </message>
    <message>
        <source>You must perform a task before viewing the log.</source>
        <translation>Effectuez une tâche avant de consulter le journal.</translation>
    </message>
    <message>
        <source>You must run the application as a task (e.g. through Cronwick) before viewing a log.</source>
        <translation>Lancez l’application en tant que tâche (avec Cronwick, par exemple) avant de consulter un journal.</translation>
    </message>
</context>
<context>
    <name>ValueCellDelegate</name>
    <message>
        <source>(not set)</source>
        <translation>(non défini)</translation>
    </message>
</context>
<context>
    <name>ValueForms</name>
    <message>
        <source>This must be a whole number.</source>
        <translation>Il faut un nombre entier.</translation>
    </message>
    <message>
        <source>This must be a date as 2026-11-21.</source>
        <translation>Il faut une date, comme 2026-11-21.</translation>
    </message>
    <message>
        <source>“%1” is not among the choices.</source>
        <translation>«&#xa0;%1&#xa0;» ne figure pas parmi les choix.</translation>
    </message>
    <message>
        <source>This may have %1 characters, and has %2.</source>
        <translation>%1 caractères au maximum&#xa0;; il y en a %2.</translation>
    </message>
    <message>
        <source>The parameter’s pattern is wrong: %1</source>
        <translation>Le motif du paramètre est incorrect&#xa0;: %1</translation>
    </message>
    <message>
        <source>This does not fit the pattern %1.</source>
        <translation>Ceci ne correspond pas au motif %1.</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>The file is far too large for what it should be</source>
        <translation>Le fichier est bien trop gros pour ce qu’il devrait être</translation>
    </message>
    <message>
        <source>The file is not a property list</source>
        <translation>Le fichier n’est pas au format plist</translation>
    </message>
    <message>
        <source>A property list cannot hold this value</source>
        <translation>Un fichier plist ne peut pas contenir cette valeur</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tessaro: the window cannot be started; please install Tessaro again. %1</source>
        <translation>Tessaro&#xa0;: impossible d’ouvrir la fenêtre&#xa0;; réinstallez Tessaro. %1</translation>
    </message>
    <message>
        <source>Tessaro: there is no display for the window; “Tessaro create” makes a project without one (see --help).</source>
        <translation>Tessaro&#xa0;: aucun écran pour la fenêtre&#xa0;; «&#xa0;Tessaro create&#xa0;» crée un projet sans elle (voir --help).</translation>
    </message>
</context>
<context>
    <name>platform::GlobalShortcuts</name>
    <message>
        <source>The desktop has ended its global shortcuts.</source>
        <translation>Le bureau a mis fin à ses raccourcis globaux.</translation>
    </message>
    <message>
        <source>The desktop did not give its global shortcuts.</source>
        <translation>Le bureau n’a pas accordé ses raccourcis globaux.</translation>
    </message>
    <message>
        <source>The desktop did not take the shortcuts.</source>
        <translation>Le bureau n’a pas accepté les raccourcis.</translation>
    </message>
</context>
</TS>
