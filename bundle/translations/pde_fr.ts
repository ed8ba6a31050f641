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
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>LongEdge</source>
        <translation>Reliure bord long</translation>
    </message>
    <message>
        <source>ShortEdge</source>
        <translation>Reliure bord court</translation>
    </message>
    <message>
        <source>HoldForUser</source>
        <translation>Retenir jusqu'à la libération</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>Aucune marge</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Marge de reliure</translation>
    </message>
    <message>
        <source>ImageShift</source>
        <translation>Décalage de l'image</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>None</source>
        <translation>Aucune page spéciale</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Couvertures</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Intercalaires</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Pages d'exception</translation>
    </message>
</context>
</TS>
