<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>Gestionnaires de mots de passe, méthodes de saisie, agents de sécurité et de gestion d’appareils, VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>Les réglages sont illisibles&#xa0;: les règles d’exclusion sont donc inconnues. Rien n’a été nettoyé.</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>Des règles d’exclusion ont disparu des réglages. Rien n’a été nettoyé.</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1 (%2) mis à la %3</numerusform>
            <numerusform>%1 (%2) mis à la %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 en cours d’utilisation, ignoré</numerusform>
            <numerusform> · %1 en cours d’utilisation, ignorés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier restauré</numerusform>
            <numerusform>%Ln fichiers restaurés</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>Les réglages sont illisibles&#xa0;: les règles d’exclusion sont donc inconnues. Rien n’a été déplacé.</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>Fichiers temporaires</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>Fichiers de travail créés par les apps et le système. Ils ne servent plus une fois l’app fermée.</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>Caches d’apps</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>Données que les apps conservent pour s’ouvrir plus vite. Elles les recréent d’elles-mêmes dès qu’elles en ont besoin.</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Caches de navigateurs</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>Images, scripts et pages en cache. Vos connexions, votre historique, vos signets et vos mots de passe ne sont jamais touchés.</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>Journaux et plantages</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>Journaux de diagnostic et rapports de plantage. Utiles seulement pour résoudre un problème récent.</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>Aperçus de vos fichiers. Ils sont recréés à la prochaine ouverture d’un dossier.</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>Anciens installateurs</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Caches développeur</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>Caches des gestionnaires de paquets et résultats de compilation. Vous pouvez les supprimer sans risque, mais la prochaine compilation ou installation sera plus lente.</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>Éléments que vous avez déjà supprimés. Vider la Corbeille est irréversible.</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>Cache Coup d’œil</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>Cache de vignettes</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>Images disque et paquets d’installation de votre dossier Téléchargements. Vérifiez que vous n’en avez plus besoin.</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>Paquets logiciels et images disque de votre dossier Téléchargements. Vérifiez que vous n’en avez plus besoin.</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>Sûr</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>Définitif</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>Vignettes Coup d’œil</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>Caches du simulateur</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>Corbeille</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>supprimer définitivement</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>Le dossier personnel appartient à un autre utilisateur. Rien n’a été nettoyé.</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>Un autre nettoyage est déjà en cours.</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>Impossible de savoir si un autre nettoyage est en cours. Rien n’a été nettoyé.</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>Nettoyage sans risque</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>À vérifier avant nettoyage</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>Irréversible</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>Détails affichés</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 élément</numerusform>
            <numerusform>%1 éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>Utilisé par %1</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>Plus rien à nettoyer. Réanalysez au besoin.</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>Les plus gros</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Voir dans %1</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>Afficher %1 de plus</numerusform>
            <numerusform>Afficher %1 de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>et %1 autre élément</numerusform>
            <numerusform>et %1 autres éléments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;%Ln fichier ignoré&lt;/b&gt;, car en cours d’utilisation ou protégé. Quittez l’app qui l’utilise et relancez l’analyse pour le supprimer.</numerusform>
            <numerusform>&lt;b&gt;%Ln fichiers ignorés&lt;/b&gt;, car en cours d’utilisation ou protégés. Quittez les apps qui les utilisent et relancez l’analyse pour les supprimer.</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>Par exemple&#xa0;: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;Caches d’apps en cours d’exécution laissés de côté&#xa0;:&lt;/b&gt; %1. Quittez ces apps et relancez le nettoyage pour les inclure.</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>Nettoyage terminé</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>Disponible avant</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>Disponible maintenant</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>Voir le journal</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>Mis à la %1. Vous pouvez encore tout restaurer.</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>Les éléments ont été supprimés définitivement.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Relancer comme admin</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>Certains dossiers nécessitent l’accès complet au disque.</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>Certains dossiers peuvent nécessiter l’accès complet au disque.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Ouvrir Réglages Système</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Certains fichiers appartiennent au système et ont été laissés de côté.</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>Ces fichiers nécessitent des droits d’administrateur.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;Certains fichiers nécessitent des droits d’administrateur.&lt;/b&gt; Relancez Tarnwick en tant qu’administrateur, puis recommencez le nettoyage pour les supprimer.</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>Vous n’avez pas le droit de lire certains de ces dossiers.</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 est en cours d’exécution. Quittez cette app pour inclure son cache.</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>%1 sont en cours d’exécution. Quittez ces apps pour inclure leurs caches.</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>Rien n’a encore été analysé</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>Trouvez les caches, les fichiers temporaires et les résidus.</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>Lancer l’analyse intelligente</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>En cours</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>Sélection recommandée</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Voir les règles</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>%1 à nettoyer</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>Sélection&#xa0;: &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · droits d’admin parfois requis</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>mise à la %1</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>suppression définitive</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>Nettoyer %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;Des règles d’exclusion ont disparu des réglages.&lt;/b&gt; Rien ne sera nettoyé tant que vous n’aurez pas vérifié vos règles.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;Les réglages sont illisibles.&lt;/b&gt; Rien ne sera nettoyé tant que vous n’aurez pas vérifié les règles d’exclusion.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Examinés</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>Écoulé</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>Restant</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>trouvés</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Accès complet requis</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Lecture refusée</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>Mesure ce qui pourrait être nettoyé, sans rien modifier.</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>Analyse, montre ce qui partirait, demande confirmation, puis nettoie.</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>Recherche les gros fichiers du dossier personnel, sans rien modifier.</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>Mesure ce qui compose la part du disque occupée par le système, sans rien modifier.</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>n’examiner que ces catégories&#xa0;; le nettoyage les prend alors toutes, même celles qui ne sont jamais nettoyées sans être demandées</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>ne jamais toucher à ce que désigne cette règle, en plus des règles enregistrées dans les réglages&#xa0;; option répétable</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>supprimer définitivement, quels que soient les réglages</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>ne toucher à rien&#xa0;; lister ce qui partirait, ce qui resterait et pourquoi</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>ne pas demander de confirmation</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>chercher les fichiers qui occupent au moins ce nombre de mégaoctets sur le disque, quels que soient les réglages</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>un seul objet JSON sur la sortie standard</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>afficher cette aide</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>Tapez «&#xa0;%1&#xa0;» pour en savoir plus sur une commande.</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>Catégories&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>l’option %1 n’existe pas</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>la commande %1 n’existe pas&#xa0;; commandes possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>%1 est de trop</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>«&#xa0;%1&#xa0;» n’accepte pas l’option --%2</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete et --trash s’excluent mutuellement</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only attend des identifiants de catégories&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>la catégorie %1 n’existe pas&#xa0;; catégories possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude attend une règle</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>la règle %1 ne correspond à rien&#xa0;: un chemin commence par / ou ~/ et se trouve sous /, un nom ne contient pas de barre oblique</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb attend un nombre de mégaoctets, pas %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>Rien n’a été nettoyé.</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Vérifiez les règles dans les réglages de Tarnwick&#xa0;; sinon, réparez %1, ou supprimez ce fichier en même temps que %2.</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>l’analyse a été annulée, et rien n’a été nettoyé</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>aucun terminal où demander confirmation&#xa0;: rien n’est nettoyé sans --yes</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>la recherche a été annulée</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>impossible d’écrire la sortie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Analyse</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 sur %2 fichier</numerusform>
            <numerusform>%1 sur %2 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>l’analyse a été annulée</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>annulation…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>fin de l’élément en cours, puis arrêt…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>Tout n’a pas pu être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>la mesure a été annulée</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>Évaluation</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>Dont %1 à nettoyer sans risque&#xa0;: tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 est en cours d’exécution&#xa0;: une partie de ses données (%2) restera en place.</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>Laissé de côté sauf demande expresse&#xa0;: %1. Pour le nettoyer&#xa0;: --only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>suppression définitive</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>%1 élément ignoré&#xa0;; le journal dit pourquoi&#xa0;:</numerusform>
            <numerusform>%1 éléments ignorés&#xa0;; le journal dit pourquoi&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>Laissées de côté, car en cours d’exécution&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>Analyse effectuée en %1. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>Il n’y a rien à nettoyer.</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>Supprimer définitivement %1&#xa0;?</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>Ceci était une simulation&#xa0;: rien n’a été touché.</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>Espace libéré&#xa0;: %1&#xa0;; %2 supprimé.</numerusform>
            <numerusform>Espace libéré&#xa0;: %1&#xa0;; %2 supprimés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Certains fichiers appartiennent au système et ont été laissés de côté.</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Journal&#xa0;: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernière utilisation</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>Fichier</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>Seuls les %1 plus gros fichiers sur %2 sont affichés.</numerusform>
            <numerusform>Seuls les %1 plus gros fichiers sur %2 sont affichés.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Aucun fichier du dossier personnel n’occupe %1 ou plus.</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>%1 examiné en %2. Rien n’a été modifié.</numerusform>
            <numerusform>%1 examinés en %2. Rien n’a été modifié.</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Accès complet au disque requis</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Lecture refusée</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Les plus gros&#xa0;: %1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Espace récupérable</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Géré par macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Géré par le système</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Vous pouvez agir sur %1 de ce total.</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>Mesure effectuée en %1. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>mettre à la %1, quels que soient les réglages</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>Une partie (%1) se trouve sur un volume sans %2 et restera en place, sauf avec --delete.</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>mise à la %1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Ce qui a été mis à la %1 occupe de la place tant que vous ne la videz pas.</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>Mettre %2 à la %3&#xa0;?</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>Supprimer définitivement %1 et mettre %2 à la %3&#xa0;?</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>o oui</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)</extracomment>
        <translation>[o/N]</translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation>%1 à nettoyer</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>%1 utilisés</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>%1 utilisés</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>utilisés</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>Image disque</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>Téléchargement partiel</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>Fichier</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>ordre croissant</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>ordre décroissant</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>Carte du disque</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>Trouvez ce qui prend de la place</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>Les gros fichiers de votre dossier personnel. C’est vous qui décidez de ce qui part.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Trouver les gros fichiers</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>Dossier personnel · plus de %1</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Inutilisés</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Voir dans %1</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>Mettre à la %1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Rechercher des fichiers</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Plus gros fichiers</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>Inutilisés depuis %1 mois</numerusform>
            <numerusform>Inutilisés depuis %1 mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; sur %3 · %4 fichier</numerusform>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; sur %3 · %4 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>Recherche des gros fichiers…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Gros fichiers</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>Les plus gros à ce stade</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>Trier par</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 ne vient pas de Tarnwick et n’a pas été modifié. Supprimez ce fichier pour ouvrir Tarnwick avec la session.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>Impossible d’écrire %1&#xa0;: Tarnwick ne s’ouvrira pas avec la session.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>Impossible de supprimer %1&#xa0;: Tarnwick s’ouvrira encore avec la session.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick a été mis à jour vers la version %1.</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>Le volume «&#xa0;%1&#xa0;» est presque saturé. Lancez l’analyse intelligente pour libérer de l’espace.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Site web de Tarnwick</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>À propos de Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Quitter Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Analyse intelligente</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Voir les gros fichiers</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Carte du disque</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Données système</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Masquer la barre latérale</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Passer en plein écran</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Tout ramener au premier plan</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>Guide</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>FAQ</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>Ouvrir le menu</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>Afficher la barre latérale</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher les mises à jour</translation>
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
        <translation>© 2026 les auteurs de Tarnwick</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>Mémoriser mon choix</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>Garder Tarnwick actif&#xa0;?</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>Tarnwick peut rester dans la zone de notification lorsque vous fermez la fenêtre&#xa0;: les analyses programmées et les alertes d’espace disque faible continuent ainsi de fonctionner. Vous pourrez le rouvrir depuis son icône.</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>Vous pourrez modifier ce choix dans les réglages.</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>Garder actif</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>La suppression définitive est activée. Ces fichiers ne pourront pas être récupérés.</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Vider la %1 est irréversible. Tout le reste sera mis à la %1.</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>Tout sera mis à la %1&#xa0;: vous pourrez le restaurer plus tard.</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>Nettoyer et supprimer</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>Nettoyer %1&#xa0;?</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>Une partie (%1) restera en place&#xa0;: il n’y a pas de %2 sur son volume.</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>Une partie (%1) restera en place tant que ces apps sont ouvertes&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>La version %1 est disponible. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>Une mise à jour est disponible</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Téléchargement de la mise à jour…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>Dans la fenêtre qui s’ouvre, faites glisser Tarnwick vers Applications pour remplacer cette version.</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>Votre gestionnaire de fichiers ouvre le dossier contenant le paquet téléchargé. Installez-le comme vous en avez l’habitude.</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Tarnwick est à jour</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Impossible de rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Vérifiez votre connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Installation de la mise à jour…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>La version %1 est installée.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>Analysé %1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>Hebdomadaire</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensuelle</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Analyse intelligente</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>État du disque</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>Système protégé</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>Espace libéré depuis %1 mois</numerusform>
            <numerusform>Espace libéré depuis %1 mois</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>Tout voir</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Analyse programmée</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>libres sur %1</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 à nettoyer</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>Votre disque de démarrage est presque saturé</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>Prenez soin de votre disque</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 purgeables</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>Apps, documents et système</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>Récupérable</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>Jamais analysé</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>Dernière analyse</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>Libéré ce mois</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>Principales recommandations</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>Ce que l’analyse intelligente examine</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>Disque système</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>le Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Corbeille</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Meta</source>
        <extracomment>A key</extracomment>
        <translation>Méta</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Locked</source>
        <extracomment>Beside a rule that can not be changed</extracomment>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>Accès administrateur</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick s’exécute en tant qu’administrateur et peut nettoyer les fichiers de Windows Update.</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>Accordé</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Nécessaire uniquement pour nettoyer les résidus de Windows Update.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Relancer comme admin</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Accès complet au disque</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Nécessaire pour nettoyer le cache de Safari et la Corbeille.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>Langue du système (%1)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>Automatisation</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>Exclusions</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>Autorisations et à propos</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Mettre les éléments à la %1</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>Recommandé. Désactivez cette option pour supprimer les fichiers définitivement.</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>Seuil des gros fichiers</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>Les fichiers dépassant cette taille apparaissent dans la carte du disque.</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation>100&#xa0;Mo</translation>
    </message>
    <message>
        <source>250 MB</source>
        <translation>250&#xa0;Mo</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation>500&#xa0;Mo</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1&#xa0;Go</translation>
    </message>
    <message>
        <source>Consider files old after</source>
        <translation>Fichiers jugés anciens après</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>Utilisé par le filtre «&#xa0;Inutilisés&#xa0;».</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 mois</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 mois</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 mois</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 mois</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Analyse programmée</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>Lance une analyse au démarrage de Tarnwick si la dernière est plus ancienne que ce délai. Ne nettoie jamais de sa propre initiative.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Hebdomadaire</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensuelle</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>Alertes d’espace disque faible</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>Prévenir lorsque l’espace libre passe sous les 10&#xa0;%.</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Ouvrir avec la session</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Démarrer avec Windows</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>Ouvre Tarnwick en arrière-plan pour permettre les analyses programmées.</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>Afficher Tarnwick dans la zone de notification</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>Afficher Tarnwick dans la barre des menus</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>Une fois la fenêtre fermée, Tarnwick y reste actif&#xa0;: les analyses programmées et les alertes d’espace disque faible continuent de fonctionner.</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>Toujours demander</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>Garder dans la zone de notification</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Quitter Tarnwick</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>À la fermeture de la fenêtre</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>Dans la zone de notification, Tarnwick reste actif&#xa0;: les analyses programmées et les alertes d’espace disque faible continuent de fonctionner.</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>Suivre le système, ou toujours utiliser le thème clair ou sombre.</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Relancer maintenant</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>Tarnwick se relance pour changer de langue.</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>Emplacements système protégés</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation> — toujours ignorés.</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>Apps protégées</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation> — leurs données ne sont jamais nettoyées. Les caches des apps en cours d’exécution et les fichiers ouverts sont ignorés eux aussi.</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>Ouvrir les journaux</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>Chaque nettoyage laisse un journal que vous pouvez consulter. Tarnwick recherche les mises à jour à son démarrage.</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>Chaque nettoyage laisse un journal que vous pouvez consulter.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;Des règles ont disparu des réglages.&lt;/b&gt; Vérifiez que toutes les vôtres sont là et rétablissez celles qui manquent. D’ici là, rien ne sera nettoyé.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;Les réglages sont illisibles.&lt;/b&gt; Vérifiez que toutes vos règles sont là et rétablissez celles qui manquent. D’ici là, rien ne sera nettoyé et le fichier endommagé restera en place.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>À ne jamais toucher</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Dossiers et motifs que Tarnwick ignore toujours.</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>Ce sont mes règles</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>Choisissez un dossier à exclure</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>Les règles sont conservées. Le fichier de réglages endommagé reste à côté du nouveau.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>Impossible d’enregistrer les réglages&#xa0;: ils restent tels quels.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>Retirer %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%1 disponibles sur %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>Déployer la barre latérale</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Analyse intelligente</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Carte du disque</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Données système</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>Replier la barre latérale</translation>
    </message>
</context>
<context>
    <name>StackBar</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Said by a screen reader; %1: what takes space; %2: its share, such as “62%”</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StepBar</name>
    <message>
        <source>Waiting</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>En attente</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Voir dans le Finder</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>Voir dans Fichiers</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la Corbeille</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>Supprimer les instantanés</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>Supprimer les indisponibles</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>Aller à Nettoyage</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Ouvrir Xcode</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>Impossible d’ouvrir %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 élément</numerusform>
            <numerusform>%1 éléments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>%1 mis à la Corbeille, échec du déplacement pour %2</numerusform>
            <numerusform>%1 mis à la Corbeille, échec du déplacement pour %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>Rien à déplacer</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 mis à la Corbeille</numerusform>
            <numerusform>%1 mis à la Corbeille</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>Aucun instantané local à supprimer</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>Les instantanés n’ont pas été supprimés</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>%1 instantané supprimé sur %2</numerusform>
            <numerusform>Instantanés supprimés&#xa0;: %1 sur %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>Échec du nettoyage du simulateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>Aucun appareil de simulateur indisponible&#xa0;: rien à supprimer</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>1 appareil de simulateur indisponible supprimé</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>%1 appareil de simulateur indisponible supprimé</numerusform>
            <numerusform>%1 appareils de simulateur indisponibles supprimés</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>Xcode n’est pas installé</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>Caches de vos apps</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Caches que les apps gardent dans votre dossier de cache. Ceux qui sont sans risque se nettoient depuis la page Nettoyage.</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>Dossiers masqués du dossier personnel</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Caches, réglages et installations que les outils de développement et les apps gardent dans des dossiers masqués comme .npm, .cargo et .nvm. Vous pouvez vider les caches sans risque&#xa0;; conservez les outils installés.</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Données des apps Flatpak</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>Réglages, fichiers et caches de vos apps Flatpak, propres à chacune. «&#xa0;flatpak uninstall --delete-data&#xa0;» supprime ceux des apps désinstallées.</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>Vos apps et runtimes Flatpak</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps que Flatpak a installées uniquement pour vous et runtimes dont elles ont besoin. «&#xa0;flatpak uninstall --user --unused&#xa0;» supprime les runtimes dont plus aucune app n’a besoin.</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>Conteneurs et images</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Images, conteneurs et volumes que gardent Docker et Podman. «&#xa0;docker system prune&#xa0;» et «&#xa0;podman system prune&#xa0;» suppriment ce qu’aucun conteneur n’utilise.</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>Machines virtuelles</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>Images disque de machines virtuelles, gérées par le programme qui les a créées. Supprimez une machine depuis ce programme ou avec «&#xa0;virsh undefine --remove-all-storage&#xa0;».</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>Bibliothèques de jeux</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Jeux gérés par Steam et d’autres lanceurs. Désinstallez un jeu depuis son lanceur.</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>Données des apps</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>Bases de données et fichiers que les apps gardent pour vous, et votre Corbeille. Supprimez les données d’une app depuis l’app elle-même ou après l’avoir désinstallée.</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>Réglages de vos apps</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>Réglages que les apps gardent pour vous&#xa0;; certaines y joignent des profils et des caches. Sans ses réglages, une app repart de zéro.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>Journal système</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>Journal du système et de ses services, dont journald limite la taille. «&#xa0;journalctl --vacuum-size=200M&#xa0;» le réduit immédiatement.</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>Journaux système</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>Journaux des services et du gestionnaire de paquets. logrotate compresse puis supprime les plus anciens.</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>Vidages mémoire</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>Contenu de la mémoire de programmes qui ont planté, gardé pour les rapports. Le système supprime les plus anciens&#xa0;; «&#xa0;coredumpctl&#xa0;» en donne la liste.</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>Paquets téléchargés</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>Paquets que le gestionnaire de paquets a téléchargés, puis installés. «&#xa0;apt-get clean&#xa0;», «&#xa0;dnf clean packages&#xa0;», «&#xa0;pacman -Sc&#xa0;» ou «&#xa0;zypper clean&#xa0;» les supprime.</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Paquets Snap et anciennes révisions</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Paquets Snap, avec les révisions précédentes que snapd garde pour pouvoir y revenir. «&#xa0;snap set system refresh.retain=2&#xa0;» en garde moins.</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>Apps et runtimes Flatpak du système</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps que Flatpak a installées pour tous les utilisateurs et runtimes dont elles ont besoin. «&#xa0;flatpak uninstall --unused&#xa0;» supprime les runtimes dont plus aucune app n’a besoin.</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>Noyaux et leurs modules</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>Noyaux que le système peut démarrer, avec leurs pilotes. Le gestionnaire de paquets garde les plus récents&#xa0;; «&#xa0;apt-get autoremove&#xa0;» supprime les plus anciens.</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>Fichiers d’échange et d’hibernation</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>Espace disque pour ce qui ne tient pas en mémoire, et pour la mémoire elle-même en hibernation. Les réglages du système en fixent la taille&#xa0;; «&#xa0;swapon --show&#xa0;» l’affiche.</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>Instantanés du système</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>États antérieurs du système, gardés par Timeshift ou Snapper. Ils partagent ce qui n’a pas changé et n’ont donc pas de taille propre&#xa0;; «&#xa0;timeshift --delete&#xa0;» ou «&#xa0;snapper delete&#xa0;» en supprime un.</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Instantanés locaux Time Machine</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Instantanés que macOS crée toutes les heures et garde sur ce disque tant que Time Machine n’a pas accès à son disque de sauvegarde. macOS les libère quand l’espace vient à manquer&#xa0;; vous pouvez les supprimer sans risque, mais vous perdrez ces points de restauration.</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>Sauvegardes iPhone et iPad</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Sauvegardes d’appareils créées par le Finder. Supprimez les anciennes depuis le Finder (Général → Gérer les sauvegardes) dès qu’il en existe une plus récente ou une sauvegarde iCloud.</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Symboles d’appareils Xcode</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Symboles de débogage que Xcode copie pour chaque version d’iOS, de watchOS et de tvOS que vous avez connectée. Xcode les copie de nouveau à la prochaine connexion de l’appareil.</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>Appareils du simulateur iOS</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>Appareils du simulateur et données de leurs apps. Vous pouvez supprimer sans risque les appareils indisponibles (dont vous n’avez plus le runtime).</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>Runtimes et caches du simulateur</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Runtimes de simulateur iOS, watchOS et visionOS téléchargés par Xcode, avec leurs caches partagés. Supprimez les runtimes que vous n’utilisez pas dans Xcode › Settings › Components.</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Caches que les apps gardent dans votre dossier Bibliothèque. Ceux qui sont sans risque se nettoient depuis la page Nettoyage.</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Caches, réglages et installations que les outils de développement et les apps gardent dans des dossiers masqués comme .cache, .npm et .nvm. Vous pouvez vider les caches sans risque&#xa0;; conservez les outils installés.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Archives Xcode</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>Versions que vous avez archivées pour les distribuer. Conservez celles dont vous pourriez avoir besoin pour symboliser des rapports de plantage.</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Image disque Docker</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>Disque virtuel qui contient les images et les conteneurs de Docker. Réduisez-le avec «&#xa0;docker system prune&#xa0;» ou dans les réglages de Docker Desktop.</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>Pièces jointes de Mail</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>Pièces jointes que Mail a enregistrées quand vous les avez ouvertes. Les originaux restent dans votre boîte aux lettres.</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>Pièces jointes de Messages</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>Photos, vidéos et fichiers de vos conversations. Supprimez les plus gros depuis Messages (Réglages → Général → Stockage) pour que vos conversations restent cohérentes.</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>Caches système</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>Caches communs à tous les utilisateurs et aux services du système. macOS les réduit lui-même.</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>Journaux et diagnostics système</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>Journaux unifiés et rapports de diagnostic. macOS les renouvelle et les supprime automatiquement.</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>Mémoire virtuelle et image de veille</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>Fichiers d’échange et image d’hibernation. Leur taille suit l’utilisation de la mémoire et revient à zéro au redémarrage.</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>Ressources et mises à jour macOS</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>Ressources système téléchargées (polices, dictionnaires, modèles linguistiques et d’IA) et mises à jour logicielles prêtes à installer.</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>Autres données de Bibliothèque</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>Tout le reste de votre dossier Bibliothèque&#xa0;: préférences, trousseaux, journaux et données des services du système.</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>Bases de données et fichiers temporaires système</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>Bases de données et dossiers temporaires par app utilisés par les services de macOS. macOS s’en occupe.</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>Données et conteneurs des apps</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>Réglages, bases de données et fichiers que les apps gardent pour vous. Supprimez les données d’une app en la désinstallant ou depuis l’app elle-même.</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 instantané</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 instantané</numerusform>
            <numerusform>%1 instantanés</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Lecture refusée</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 appareil</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 appareil</numerusform>
            <numerusform>%1 appareils</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>Données système</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>Découvrez le contenu des données système</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>Instantanés, sauvegardes, fichiers de développement, caches et plus encore.</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>Analyser les données système</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>mesurés dans les données système · vous pouvez agir sur &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>En cours…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Mise à jour…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Espace récupérable</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>Mesure des données système…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>mesurés</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS va supprimer ses instantanés locaux Time Machine de ce disque. Vos sauvegardes Time Machine sur d’autres disques ne sont pas concernées. macOS vous demandera votre mot de passe d’administrateur.</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>Les appareils du simulateur dont le runtime iOS n’est plus installé seront supprimés, avec leurs apps et leurs données.</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>Ces données (%1) seront mises à la Corbeille. Xcode les recréera quand vous connecterez de nouveau un appareil.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Accès complet requis</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Lecture refusée</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Les plus gros&#xa0;: %1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Géré par macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Géré par le système</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>Seul ce que vous avez le droit de lire est compté. Les dossiers du système ou d’autres utilisateurs sont laissés de côté, et ceux que plusieurs lignes partagent ne sont comptés qu’une fois.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;Pourquoi les réglages Stockage affichent un chiffre plus élevé&lt;/b&gt;&lt;br&gt;Pour macOS, les données système sont tout ce qui reste sur le disque une fois déduits les apps, les documents, les photos et ses autres catégories. Ce reste comprend aussi ce qu’aucune app ne peut mesurer&#xa0;: l’index Spotlight, les instantanés APFS, l’espace purgeable et les fichiers système réservés à root. Sans l’accès complet au disque, Tarnwick ne voit pas non plus les dossiers protégés&#xa0;: son total est donc inférieur à celui de macOS.</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>%1&#xa0;?</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Ouvrir Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Analyse intelligente</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Voir les gros fichiers</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Quitter Tarnwick</translation>
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
        <translation>Impossible d’ouvrir la mise à jour.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>Le serveur a mis trop de temps à répondre.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>Les informations sur la mise à jour n’ont pas pu être lues.</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>Le serveur a redirigé vers une adresse qui n’est pas sûre.</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>Trop de redirections.</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>La mise à jour ne se trouve pas sur le serveur de Tarnwick.</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>La taille de la mise à jour est inattendue.</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Impossible d’enregistrer la mise à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>La mise à jour n’a pas pu être téléchargée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>Impossible de lire la mise à jour.</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>La mise à jour ne correspond pas à la somme de contrôle publiée.</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>La mise à jour n’est pas signée par %1.</translation>
    </message>
</context>
<context>
    <name>fmt</name>
    <message>
        <source>TB</source>
        <extracomment>A terabyte</extracomment>
        <translation>To</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A size; %1: a number; %2: a unit such as “GB”</extracomment>
        <translation>%1&#xa0;%2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>When something was done or opened last</extracomment>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>Il y a %n jour</numerusform>
            <numerusform>Il y a %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>Il y a %n sem.</numerusform>
            <numerusform>Il y a %n sem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>Il y a %n mois</numerusform>
            <numerusform>Il y a %n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>Il y a %n an</numerusform>
            <numerusform>Il y a %n ans</numerusform>
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
