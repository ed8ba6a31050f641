<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Localizable</name>
    <message>
        <source>UserID</source>
        <translation>ユーザーID</translation>
    </message>
    <message>
        <source>UDCTitle</source>
        <translation>ユーザー定義カラー</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
</TS>
