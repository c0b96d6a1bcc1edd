<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move to the Trash, whatever the settings say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show this help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show the version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a Trash and will stay, unless you say --delete.</source>
        <extracomment>%1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>moved to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was moved to the Trash takes its room until you empty it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1: a size, as %2 of the two that follow</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %2 to the Trash?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the Trash?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1% used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>descending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash by its name in this language; stands in other texts as “%1”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Locked</source>
        <extracomment>Beside a rule that can not be changed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>250 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consider files old after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>12 months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24 months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button that takes a rule away; a screen reader says the rule after it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StepBar</name>
    <message>
        <source>Waiting</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 device</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fmt</name>
    <message>
        <source>TB</source>
        <extracomment>A terabyte</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A size; %1: a number; %2: a unit such as “GB”</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>When something was done or opened last</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
</TS>
