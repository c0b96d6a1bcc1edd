<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>Passwortmanager, Eingabemethoden, Sicherheits- und Geräteverwaltungsdienste, VPNs</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>Die Einstellungen sind nicht lesbar, die Ausnahmeregeln daher unbekannt. Es wurde nichts bereinigt.</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>In den Einstellungen fehlen Ausnahmeregeln. Es wurde nichts bereinigt.</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1 (%2) in den %3 gelegt</numerusform>
            <numerusform>%1 (%2) in den %3 gelegt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 in Verwendung, übersprungen</numerusform>
            <numerusform> · %1 in Verwendung, übersprungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei wiederhergestellt</numerusform>
            <numerusform>%Ln Dateien wiederhergestellt</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>Die Einstellungen sind nicht lesbar, die Ausnahmeregeln daher unbekannt. Es wurde nichts verschoben.</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>Arbeitsdateien, die Apps und das System im laufenden Betrieb anlegen. Sobald die App beendet ist, werden sie nicht mehr gebraucht.</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>App-Caches</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>Daten, die Apps vorhalten, um schneller zu laden. Bei Bedarf legen die Apps sie automatisch neu an.</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Browser-Caches</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>Zwischengespeicherte Bilder, Skripte und Seiten. Anmeldungen, Verlauf, Lesezeichen und Passwörter werden nie angetastet.</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>Protokolle &amp; Absturzberichte</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>Diagnoseprotokolle und Absturzberichte. Nur nützlich, um ein kürzlich aufgetretenes Problem zu untersuchen.</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>Vorschaubilder Ihrer Dateien. Sie werden beim nächsten Öffnen eines Ordners neu erzeugt.</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>Alte Installer</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Entwickler-Caches</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>Caches von Paketverwaltungen und Build-Ergebnisse. Sie können gefahrlos entfernt werden, doch der nächste Build oder die nächste Installation dauert länger.</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>Objekte, die Sie bereits gelöscht haben. Das Leeren lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>QuickLook-Cache</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>Vorschau-Cache</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>Disk-Images und Installationspakete in Ihrem Ordner „Downloads“. Prüfen Sie, ob Sie eines davon noch brauchen.</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>Softwarepakete und Datenträgerabbilder in Ihrem Ordner „Downloads“. Prüfen Sie, ob Sie eines davon noch brauchen.</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>Sicher</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>Endgültig</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>QuickLook-Vorschaubilder</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>Simulator-Caches</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>dauerhaft löschen</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>Der Benutzerordner gehört einem anderen Benutzer. Es wurde nichts bereinigt.</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>Es läuft bereits eine andere Bereinigung.</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>Es lässt sich nicht feststellen, ob eine andere Bereinigung läuft. Es wurde nichts bereinigt.</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>Gefahrlos bereinigbar</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>Vor dem Bereinigen prüfen</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>Unwiderruflich</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>Details werden angezeigt</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 Objekt</numerusform>
            <numerusform>%1 Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1 läuft</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>Nichts zu bereinigen. Neuer Scan jederzeit.</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>Größte Objekte</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Im %1 zeigen</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>%1 weiteres zeigen</numerusform>
            <numerusform>%1 weitere zeigen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>und %1 weiteres Objekt</numerusform>
            <numerusform>und %1 weitere Objekte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;%Ln Datei übersprungen&lt;/b&gt;, da sie in Verwendung oder geschützt war. Beenden Sie die App, die sie verwendet, und scannen Sie neu, um die Datei zu entfernen.</numerusform>
            <numerusform>&lt;b&gt;%Ln Dateien übersprungen&lt;/b&gt;, da sie in Verwendung oder geschützt waren. Beenden Sie die Apps, die sie verwenden, und scannen Sie neu, um die Dateien zu entfernen.</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>Zum Beispiel: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;Caches laufender Apps blieben unangetastet:&lt;/b&gt; %1. Beenden Sie diese Apps und bereinigen Sie erneut, um die Caches einzubeziehen.</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>Bereinigung abgeschlossen</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>Vorher verfügbar</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>Jetzt verfügbar</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>Protokoll anzeigen</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>In den %1 gelegt. Sie können noch alles wiederherstellen.</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>Die Objekte wurden dauerhaft gelöscht.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Als Admin neu starten</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>Einige Ordner erfordern Festplattenvollzugriff.</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>Einige Ordner erfordern eventuell Festplattenvollzugriff.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Einige Dateien gehören dem System und blieben unangetastet.</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>Für diese Dateien sind Administratorrechte nötig.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;Für einige Dateien sind Administratorrechte nötig.&lt;/b&gt; Starten Sie Tarnwick als Administrator neu und bereinigen Sie erneut, um sie zu entfernen.</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>Für einige dieser Ordner haben Sie keine Leseberechtigung.</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 ist geöffnet. Beenden Sie die App, um ihren Cache einzubeziehen.</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>%1 sind geöffnet. Beenden Sie die Apps, um ihre Caches einzubeziehen.</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>Noch nichts gescannt</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>Findet Caches, temporäre Dateien und Überbleibsel.</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>Smart Scan starten</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>Empfohlene auswählen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Neu scannen</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Regeln anzeigen</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>%1 bereinigbar</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; ausgewählt%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · teils nur als Admin</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>wird in den %1 gelegt</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>wird dauerhaft gelöscht</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>%1 bereinigen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;In den Einstellungen fehlen Ausnahmeregeln.&lt;/b&gt; Es wird nichts bereinigt, bis Sie die Regeln geprüft haben.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;Die Einstellungen sind nicht lesbar.&lt;/b&gt; Es wird nichts bereinigt, bis Sie die Ausnahmeregeln geprüft haben.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Objekte geprüft</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>Restzeit</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>gefunden</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Festplattenvollzugriff nötig</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Keine Leseberechtigung</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>Misst, was bereinigt werden könnte, und verändert nichts.</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>Scannt, zeigt, was entfernt würde, fragt nach und bereinigt es.</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>Sucht im Benutzerordner nach großen Dateien und verändert nichts.</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>Misst, woraus der Anteil des Systems am Speicherplatz besteht, und verändert nichts.</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>nur diese Kategorien beachten; eine Bereinigung umfasst dann alle davon, auch solche, die sonst nie ungefragt bereinigt werden</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>nie antasten, was diese Regel nennt, zusätzlich zu den Regeln in den Einstellungen; mehrfach möglich</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>dauerhaft löschen, unabhängig von den Einstellungen</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>nichts antasten; auflisten, was entfernt würde, was bliebe und warum</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>nicht nachfragen</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>nach Dateien suchen, die auf dem Laufwerk mindestens so viele Megabyte belegen, unabhängig von den Einstellungen</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>ein JSON-Objekt auf der Standardausgabe</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>diese Hilfe anzeigen</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>die Version anzeigen</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>Mehr über einen Befehl erfahren Sie mit „%1“.</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>Kategorien: %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>die Option %1 gibt es nicht</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>den Befehl %1 gibt es nicht, nur %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>%1 ist ein Wort zu viel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>„%1“ kennt die Option --%2 nicht</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete und --trash schließen sich gegenseitig aus</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only erwartet Kennungen von Kategorien: %1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>die Kategorie %1 gibt es nicht, nur %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude erwartet eine Regel</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>die Regel %1 trifft auf nichts zu: Ein Pfad beginnt mit / oder ~/ und liegt unterhalb von /, ein Name enthält keinen Schrägstrich</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb erwartet eine Anzahl von Megabyte, nicht %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>Es wurde nichts bereinigt.</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Prüfen Sie die Regeln in den Einstellungen von Tarnwick. Oder reparieren Sie %1, oder entfernen Sie diese Datei zusammen mit %2.</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>der Scan wurde abgebrochen, es wurde nichts bereinigt</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>ohne Terminal ist keine Rückfrage möglich, daher wird ohne --yes nichts bereinigt</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>die Suche wurde abgebrochen</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>die Ausgabe konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Scannen</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 von %2 Datei</numerusform>
            <numerusform>%1 von %2 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>der Scan wurde abgebrochen</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>wird abgebrochen&#xa0;…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>dieses Objekt wird noch abgeschlossen, danach wird gestoppt&#xa0;…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 Datei</translation>
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
        <translation>Nicht alles war lesbar: %1.</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>die Messung wurde abgebrochen</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>Einstufung</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>%1 davon lassen sich gefahrlos bereinigen: tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 läuft, daher bleiben %2 an Daten dieser App erhalten.</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>Bleibt unangetastet, solange nicht ausdrücklich genannt: %1. Zum Bereinigen: --only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>dauerhaft löschen</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>Insgesamt %1 Datei übersprungen; warum, steht im Protokoll:</numerusform>
            <numerusform>Insgesamt %1 Dateien übersprungen; warum, steht im Protokoll:</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>Unangetastet, da gerade geöffnet: %1.</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>In %1 gescannt. Es wurde nichts verändert.</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>Es gibt nichts zu bereinigen.</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>%1 dauerhaft löschen?</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>Dies war ein Probelauf: Es wurde nichts angetastet.</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 freigegeben, %2 entfernt.</numerusform>
            <numerusform>%1 freigegeben, %2 entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Einige Dateien gehören dem System und blieben unangetastet.</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Protokoll: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>Datei</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>Aufgelistet sind die größten %1 von %2 Datei.</numerusform>
            <numerusform>Aufgelistet sind die größten %1 von %2 Dateien.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Keine Datei im Benutzerordner belegt %1 oder mehr.</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>%1 in %2 durchsucht. Es wurde nichts verändert.</numerusform>
            <numerusform>%1 in %2 durchsucht. Es wurde nichts verändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Festplattenvollzugriff nötig</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Keine Leseberechtigung</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Am größten: %1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Das können Sie freigeben</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Von macOS verwaltet</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Vom System verwaltet</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>%1 davon können Sie freigeben.</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>In %1 gemessen. Es wurde nichts verändert.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>in den %1 legen, unabhängig von den Einstellungen</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>%1 davon liegen auf einem Volume ohne %2 und bleiben dort, sofern Sie nicht --delete angeben.</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>in den %1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Was in den %1 gelegt wurde, belegt weiter Speicherplatz, bis Sie ihn leeren.</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>%2 in den %3 legen?</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>%1 dauerhaft löschen und %2 in den %3 legen?</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>j ja</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)</extracomment>
        <translation>[j/N]</translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation>%1 bereinigbar</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>%1 belegt</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>%1 belegt</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>belegt</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>Disk-Image</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>Teil-Download</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>aufsteigend</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>absteigend</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>Belegungskarte</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>Neu scannen</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>Finden Sie heraus, was Platz belegt</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>Große Dateien in Ihrem Benutzerordner. Sie entscheiden, was entfernt wird.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Große Dateien suchen</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>Benutzerordner · über %1</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Ungenutzt</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Im %1 zeigen</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>In den %1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Dateien suchen</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Größte Dateien</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1+ Monat ungenutzt</numerusform>
            <numerusform>%1+ Monate ungenutzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; von %3 gewählt · %4 Datei</numerusform>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; von %3 gewählt · %4 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>Suche nach großen Dateien&#xa0;…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>Bisher größte Dateien</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>Sortieren nach</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 stammt nicht von Tarnwick und wurde nicht verändert. Entfernen Sie diese Datei, damit sich Tarnwick bei der Anmeldung öffnet.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>%1 kann nicht geschrieben werden. Tarnwick öffnet sich daher nicht bei der Anmeldung.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>%1 kann nicht entfernt werden. Tarnwick öffnet sich daher weiterhin bei der Anmeldung.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick wurde auf Version %1 aktualisiert.</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>%1 ist fast voll. Starten Sie Smart Scan, um Speicherplatz freizugeben.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Tarnwick-Website</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>Über Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick beenden</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Smart Scan</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Große Dateien suchen</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Belegungskarte</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Systemdaten</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Seitenleiste ausblenden</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Vollbildmodus</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Alle nach vorne bringen</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>Häufige Fragen</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>Menü öffnen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkombinationen</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>Seitenleiste einblenden</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Vollbildmodus beenden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 die Tarnwick-Autoren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>Auswahl merken</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>Tarnwick weiterlaufen lassen?</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>Tarnwick kann im Infobereich bleiben, wenn Sie das Fenster schließen, damit geplante Scans und Speicherplatzwarnungen weiter funktionieren. Über das Symbol im Infobereich öffnen Sie es wieder.</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>Das lässt sich in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>Im Infobereich lassen</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>Dauerhaftes Löschen ist aktiviert. Diese Dateien lassen sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Was bereits im %1 liegt, wird unwiderruflich gelöscht. Alles andere wird in den %1 gelegt.</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>Alles wird in den %1 gelegt und lässt sich später wiederherstellen.</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>Bereinigen und löschen</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>%1 bereinigen?</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>%1 davon bleiben erhalten: Auf ihrem Volume gibt es keinen %2.</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>%1 davon bleiben erhalten, solange diese Apps geöffnet sind: %2.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkombinationen</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>Version %1 ist verfügbar. Sie verwenden %2.</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>Ein Update ist verfügbar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Update wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>Ziehen Sie Tarnwick in dem Fenster, das sich öffnet, auf „Programme“, um diese Version zu ersetzen.</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>Ihr Dateimanager öffnet den Ordner mit dem geladenen Paket. Installieren Sie es wie andere Pakete auch.</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Tarnwick ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>Version %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Update-Suche fehlgeschlagen</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Update wird installiert&#xa0;…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates&#xa0;…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>Version %1 ist installiert.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>Scan: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Smart Scan</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Neu scannen</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>Laufwerkszustand</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>Systemdateien geschützt</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>In %1 Monat bereinigt</numerusform>
            <numerusform>In den letzten %1 Monaten bereinigt</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Geplanter Scan</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>von %1 frei</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 bereit zur Bereinigung</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>Ihr Systemlaufwerk ist fast voll</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>Halten Sie Ihr Laufwerk in Form</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 löschbar</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>Apps, Dokumente &amp; System</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>Bereinigbar</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>Nie gescannt</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>Letzter Scan</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>Im Monat bereinigt</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>Top-Empfehlungen</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>Was Smart Scan prüft</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>Systemlaufwerk</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
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
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>A key</extracomment>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>A key</extracomment>
        <translation>Umschalt</translation>
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
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>Administratorzugriff</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick läuft als Administrator und kann Dateien von Windows Update bereinigen.</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>Erteilt</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Nur nötig, um Überbleibsel von Windows Update zu bereinigen.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Als Admin neu starten</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Festplattenvollzugriff</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Nötig, um den Safari-Cache und den Papierkorb zu bereinigen.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>Systemstandard (%1)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>Automatisierung</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>Ausnahmen</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>Berechtigungen &amp; Info</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Objekte in den %1 legen</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>Empfohlen. Ausschalten, um Dateien dauerhaft zu löschen.</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>Große Dateien ab</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>Größere Dateien erscheinen in der Belegungskarte.</translation>
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
        <translation>Altersgrenze für Dateien</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>Gilt für den Filter „Ungenutzt“.</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 Monate</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 Monate</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 Monate</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 Monate</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Geplanter Scan</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>Scannt beim Start von Tarnwick, wenn der letzte Scan länger als hier gewählt zurückliegt. Bereinigt nie von selbst.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>Speicherplatzwarnungen</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>Warnen, wenn weniger als 10&#xa0;% Speicherplatz frei sind.</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Bei der Anmeldung öffnen</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Mit Windows starten</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>Startet Tarnwick im Hintergrund, damit geplante Scans laufen können.</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>Tarnwick im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>Tarnwick in der Menüleiste anzeigen</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>Nach dem Schließen des Fensters läuft Tarnwick dort weiter, damit geplante Scans und Speicherplatzwarnungen weiter funktionieren.</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>Jedes Mal fragen</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>Im Infobereich weiterlaufen</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick beenden</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>Beim Schließen des Fensters</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>Im Infobereich läuft Tarnwick weiter, damit geplante Scans und Speicherplatzwarnungen weiter funktionieren.</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>Dem System folgen oder immer hell oder dunkel verwenden.</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>Zum Wechseln der Sprache startet Tarnwick neu.</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>Geschützte Systembereiche</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation> – werden immer übersprungen.</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>Geschützte Apps</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation> – ihre Daten werden nie bereinigt. Auch Caches laufender Apps und geöffnete Dateien werden übersprungen.</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>Protokolle öffnen</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>Jede Bereinigung wird protokolliert und lässt sich nachlesen. Tarnwick sucht beim Start nach Updates.</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>Jede Bereinigung wird protokolliert und lässt sich nachlesen.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;In den Einstellungen fehlen Regeln.&lt;/b&gt; Prüfen Sie, ob dies alle Ihre Regeln sind, und ergänzen Sie, was fehlt. Bis dahin wird nichts bereinigt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;Die Einstellungen sind nicht lesbar.&lt;/b&gt; Prüfen Sie, ob dies alle Ihre Regeln sind, und ergänzen Sie, was fehlt. Bis dahin wird nichts bereinigt, und die beschädigte Datei bleibt erhalten.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>Nie antasten</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Ordner und Muster, die Tarnwick immer überspringt.</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>Das sind meine Regeln</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>Ordner wählen, der ausgenommen werden soll</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>Die Regeln bleiben erhalten. Die beschädigte Einstellungsdatei liegt weiterhin neben der neuen.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>Die Einstellungen können nicht geschrieben werden und bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%1 von %2 verfügbar</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>Seitenleiste ausklappen</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Smart Scan</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Belegungskarte</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Systemdaten</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>Seitenleiste einklappen</translation>
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
        <translation>Wartet</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Im Finder prüfen</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>Snapshots entfernen</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>Nicht verfügbare löschen</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>Zur Bereinigung</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Xcode öffnen</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Objekt</numerusform>
            <numerusform>%1 Objekte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>%1 in den Papierkorb gelegt, bei %2 nicht möglich</numerusform>
            <numerusform>%1 in den Papierkorb gelegt, bei %2 nicht möglich</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>Nichts zu verschieben</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 in den Papierkorb gelegt</numerusform>
            <numerusform>%1 in den Papierkorb gelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>Es sind keine lokalen Snapshots zum Entfernen vorhanden</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>Die Snapshots wurden nicht entfernt</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>%1 von %2 Snapshot entfernt</numerusform>
            <numerusform>%1 von %2 Snapshots entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>Bereinigung der Simulatoren fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>Keine nicht verfügbaren Simulatorgeräte – nichts zu löschen</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>1 nicht verfügbares Simulatorgerät gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>%1 nicht verfügbares Simulatorgerät gelöscht</numerusform>
            <numerusform>%1 nicht verfügbare Simulatorgeräte gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>Xcode ist nicht installiert</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>Ihre App-Caches</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Caches, die Apps in Ihrem Cache-Ordner ablegen. Die sicheren lassen sich unter „Bereinigung“ entfernen.</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>Verborgene Ordner im Benutzerordner</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Caches, Einstellungen und Installationen, die Entwicklerwerkzeuge und Apps in verborgenen Ordnern wie .npm, .cargo und .nvm ablegen. Caches können gefahrlos geleert werden; installierte Werkzeuge sollten Sie behalten.</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Daten von Flatpak-Apps</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>Einstellungen, Dateien und Caches Ihrer Flatpak-Apps; jede App hat ihre eigenen. „flatpak uninstall --delete-data“ entfernt die von Apps, die nicht mehr installiert sind.</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>Ihre Flatpak-Apps und Laufzeitumgebungen</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps, die Flatpak nur für Sie installiert hat, und die dafür nötigen Laufzeitumgebungen. „flatpak uninstall --user --unused“ entfernt Laufzeitumgebungen, die keine App mehr braucht.</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>Container und Images</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Images, Container und Volumes von Docker und Podman. „docker system prune“ und „podman system prune“ entfernen, was kein Container verwendet.</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>Virtuelle Maschinen</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>Festplattenabbilder virtueller Maschinen, verwaltet von dem Programm, das sie angelegt hat. Löschen Sie eine Maschine dort oder mit „virsh undefine --remove-all-storage“.</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>Spielebibliotheken</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Spiele, die Steam und andere Launcher verwalten. Deinstallieren Sie ein Spiel in seinem Launcher.</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>Datenbanken und Dateien, die Apps für Sie verwalten, sowie Ihr Papierkorb. Entfernen Sie die Daten einer App in der App selbst oder nach der Deinstallation.</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>Einstellungen Ihrer Apps</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>Einstellungen, die Apps für Sie speichern; manche legen dort auch Profile und Caches ab. Ohne ihre Einstellungen startet eine App wie neu installiert.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>Systemjournal</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>Das Protokoll des Systems und seiner Dienste, dessen Größe journald begrenzt. „journalctl --vacuum-size=200M“ verkleinert es sofort.</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>Systemprotokolle</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>Protokolldateien von Diensten und der Paketverwaltung. Ältere werden von logrotate komprimiert und gelöscht.</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>Absturzabbilder</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>Der Speicherinhalt abgestürzter Programme, aufbewahrt für Fehlerberichte. Ältere löscht das System; „coredumpctl“ listet sie auf.</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>Geladene Pakete</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>Pakete, die die Paketverwaltung geladen und bereits installiert hat. „apt-get clean“, „dnf clean packages“, „pacman -Sc“ oder „zypper clean“ entfernt sie.</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Snap-Pakete und alte Revisionen</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Snap-Pakete samt früheren Revisionen, die snapd für eine Rückkehr vorhält. Mit „snap set system refresh.retain=2“ werden es weniger.</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>Flatpak-Apps und Laufzeitumgebungen des Systems</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps, die Flatpak für alle Benutzer installiert hat, und die dafür nötigen Laufzeitumgebungen. „flatpak uninstall --unused“ entfernt Laufzeitumgebungen, die keine App mehr braucht.</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>Kernel und ihre Module</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>Die Kernel, mit denen das System starten kann, samt ihren Treibern. Die Paketverwaltung behält die neuesten; „apt-get autoremove“ entfernt ältere.</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>Auslagerungs- und Ruhezustandsdateien</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>Platz auf dem Laufwerk für alles, was nicht in den Arbeitsspeicher passt, und im Ruhezustand für den Arbeitsspeicher selbst. Die Größe ist in der Systemkonfiguration festgelegt; „swapon --show“ zeigt sie an.</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>System-Snapshots</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>Frühere Systemzustände, die Timeshift oder Snapper aufbewahrt. Unverändertes teilen sie sich, daher haben sie keine eigene Größe; „timeshift --delete“ oder „snapper delete“ entfernt einen davon.</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Lokale Time Machine-Snapshots</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Stündliche Snapshots, die macOS auf diesem Laufwerk aufbewahrt, bis Time Machine das Backup-Laufwerk erreicht. Bei Platzmangel gibt macOS sie frei; Sie können sie gefahrlos schon jetzt entfernen, verlieren aber diese Wiederherstellungspunkte.</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>iPhone- &amp; iPad-Backups</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Gerätebackups, die der Finder erstellt hat. Löschen Sie ältere im Finder (Allgemein → Backups verwalten), sobald es ein neueres oder ein iCloud-Backup gibt.</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Xcode-Geräteunterstützung</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Debug-Symbole, die Xcode von jeder iOS-, watchOS- und tvOS-Version der Geräte kopiert, die Sie verbunden haben. Xcode kopiert sie erneut, wenn Sie das Gerät wieder verbinden.</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>iOS-Simulatorgeräte</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>Simulatorgeräte und ihre App-Daten. Nicht verfügbare Geräte (deren Laufzeitumgebung nicht mehr vorhanden ist) können gefahrlos entfernt werden.</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>Simulator-Laufzeitumgebungen &amp; Caches</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Simulator-Laufzeitumgebungen für iOS, watchOS und visionOS, die Xcode geladen hat, samt gemeinsamen Caches. Nicht benötigte entfernen Sie in Xcode › Settings › Components.</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Caches, die Apps in Ihrem Ordner „Library“ ablegen. Die sicheren lassen sich unter „Bereinigung“ entfernen.</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Caches, Einstellungen und Installationen, die Entwicklerwerkzeuge und Apps in verborgenen Ordnern wie .cache, .npm und .nvm ablegen. Caches können gefahrlos geleert werden; installierte Werkzeuge sollten Sie behalten.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Xcode-Archive</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>Builds, die Sie für die Verteilung archiviert haben. Behalten Sie solche, die Sie vielleicht noch zum Symbolisieren von Absturzberichten brauchen.</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Docker-Disk-Image</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>Das virtuelle Laufwerk mit den Images und Containern von Docker. Verkleinern Sie es mit „docker system prune“ oder in den Einstellungen von Docker Desktop.</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>Mail-Anhänge</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>Anhänge, die Mail nach dem Öffnen gesichert hat. Die Originale bleiben in Ihrem Postfach.</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>Nachrichten-Anhänge</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>Fotos, Videos und Dateien aus Ihren Konversationen. Entfernen Sie große Anhänge in „Nachrichten“ (Einstellungen → Allgemein → Speicher), damit die Chats konsistent bleiben.</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>System-Caches</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>Caches, die sich alle Benutzer und Systemdienste teilen. macOS verkleinert sie selbst.</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>Systemprotokolle &amp; Diagnose</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>Systemweite Protokolle und Diagnoseberichte. macOS legt sie regelmäßig neu an und löscht alte automatisch.</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>Virtueller Speicher &amp; Ruhezustand</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>Auslagerungsdateien und das Ruhezustandsabbild. Sie wachsen und schrumpfen mit der Speichernutzung und werden beim Neustart zurückgesetzt.</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>macOS-Ressourcen &amp; Updates</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>Geladene Systemressourcen (Schriften, Wörterbücher, Sprach- und KI-Modelle) und vorbereitete Softwareupdates.</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>Andere Library-Daten</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>Alles Übrige in Ihrem Ordner „Library“: Einstellungen, Schlüsselbunde, Protokolle und Daten von Systemdiensten.</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>Systemdatenbanken &amp; temporäre Dateien</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>Datenbanken und App-eigene temporäre Ordner, die macOS-Dienste verwenden. macOS verwaltet sie.</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>App-Daten &amp; Container</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>Einstellungen, Datenbanken und Dateien, die Apps für Sie verwalten. Die Daten einer App entfernen Sie in der App selbst oder durch deren Deinstallation.</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 Snapshot</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 Snapshot</numerusform>
            <numerusform>%1 Snapshots</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Keine Leseberechtigung</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 Gerät</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 Gerät</numerusform>
            <numerusform>%1 Geräte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>Systemdaten</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>Neu scannen</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>Sehen Sie, was in den Systemdaten steckt</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>Snapshots, Backups, Entwicklerdateien, Caches und mehr.</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>Systemdaten scannen</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>Systemdaten gemessen · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; können Sie freigeben</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>In Arbeit&#xa0;…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Wird aktualisiert&#xa0;…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Das können Sie freigeben</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>Systemdaten werden gemessen&#xa0;…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS entfernt seine lokalen Time Machine-Snapshots auf diesem Laufwerk. Ihre Time Machine-Backups auf anderen Laufwerken sind davon nicht betroffen. macOS fragt nach Ihrem Administratorpasswort.</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>Simulatorgeräte, deren iOS-Laufzeitumgebung nicht mehr installiert ist, werden samt ihren Apps und Daten gelöscht.</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>%1 werden in den Papierkorb gelegt. Xcode legt die Daten neu an, wenn Sie wieder ein Gerät verbinden.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Festplattenvollzugriff nötig</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Keine Leseberechtigung</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Am größten: %1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Von macOS verwaltet</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Vom System verwaltet</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>Gezählt wird nur, was Sie lesen dürfen. Ordner, die dem System oder anderen Benutzern gehören, bleiben außen vor, und Ordner, die zu mehreren Zeilen gehören, werden nur einmal gezählt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;Warum die Speichereinstellungen einen höheren Wert zeigen&lt;/b&gt;&lt;br&gt;Für macOS sind Systemdaten alles, was nach Abzug von Apps, Dokumenten, Fotos und den anderen Kategorien auf dem Laufwerk übrig bleibt. In diesem Rest steckt auch, was keine App messen kann: der Spotlight-Index, APFS-Snapshots, löschbarer Speicherplatz und Systemdateien, die nur root lesen darf. Ohne Festplattenvollzugriff sieht Tarnwick außerdem keine geschützten Ordner. Die Summe liegt daher unter dem Wert, den macOS angibt.</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>%1?</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Tarnwick öffnen</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Smart Scan</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Große Dateien suchen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick beenden</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · %2 frei</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>Das Update konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>Der Server hat zu lange nicht geantwortet.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>Die Update-Informationen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>Der Server hat auf eine unsichere Adresse umgeleitet.</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>Zu viele Umleitungen.</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>Das Update liegt nicht auf dem Server von Tarnwick.</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>Das Update hat eine unerwartete Größe.</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Das Update konnte nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Das Update konnte nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>Das Update konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>Das Update stimmt nicht mit der veröffentlichten Prüfsumme überein.</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>Das Update ist nicht von %1 signiert.</translation>
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
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>Vor %n Tag</numerusform>
            <numerusform>Vor %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>Vor %n Woche</numerusform>
            <numerusform>Vor %n Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>Vor %n Monat</numerusform>
            <numerusform>Vor %n Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>Vor %n Jahr</numerusform>
            <numerusform>Vor %n Jahren</numerusform>
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
