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
    <message>
        <source>Graphics/Paper</source>
        <translation>Grafik/Papier</translation>
    </message>
    <message>
        <source>Job Handling</source>
        <translation>Auftragsverwaltung</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Endverarbeitung</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>KEY_DocType</source>
        <translation>Dokumenttyp:</translation>
    </message>
    <message>
        <source>KEY_XrayContrast</source>
        <translation>Röntgenkontrast:</translation>
    </message>
    <message>
        <source>KEY_VELResolution</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>KEY_SaveMode</source>
        <translation>Tonersparmodus:</translation>
    </message>
    <message>
        <source>KEY_Darkness</source>
        <translation>Druckdichte:</translation>
    </message>
    <message>
        <source>KEY_DarkenText</source>
        <translation>Text abdunkeln:</translation>
    </message>
    <message>
        <source>KEY_EdgeEnhance</source>
        <translation>Kantenverbesserung:</translation>
    </message>
    <message>
        <source>KEY_FineEdge</source>
        <translation>Feine Kanten:</translation>
    </message>
    <message>
        <source>KEY_Trapping</source>
        <translation>Überfüllung:</translation>
    </message>
    <message>
        <source>KEY_ColorModel</source>
        <translation>Farbmodus:</translation>
    </message>
    <message>
        <source>KEY_BlackOptimization</source>
        <translation>Schwarzoptimierung:</translation>
    </message>
    <message>
        <source>KEY_CMYKByPass</source>
        <translation>CMYK-Umgehung:</translation>
    </message>
    <message>
        <source>KEY_VELSimulator</source>
        <translation>Farbsimulation:</translation>
    </message>
    <message>
        <source>KEY_RGBColor</source>
        <translation>RGB-Farbe:</translation>
    </message>
    <message>
        <source>KEY_HalftoneLPI</source>
        <translation>Rasterweite:</translation>
    </message>
    <message>
        <source>KEY_UserDefinedColor</source>
        <translation>Benutzerdefinierte Farbe:</translation>
    </message>
    <message>
        <source>KEY_Brightness</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>KEY_Contrast</source>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>KEY_Saturation</source>
        <translation>Sättigung:</translation>
    </message>
    <message>
        <source>KEY_RCBalance</source>
        <translation>Rot-Cyan-Balance:</translation>
    </message>
    <message>
        <source>KEY_GMBalance</source>
        <translation>Grün-Magenta-Balance:</translation>
    </message>
    <message>
        <source>KEY_BYBalance</source>
        <translation>Blau-Gelb-Balance:</translation>
    </message>
    <message>
        <source>KEY_Skin</source>
        <translation>Hauttöne:</translation>
    </message>
    <message>
        <source>KEY_Grass</source>
        <translation>Grüntöne:</translation>
    </message>
    <message>
        <source>KEY_Sky</source>
        <translation>Himmel:</translation>
    </message>
    <message>
        <source>KEY_PreferredColorCheck</source>
        <translation>Bevorzugte Farbe</translation>
    </message>
    <message>
        <source>KEY_MediaType</source>
        <translation>Papiertyp:</translation>
    </message>
    <message>
        <source>KEY_SeparatorsOption</source>
        <translation>Trennblätter:</translation>
    </message>
    <message>
        <source>KEY_SeparatorsSource</source>
        <translation>Trennblattzufuhr:</translation>
    </message>
    <message>
        <source>KEY_SkipBlankpages</source>
        <translation>Leere Seiten überspringen</translation>
    </message>
    <message>
        <source>KEY_CurlMode</source>
        <translation>Papierwellung verringern</translation>
    </message>
    <message>
        <source>KEY_ReverseDuplex</source>
        <translation>Duplex in umgekehrter Reihenfolge</translation>
    </message>
    <message>
        <source>(%@-%@ Alphanumeric)</source>
        <translation>(%@-%@ alphanumerisch)</translation>
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
    <message>
        <source>AdvancedOptions</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>WatermarkTab</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>BookletTab</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>PosterTab</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>PrintingTip</source>
        <translation>Drucktipps</translation>
    </message>
    <message>
        <source>ConceptPreview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>VELWatermarkOption</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>VELPosterOption</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>VELBookletOption</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>VELFoldMethod</source>
        <translation>Falzmethode</translation>
    </message>
    <message>
        <source>VELBookletFinishing</source>
        <translation>Broschürenendbearbeitung</translation>
    </message>
    <message>
        <source>BookletOutputPageSize</source>
        <translation>Ausgabepapierformat</translation>
    </message>
    <message>
        <source>VELManualBookletOption</source>
        <translation>Manuelle Broschüre</translation>
    </message>
    <message>
        <source>TopSecret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Poster2x2</source>
        <translation>2 x 2 Seiten</translation>
    </message>
    <message>
        <source>Poster3x3</source>
        <translation>3 x 3 Seiten</translation>
    </message>
    <message>
        <source>Poster4x4</source>
        <translation>4 x 4 Seiten</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>BookletNup</source>
        <translation>Broschüre mit mehreren Seiten pro Blattseite</translation>
    </message>
    <message>
        <source>AllSheets</source>
        <translation>Alle Blätter zusammen</translation>
    </message>
    <message>
        <source>BySet</source>
        <translation>Satzweise falzen</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>FoldStitch</source>
        <translation>Falzen und heften</translation>
    </message>
    <message>
        <source>FontNameTitle</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>FontStyleTitle</source>
        <translation>Schriftschnitt</translation>
    </message>
    <message>
        <source>FontColorTitle</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>FontSizeTitle</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>FontShadeTitle</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>AngleTitle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>MessageFieldTitle</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>FirstPageButtonTitle</source>
        <translation>Nur erste Seite</translation>
    </message>
    <message>
        <source>FontSizeRange</source>
        <translation>(8 - 400 pt)</translation>
    </message>
    <message>
        <source>AngleRange</source>
        <translation>(-90 - 90°)</translation>
    </message>
    <message>
        <source>No Watermark</source>
        <translation>Kein Wasserzeichen</translation>
    </message>
    <message>
        <source>ColorGray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>ColorRed</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>ColorYellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>ColorGreen</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>ColorCyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>ColorBlue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>ColorMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ExtraDark</source>
        <translation>Sehr dunkel</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>ExtraLight</source>
        <translation>Sehr hell</translation>
    </message>
    <message>
        <source>HorizontalTitle</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>VerticalTitle</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>FreeAngleTitle</source>
        <translation>Eigener Winkel</translation>
    </message>
    <message>
        <source>SheetsPerSetTitle</source>
        <translation>Blätter pro Satz</translation>
    </message>
    <message>
        <source>SheetsPerSetTitleSign</source>
        <translation>-</translation>
    </message>
    <message>
        <source>GutterTitle</source>
        <translation>Bundsteg</translation>
    </message>
    <message>
        <source>GutterSizemmDes</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>GutterSizeInchDes</source>
        <translation>Zoll (0,00 - 0,98)</translation>
    </message>
    <message>
        <source>RightBindingTitle</source>
        <translation>Bindung rechts</translation>
    </message>
    <message>
        <source>NupTitle</source>
        <translation>Seiten pro Broschürenseite</translation>
    </message>
    <message>
        <source>PageBorderTitle</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>PagePerSideTitle</source>
        <translation>Seiten pro Blattseite</translation>
    </message>
    <message>
        <source>PageOrder</source>
        <translation>Seitenfolge</translation>
    </message>
    <message>
        <source>BorderNone</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>BorderSingleHairline</source>
        <translation>Einfache Haarlinie</translation>
    </message>
    <message>
        <source>BorderSingleThinLine</source>
        <translation>Einfache dünne Linie</translation>
    </message>
    <message>
        <source>BorderDoubleHairline</source>
        <translation>Doppelte Haarlinie</translation>
    </message>
    <message>
        <source>BorderDoubleThinLine</source>
        <translation>Doppelte dünne Linie</translation>
    </message>
    <message>
        <source>PagesPerSide1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>PagesPerSide2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>PagesPerSide4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>PagesPerSide6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>PagesPerSide9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>PagesPerSide16</source>
        <translation>16</translation>
    </message>
    <message>
        <source>OrderLeftRightTopBottom</source>
        <translation>Links nach rechts, oben nach unten</translation>
    </message>
    <message>
        <source>OrderRightLeftTopBottom</source>
        <translation>Rechts nach links, oben nach unten</translation>
    </message>
    <message>
        <source>OrderTopBottomLeftRight</source>
        <translation>Oben nach unten, links nach rechts</translation>
    </message>
    <message>
        <source>OrderTopBottomRightLeft</source>
        <translation>Oben nach unten, rechts nach links</translation>
    </message>
    <message>
        <source>PrintingTipDescription</source>
        <translation>Wenn beide Seiten von Hand bedruckt werden (manueller beidseitiger Druck, manuelle Broschüre), bedruckt der Drucker zuerst eine Seite jedes Blatts; danach wenden Sie den Stapel und legen ihn erneut ein.</translation>
    </message>
    <message>
        <source>PrintingTipCoverPage</source>
        <translation>Verwenden Sie kein Deckblatt, wenn beide Seiten von Hand bedruckt werden.</translation>
    </message>
    <message>
        <source>PrintingTipStep1</source>
        <translation>1. Der Drucker bedruckt die erste Seite jedes Blatts.</translation>
    </message>
    <message>
        <source>PrintingTipStep2</source>
        <translation>2. Nehmen Sie den bedruckten Stapel und wenden Sie ihn.</translation>
    </message>
    <message>
        <source>PrintingTipStep3</source>
        <translation>3. Legen Sie ihn mit der leeren Seite nach oben wieder ein und fahren Sie fort.</translation>
    </message>
    <message>
        <source>LayoutTitle</source>
        <translation>Aufteilung</translation>
    </message>
    <message>
        <source>OverlapTitle</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>OverlapMM</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>OverlapInch</source>
        <translation>Zoll (0,00 - 1,00)</translation>
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
<context>
    <name>JobControls</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopien:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>&amp;Bereich:</translation>
    </message>
    <message>
        <source>e.g. 1-3, 5</source>
        <translation>z. B. 1-3, 5</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>Papier&amp;format:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>Aus&amp;richtung:</translation>
    </message>
    <message>
        <source>Pa&amp;ges per sheet:</source>
        <translation>Seiten pro Bla&amp;tt:</translation>
    </message>
    <message>
        <source>Co&amp;ver page:</source>
        <translation>De&amp;ckblatt:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Hochformat, gedreht</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Querformat, gedreht</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Verschlusssache</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Nicht klassifiziert</translation>
    </message>
    <message>
        <source>The paper size %1 cannot be used with this printer's installed options.</source>
        <translation>Das Papierformat %1 kann mit den installierten Optionen dieses Druckers nicht verwendet werden.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>The page range &quot;%1&quot; is not valid: give pages and ranges such as 1-3,5,8-.</source>
        <translation>Der Seitenbereich „%1“ ist ungültig: Geben Sie Seiten und Bereiche wie 1-3,5,8- an.</translation>
    </message>
</context>
<context>
    <name>LpCommandDialog</name>
    <message>
        <source>Print Command</source>
        <translation>Druckbefehl</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue, so nothing is printed. This command prints the documents with the chosen settings on a queue that uses this PPD (change the name after -d to your queue's name):</source>
        <translation>Dieser Drucker ist eine PPD-Datei ohne CUPS-Warteschlange, daher wird nichts gedruckt. Dieser Befehl druckt die Dokumente mit den gewählten Einstellungen auf einer Warteschlange, die diese PPD verwendet (ersetzen Sie den Namen nach -d durch den Namen Ihrer Warteschlange):</translation>
    </message>
    <message>
        <source>Passwords and PINs are shown as &lt;hidden&gt;: put yours in their place before running the command.</source>
        <translation>Kennwörter und PINs erscheinen als &lt;hidden&gt;: Setzen Sie Ihre eigenen ein, bevor Sie den Befehl ausführen.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copied to the clipboard.</source>
        <translation>In die Zwischenablage kopiert.</translation>
    </message>
</context>
<context>
    <name>PanelTab</name>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>Diese Seite hat keine Einstellungen.</translation>
    </message>
</context>
<context>
    <name>PrintDialogWindow</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Dokumente:</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>Date&amp;ien hinzufügen…</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The printer cannot be used: %1</source>
        <translation>Der Drucker kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Documents to Print</source>
        <translation>Zu druckende Dokumente</translation>
    </message>
    <message>
        <source>Show &amp;lp Command…</source>
        <translation>&amp;lp-Befehl zeigen…</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue: the command that prints with these settings is shown instead.</source>
        <translation>Dieser Drucker ist eine PPD-Datei ohne CUPS-Warteschlange: Stattdessen wird der Befehl gezeigt, der mit diesen Einstellungen druckt.</translation>
    </message>
    <message>
        <source>Add the documents to print first.</source>
        <translation>Fügen Sie zuerst die zu druckenden Dokumente hinzu.</translation>
    </message>
    <message>
        <source>%1 set to %2</source>
        <translation>%1 auf %2 gesetzt</translation>
    </message>
    <message>
        <source>To resolve a conflict, %1.</source>
        <translation>Um einen Konflikt zu lösen: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>the settings of %1 are not complete</source>
        <translation>die Einstellungen von %1 sind unvollständig</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>The job was not printed: %1</source>
        <translation>Der Auftrag wurde nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer was changed on the server and cannot be used now: %1</source>
        <translation>Der Drucker wurde auf dem Server geändert und kann jetzt nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the server while this dialog was open: nothing was printed. Its settings were loaded again with your choices; check them and print again.</source>
        <translation>Der Drucker %1 wurde auf dem Server geändert, während dieser Dialog geöffnet war: Es wurde nichts gedruckt. Seine Einstellungen wurden mit Ihrer Auswahl neu geladen; prüfen Sie sie und drucken Sie erneut.</translation>
    </message>
    <message>
        <source>The printer no longer has these choices: %1.</source>
        <translation>Diese Auswahl gibt es beim Drucker nicht mehr: %1.</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>es gibt kein Dokument zum Drucken</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: Der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>PrintPanelsIntegration</name>
    <message>
        <source>the printer is not a CUPS queue and no PPD file was given</source>
        <translation>der Drucker ist keine CUPS-Warteschlange, und es wurde keine PPD-Datei angegeben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>no printer was opened</source>
        <translation>es wurde kein Drucker geöffnet</translation>
    </message>
    <message>
        <source>no spool file can be made: %1</source>
        <translation>es kann keine Spool-Datei angelegt werden: %1</translation>
    </message>
    <message>
        <source>applyToPrinter() was not called</source>
        <translation>applyToPrinter() wurde nicht aufgerufen</translation>
    </message>
    <message>
        <source>the printer is a PPD file without a CUPS queue: nothing was sent</source>
        <translation>der Drucker ist eine PPD-Datei ohne CUPS-Warteschlange: es wurde nichts gesendet</translation>
    </message>
</context>
<context>
    <name>PrinterPresetBar</name>
    <message>
        <source>Print&amp;er:</source>
        <translation>Dr&amp;ucker:</translation>
    </message>
    <message>
        <source>Prese&amp;ts:</source>
        <translation>V&amp;oreinstellungen:</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Sichern unter…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>%1 (sample PPD file)</source>
        <translation>%1 (Beispiel-PPD-Datei)</translation>
    </message>
    <message>
        <source>%1 (PPD file)</source>
        <translation>%1 (PPD-Datei)</translation>
    </message>
    <message>
        <source>%1 (PPD file %2)</source>
        <translation>%1 (PPD-Datei %2)</translation>
    </message>
    <message>
        <source>Other PPD File…</source>
        <translation>Andere PPD-Datei…</translation>
    </message>
    <message>
        <source>Choose a PPD File</source>
        <translation>PPD-Datei wählen</translation>
    </message>
    <message>
        <source>PPD files (*.ppd *.PPD);;All files (*)</source>
        <translation>PPD-Dateien (*.ppd *.PPD);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>None (no CUPS queue)</source>
        <translation>Keine (keine CUPS-Warteschlange)</translation>
    </message>
    <message>
        <source>Presets are kept with a CUPS queue; a PPD file has none.</source>
        <translation>Voreinstellungen gehören zu einer CUPS-Warteschlange; eine PPD-Datei hat keine.</translation>
    </message>
    <message>
        <source>Presets cannot be read: %1</source>
        <translation>Die Voreinstellungen können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The printer's default settings are used.</source>
        <translation>Die Standardeinstellungen des Druckers werden verwendet.</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; chosen.</source>
        <translation>Voreinstellung „%1“ gewählt.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung sichern</translation>
    </message>
    <message>
        <source>Save the current settings as the preset:</source>
        <translation>Die aktuellen Einstellungen als Voreinstellung sichern:</translation>
    </message>
    <message>
        <source>The preset cannot be saved: %1</source>
        <translation>Die Voreinstellung kann nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; saved. Passwords and PINs are not kept in presets.</source>
        <translation>Voreinstellung „%1“ gesichert. Kennwörter und PINs werden in Voreinstellungen nicht gespeichert.</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Die Voreinstellung „%1“ entfernen?</translation>
    </message>
    <message>
        <source>The preset cannot be deleted: %1</source>
        <translation>Die Voreinstellung kann nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; deleted.</source>
        <translation>Voreinstellung „%1“ entfernt.</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <translation>%1 — %2, %3</translation>
    </message>
    <message>
        <source>Make and model: %1</source>
        <translation>Hersteller und Modell: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Standort: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>Your default printer</source>
        <translation>Ihr Standarddrucker</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>%1, not accepting jobs</source>
        <translation>%1, nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Defa&amp;ults</source>
        <translation>Standar&amp;ds</translation>
    </message>
    <message>
        <source>Use as My Defaults for This Printer</source>
        <translation>Als meine Standardeinstellungen für diesen Drucker verwenden</translation>
    </message>
    <message>
        <source>Every application's print dialog and lp start from these settings on this printer.</source>
        <translation>Die Druckdialoge aller Programme und lp beginnen auf diesem Drucker mit diesen Einstellungen.</translation>
    </message>
    <message>
        <source>Make This My Default Printer</source>
        <translation>Als meinen Standarddrucker festlegen</translation>
    </message>
    <message>
        <source>Make This Preset My Default Printer</source>
        <translation>Diese Voreinstellung als meinen Standarddrucker festlegen</translation>
    </message>
    <message>
        <source>A preset named &quot;%1&quot; exists. Replace it?</source>
        <translation>Eine Voreinstellung namens „%1“ gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>The defaults cannot be saved: %1</source>
        <translation>Die Standardeinstellungen können nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>These settings are now your defaults for %1. Passwords and PINs are not kept.</source>
        <translation>Diese Einstellungen sind jetzt Ihre Standardeinstellungen für %1. Kennwörter und PINs werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>The default printer cannot be set: %1</source>
        <translation>Der Standarddrucker kann nicht festgelegt werden: %1</translation>
    </message>
    <message>
        <source>%1 is now your default printer.</source>
        <translation>%1 ist jetzt Ihr Standarddrucker.</translation>
    </message>
</context>
<context>
    <name>PanelStack</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>%1 cannot be left yet: check its settings first.</source>
        <translation>%1 kann noch nicht verlassen werden: Prüfen Sie zuerst die Einstellungen.</translation>
    </message>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>Diese Seite hat keine Einstellungen.</translation>
    </message>
    <message>
        <source>No settings to summarize</source>
        <translation>Keine Einstellungen</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(verborgen)</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Job Setting</source>
        <translation>Auftragseinstellungen</translation>
    </message>
    <message>
        <source>Job Accounting</source>
        <translation>Auftragsabrechnung</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature</source>
        <translation>Geben Sie ein alphanumerisches Kennwort ein und wiederholen Sie es zur Bestätigung, um den Druckmodus zu verwenden.</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature</source>
        <translation>Geben Sie ein alphanumerisches Kennwort ein und wiederholen Sie es zur Bestätigung, um die Auftragsabrechnung zu verwenden.</translation>
    </message>
    <message>
        <source>You must enter a 4-32 digit PIN Code.</source>
        <translation>Geben Sie einen PIN-Code mit 4 bis 32 Ziffern ein.</translation>
    </message>
    <message>
        <source>Job Accounting Confirmation</source>
        <translation>Bestätigung der Auftragsabrechnung</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>Konto-ID</translation>
    </message>
    <message>
        <source>Enter the account to charge for this job, then click OK to print.</source>
        <translation>Geben Sie das Konto ein, dem dieser Auftrag berechnet wird, und klicken Sie auf „OK“, um zu drucken.</translation>
        <source>KEY_SortOptions</source>
        <translation>Sortierung:</translation>
    </message>
    <message>
        <source>KEY_StapleLocation</source>
        <translation>Heften:</translation>
    </message>
    <message>
        <source>KEY_StaplePosition</source>
        <translation>Heftposition:</translation>
    </message>
    <message>
        <source>KEY_Punch</source>
        <translation>Lochen:</translation>
    </message>
    <message>
        <source>KEY_PunchPosition</source>
        <translation>Lochposition:</translation>
    </message>
    <message>
        <source>KEY_OutputMode</source>
        <translation>Ausgabemodus:</translation>
    </message>
    <message>
        <source>KEY_OutputBin</source>
        <translation>Ausgabefach:</translation>
    </message>
    <message>
        <source>KEY_FoldingOptions</source>
        <translation>Falzen:</translation>
    </message>
    <message>
        <source>KEY_CFoldingPattern</source>
        <translation>Falzmuster:</translation>
    </message>
    <message>
        <source>KEY_CFoldingDivideSet</source>
        <translation>Blatt pro Satz:</translation>
    </message>
    <message>
        <source>(1 - %d)</source>
        <translation>(1 - %d)</translation>
    </message>
    <message>
        <source>Hard Copy Security</source>
        <translation>Ausdrucksicherheit</translation>
    </message>
    <message>
        <source>KEY_SecuTrue</source>
        <translation>Sichere Freigabe:</translation>
    </message>
    <message>
        <source>KEY_SecuTrueUserID</source>
        <translation>Benutzer-ID:</translation>
    </message>
    <message>
        <source>KEY_HardCopySecurity</source>
        <translation>Ausdrucksicherheit:</translation>
    </message>
    <message>
        <source>KEY_HardCopyCurrSecureWatermark</source>
        <translation>Wasserzeichentext:</translation>
    </message>
    <message>
        <source>KEY_HCSCustomWatermark</source>
        <translation>Eigener Text:</translation>
    </message>
    <message>
        <source>KEY_HardCopySize</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>KEY_HardCopyDirection</source>
        <translation>Richtung:</translation>
    </message>
    <message>
        <source>KEY_HardCopyPattern</source>
        <translation>Hintergrundmuster:</translation>
    </message>
    <message>
        <source>KEY_HardCopyColor</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>KEY_HardCopyDarkness</source>
        <translation>Dichte:</translation>
    </message>
    <message>
        <source>KEY_HardCopyEnterPassword</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>KEY_HCSConfirmPassword</source>
        <translation>Kennwort bestätigen:</translation>
    </message>
    <message>
        <source>You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.</source>
        <translation>Geben Sie ein alphanumerisches Kennwort mit 1 bis 9 Zeichen ein und wiederholen Sie es zur Bestätigung, um den Kennwortauftrag zu verwenden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation>Kennwort bestätigen:</translation>
    </message>
    <message>
        <source>PIN Code:</source>
        <translation>PIN-Code:</translation>
    </message>
    <message>
        <source>Confirm PIN Code:</source>
        <translation>PIN-Code bestätigen:</translation>
    </message>
</context>
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>ManualDuplex</source>
        <translation>Manueller beidseitiger Druck</translation>
    </message>
    <message>
        <source>SecureRelease</source>
        <translation>Sichere Freigabe</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>Benutzer-ID</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>ManualMarginPanelName</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Margin for</source>
        <translation>Rand für</translation>
    </message>
    <message>
        <source>VELMarginFor</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>VELBindingPosition</source>
        <translation>Bindeposition</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Auto Reduction</source>
        <translation>Seite verkleinern, damit sie passt</translation>
    </message>
    <message>
        <source>Same value for front and back</source>
        <translation>Gleicher Wert für Vorder- und Rückseite</translation>
    </message>
    <message>
        <source>Front side</source>
        <translation>Vorderseite</translation>
    </message>
    <message>
        <source>Back side</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <source>LeftPosition</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>RightPosition</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>TopPosition</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>BottomPosition</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Concept Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>(0 - 50 mm)</source>
        <translation>(0 - 50 mm)</translation>
    </message>
    <message>
        <source>(0 - 25 mm)</source>
        <translation>(0 - 25 mm)</translation>
    </message>
    <message>
        <source>(0.00 - 2.00 inches)</source>
        <translation>(0.00 - 2.00 Zoll)</translation>
    </message>
    <message>
        <source>(0.00 - 1.00 inches)</source>
        <translation>(0.00 - 1.00 Zoll)</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>SpecialPagePanelName</source>
        <translation>Sonderseiten</translation>
    </message>
    <message>
        <source>VELSpecialPage</source>
        <translation>Sonderseiten</translation>
    </message>
    <message>
        <source>Page Options</source>
        <translation>Seitenoptionen</translation>
    </message>
    <message>
        <source>Page Type</source>
        <translation>Seitenart</translation>
    </message>
    <message>
        <source>Paper Options</source>
        <translation>Papieroptionen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Zufuhr</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Cover Options</source>
        <translation>Deckblattoptionen</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>PageNumberHint</source>
        <translation>z. B. 2,5-8</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Vorderes Deckblatt</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Hinteres Deckblatt</translation>
    </message>
    <message>
        <source>Front and Back Cover</source>
        <translation>Vorderes und hinteres Deckblatt</translation>
    </message>
    <message>
        <source>Before Page 1</source>
        <translation>Vor Seite 1</translation>
    </message>
    <message>
        <source>After Page(s)</source>
        <translation>Nach Seite(n)</translation>
    </message>
    <message>
        <source>After Page %1</source>
        <translation>Nach Seite %1</translation>
    </message>
    <message>
        <source>Blank or Preprinted</source>
        <translation>Leer oder vorgedruckt</translation>
    </message>
    <message>
        <source>1-Sided Printed</source>
        <translation>Einseitig bedruckt</translation>
    </message>
    <message>
        <source>2-Sided Printed</source>
        <translation>Beidseitig bedruckt</translation>
    </message>
    <message>
        <source>DuplexNone</source>
        <translation>Einseitig</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Inserted Sheet</source>
        <translation>Einlegeblatt</translation>
    </message>
    <message>
        <source>Exception Pages</source>
        <translation>Ausnahmeseiten</translation>
    </message>
    <message>
        <source>PrintErrorTitle</source>
        <translation>Keine Sonderseiten</translation>
    </message>
    <message>
        <source>PrintErrorContent</source>
        <translation>Die Liste der Sonderseiten ist leer. Ohne Sonderseiten drucken?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
</TS>
