<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>TestPicture</name>
    <message>
        <source>Test picture</source>
        <translation>テスト映像</translation>
    </message>
    <message>
        <source>Show &amp;counter</source>
        <translation>カウンターを表示(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>速度(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Zelkor::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>%1 のバージョン情報</translation>
    </message>
    <message>
        <source>Visit the home page</source>
        <translation>Web サイトを開く</translation>
    </message>
    <message>
        <source>Write to support</source>
        <translation>サポートに連絡</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
