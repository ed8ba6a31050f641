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
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>LongEdge</source>
        <translation>Bindung an der langen Kante</translation>
    </message>
    <message>
        <source>ShortEdge</source>
        <translation>Bindung an der kurzen Kante</translation>
    </message>
    <message>
        <source>HoldForUser</source>
        <translation>Bis zur Freigabe halten</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>Kein Rand</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Bindungsrand</translation>
    </message>
    <message>
        <source>ImageShift</source>
        <translation>Bildverschiebung</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>None</source>
        <translation>Keine Sonderseiten</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Deckblätter</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einlegeblätter</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Ausnahmeseiten</translation>
    </message>
</context>
</TS>
