<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>AppState</name>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>Restored %Ln file</numerusform>
            <numerusform>Restored %Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 file</numerusform>
            <numerusform>%1 files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1 (%2) moved to the %3</numerusform>
            <numerusform>%1 (%2) moved to the %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 in use, skipped</numerusform>
            <numerusform> · %1 in use, skipped</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;%Ln file skipped&lt;/b&gt; because it was in use or protected. Quit the app using it and rescan to remove it.</numerusform>
            <numerusform>&lt;b&gt;%Ln files skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>Show %1 more</numerusform>
            <numerusform>Show %1 more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>and %1 more items</numerusform>
            <numerusform>and %1 more items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 file</numerusform>
            <numerusform>%1 files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 of %2 file</numerusform>
            <numerusform>%1 of %2 files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>Skipped, %1 in all; the log tells why:</numerusform>
            <numerusform>Skipped, %1 in all; the log tells why:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>Freed %1, removed %2.</numerusform>
            <numerusform>Freed %1, removed %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>The largest %1 of %2 files are listed.</numerusform>
            <numerusform>The largest %1 of %2 files are listed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>Searched %1 in %2. Nothing was changed.</numerusform>
            <numerusform>Searched %1 in %2. Nothing was changed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>Unused %1+ month</numerusform>
            <numerusform>Unused %1+ months</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 file</numerusform>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>Freed in the last %1 month</numerusform>
            <numerusform>Freed in the last %1 months</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>Moved %1 to the Trash, %2 couldn&apos;t be moved</numerusform>
            <numerusform>Moved %1 to the Trash, %2 couldn&apos;t be moved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>Moved %1 to the Trash</numerusform>
            <numerusform>Moved %1 to the Trash</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>Removed %1 of %2 snapshot</numerusform>
            <numerusform>Removed %1 of %2 snapshots</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>Deleted %1 unavailable simulator device</numerusform>
            <numerusform>Deleted %1 unavailable simulator devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 snapshot</numerusform>
            <numerusform>%1 snapshots</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 device</numerusform>
            <numerusform>%1 devices</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fmt</name>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n day ago</numerusform>
            <numerusform>%n days ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n week ago</numerusform>
            <numerusform>%n weeks ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n month ago</numerusform>
            <numerusform>%n months ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n year ago</numerusform>
            <numerusform>%n years ago</numerusform>
        </translation>
    </message>
</context>
</TS>
