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
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidential</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Draft</translation>
    </message>
    <message>
        <source>LongEdge</source>
        <translation>Long-Edge Binding</translation>
    </message>
    <message>
        <source>ShortEdge</source>
        <translation>Short-Edge Binding</translation>
    </message>
    <message>
        <source>HoldForUser</source>
        <translation>Hold for User</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>No Margin</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Binding Margin</translation>
    </message>
    <message>
        <source>ImageShift</source>
        <translation>Image Shift</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>None</source>
        <translation>No Special Pages</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Covers</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserts</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Exceptions</translation>
    </message>
</context>
</TS>
