<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message>
        <source>UserID</source>
        <translation>Benutzer-ID</translation>
    </message>
    <message>
        <source>UDCTitle</source>
        <translation>Benutzerdefinierte Farbe</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
</TS>
