<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source>UserID</source>
        <translation>ID utilisateur</translation>
    </message>
    <message>
        <source>UDCTitle</source>
        <translation>Couleur personnalisée</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
</TS>
