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
