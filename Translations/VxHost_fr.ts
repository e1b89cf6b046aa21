<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>TestPicture</name>
    <message>
        <source>Test picture</source>
        <translation>Mire</translation>
    </message>
    <message>
        <source>Show &amp;counter</source>
        <translation>Afficher le &amp;compteur</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Vitesse</translation>
    </message>
</context>
<context>
    <name>Zelkor::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Visit the home page</source>
        <translation>Visiter le site web</translation>
    </message>
    <message>
        <source>Write to support</source>
        <translation>Écrire au support</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
