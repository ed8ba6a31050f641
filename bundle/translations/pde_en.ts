<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>UserID</source>
        <translation>User ID</translation>
    </message>
    <message>
        <source>UDCTitle</source>
        <translation>User-Defined Colour</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
</TS>
