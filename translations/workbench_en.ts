<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CanvasBar</name>
    <message numerus="yes">
        <source>Deleted %n feature(s).</source>
        <translation>
            <numerusform>Deleted %n feature.</numerusform>
            <numerusform>Deleted %n features.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MessageMonitor</name>
    <message numerus="yes">
        <source>%n message(s)</source>
        <translation>
            <numerusform>%n message</numerusform>
            <numerusform>%n messages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n message(s)</source>
        <translation>
            <numerusform>%1 of %n message</numerusform>
            <numerusform>%1 of %n messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SelectionTools</name>
    <message numerus="yes">
        <source>%n feature(s) selected.</source>
        <translation>
            <numerusform>%n feature selected.</numerusform>
            <numerusform>%n features selected.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnknownTexts</name>
    <message numerus="yes">
        <source>%n feature(s) of unknown shape drawn as outlines.</source>
        <translation>
            <numerusform>%n feature of unknown shape drawn as an outline.</numerusform>
            <numerusform>%n features of unknown shape drawn as outlines.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of unknown shape left out of the file.</source>
        <translation>
            <numerusform>%n feature of unknown shape left out of the file.</numerusform>
            <numerusform>%n features of unknown shape left out of the file.</numerusform>
        </translation>
    </message>
</context>
</TS>
