<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>TestPicture</name>
    <message>
        <source>Test picture</source>
        <translation>Testbild</translation>
    </message>
    <message>
        <source>Show &amp;counter</source>
        <translation>&amp;Zähler anzeigen</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Geschwindigkeit</translation>
    </message>
</context>
<context>
    <name>Zelkor::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Visit the home page</source>
        <translation>Website besuchen</translation>
    </message>
    <message>
        <source>Write to support</source>
        <translation>An den Support schreiben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
