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
    <message>
        <source>Graphics/Paper</source>
        <translation>Graphics/Paper</translation>
    </message>
    <message>
        <source>Job Handling</source>
        <translation>Job Handling</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Security</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Levels</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>KEY_DocType</source>
        <translation>Document Type:</translation>
    </message>
    <message>
        <source>KEY_XrayContrast</source>
        <translation>X-Ray Contrast:</translation>
    </message>
    <message>
        <source>KEY_VELResolution</source>
        <translation>Resolution:</translation>
    </message>
    <message>
        <source>KEY_SaveMode</source>
        <translation>Toner Save:</translation>
    </message>
    <message>
        <source>KEY_Darkness</source>
        <translation>Print Density:</translation>
    </message>
    <message>
        <source>KEY_DarkenText</source>
        <translation>Darken Text:</translation>
    </message>
    <message>
        <source>KEY_EdgeEnhance</source>
        <translation>Edge Enhancement:</translation>
    </message>
    <message>
        <source>KEY_FineEdge</source>
        <translation>Fine Edge:</translation>
    </message>
    <message>
        <source>KEY_Trapping</source>
        <translation>Trapping:</translation>
    </message>
    <message>
        <source>KEY_ColorModel</source>
        <translation>Color Mode:</translation>
    </message>
    <message>
        <source>KEY_BlackOptimization</source>
        <translation>Black Optimization:</translation>
    </message>
    <message>
        <source>KEY_CMYKByPass</source>
        <translation>CMYK Bypass:</translation>
    </message>
    <message>
        <source>KEY_VELSimulator</source>
        <translation>Color Simulation:</translation>
    </message>
    <message>
        <source>KEY_RGBColor</source>
        <translation>RGB Color:</translation>
    </message>
    <message>
        <source>KEY_HalftoneLPI</source>
        <translation>Halftone Screen:</translation>
    </message>
    <message>
        <source>KEY_UserDefinedColor</source>
        <translation>User-Defined Color:</translation>
    </message>
    <message>
        <source>KEY_Brightness</source>
        <translation>Brightness:</translation>
    </message>
    <message>
        <source>KEY_Contrast</source>
        <translation>Contrast:</translation>
    </message>
    <message>
        <source>KEY_Saturation</source>
        <translation>Saturation:</translation>
    </message>
    <message>
        <source>KEY_RCBalance</source>
        <translation>Red-Cyan Balance:</translation>
    </message>
    <message>
        <source>KEY_GMBalance</source>
        <translation>Green-Magenta Balance:</translation>
    </message>
    <message>
        <source>KEY_BYBalance</source>
        <translation>Blue-Yellow Balance:</translation>
    </message>
    <message>
        <source>KEY_Skin</source>
        <translation>Skin Tones:</translation>
    </message>
    <message>
        <source>KEY_Grass</source>
        <translation>Greenery:</translation>
    </message>
    <message>
        <source>KEY_Sky</source>
        <translation>Sky:</translation>
    </message>
    <message>
        <source>KEY_PreferredColorCheck</source>
        <translation>Preferred Color</translation>
    </message>
    <message>
        <source>KEY_MediaType</source>
        <translation>Paper Type:</translation>
    </message>
    <message>
        <source>KEY_SeparatorsOption</source>
        <translation>Separator Sheets:</translation>
    </message>
    <message>
        <source>KEY_SeparatorsSource</source>
        <translation>Separator Source:</translation>
    </message>
    <message>
        <source>KEY_SkipBlankpages</source>
        <translation>Skip Blank Pages</translation>
    </message>
    <message>
        <source>KEY_CurlMode</source>
        <translation>Reduce Paper Curl</translation>
    </message>
    <message>
        <source>KEY_ReverseDuplex</source>
        <translation>Reverse Duplex Order</translation>
    </message>
    <message>
        <source>(%@-%@ Alphanumeric)</source>
        <translation>(%@-%@ Alphanumeric)</translation>
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
    <message>
        <source>AdvancedOptions</source>
        <translation>Advanced Options</translation>
    </message>
    <message>
        <source>WatermarkTab</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>BookletTab</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>PosterTab</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>PrintingTip</source>
        <translation>Printing Tips</translation>
    </message>
    <message>
        <source>ConceptPreview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>VELWatermarkOption</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>VELPosterOption</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>VELBookletOption</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>VELFoldMethod</source>
        <translation>Fold Method</translation>
    </message>
    <message>
        <source>VELBookletFinishing</source>
        <translation>Booklet Finishing</translation>
    </message>
    <message>
        <source>BookletOutputPageSize</source>
        <translation>Output Paper Size</translation>
    </message>
    <message>
        <source>VELManualBookletOption</source>
        <translation>Manual Booklet</translation>
    </message>
    <message>
        <source>TopSecret</source>
        <translation>Top Secret</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Poster2x2</source>
        <translation>2 x 2 Pages</translation>
    </message>
    <message>
        <source>Poster3x3</source>
        <translation>3 x 3 Pages</translation>
    </message>
    <message>
        <source>Poster4x4</source>
        <translation>4 x 4 Pages</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>BookletNup</source>
        <translation>Booklet with Pages per Side</translation>
    </message>
    <message>
        <source>AllSheets</source>
        <translation>All Sheets Together</translation>
    </message>
    <message>
        <source>BySet</source>
        <translation>Fold by Set</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Fold</translation>
    </message>
    <message>
        <source>FoldStitch</source>
        <translation>Fold and Staple</translation>
    </message>
    <message>
        <source>FontNameTitle</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>FontStyleTitle</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>FontColorTitle</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>FontSizeTitle</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>FontShadeTitle</source>
        <translation>Density</translation>
    </message>
    <message>
        <source>AngleTitle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>MessageFieldTitle</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>FirstPageButtonTitle</source>
        <translation>First page only</translation>
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
        <translation>No Watermark</translation>
    </message>
    <message>
        <source>ColorGray</source>
        <translation>Gray</translation>
    </message>
    <message>
        <source>ColorRed</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>ColorYellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>ColorGreen</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>ColorCyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>ColorBlue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>ColorMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ExtraDark</source>
        <translation>Extra Dark</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>ExtraLight</source>
        <translation>Extra Light</translation>
    </message>
    <message>
        <source>HorizontalTitle</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>VerticalTitle</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>FreeAngleTitle</source>
        <translation>Custom Angle</translation>
    </message>
    <message>
        <source>SheetsPerSetTitle</source>
        <translation>Sheets per Set</translation>
    </message>
    <message>
        <source>SheetsPerSetTitleSign</source>
        <translation>-</translation>
    </message>
    <message>
        <source>GutterTitle</source>
        <translation>Gutter</translation>
    </message>
    <message>
        <source>GutterSizemmDes</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>GutterSizeInchDes</source>
        <translation>inches (0.00 - 0.98)</translation>
    </message>
    <message>
        <source>RightBindingTitle</source>
        <translation>Right-edge binding</translation>
    </message>
    <message>
        <source>NupTitle</source>
        <translation>Pages per Side of the Booklet</translation>
    </message>
    <message>
        <source>PageBorderTitle</source>
        <translation>Border</translation>
    </message>
    <message>
        <source>PagePerSideTitle</source>
        <translation>Pages per Side</translation>
    </message>
    <message>
        <source>PageOrder</source>
        <translation>Page Order</translation>
    </message>
    <message>
        <source>BorderNone</source>
        <translation>None</translation>
    </message>
    <message>
        <source>BorderSingleHairline</source>
        <translation>Single Hairline</translation>
    </message>
    <message>
        <source>BorderSingleThinLine</source>
        <translation>Single Thin Line</translation>
    </message>
    <message>
        <source>BorderDoubleHairline</source>
        <translation>Double Hairline</translation>
    </message>
    <message>
        <source>BorderDoubleThinLine</source>
        <translation>Double Thin Line</translation>
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
        <translation>Left to Right, Top to Bottom</translation>
    </message>
    <message>
        <source>OrderRightLeftTopBottom</source>
        <translation>Right to Left, Top to Bottom</translation>
    </message>
    <message>
        <source>OrderTopBottomLeftRight</source>
        <translation>Top to Bottom, Left to Right</translation>
    </message>
    <message>
        <source>OrderTopBottomRightLeft</source>
        <translation>Top to Bottom, Right to Left</translation>
    </message>
    <message>
        <source>PrintingTipDescription</source>
        <translation>When both sides are printed by hand (manual 2-sided printing, manual booklets), the printer prints one side of every sheet first; you then turn the stack over and feed it again.</translation>
    </message>
    <message>
        <source>PrintingTipCoverPage</source>
        <translation>Do not use a cover page when both sides are printed by hand.</translation>
    </message>
    <message>
        <source>PrintingTipStep1</source>
        <translation>1. The printer prints the first side of every sheet.</translation>
    </message>
    <message>
        <source>PrintingTipStep2</source>
        <translation>2. Take the printed stack and turn it over.</translation>
    </message>
    <message>
        <source>PrintingTipStep3</source>
        <translation>3. Put it back into the tray, blank side up, and continue.</translation>
    </message>
    <message>
        <source>LayoutTitle</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>OverlapTitle</source>
        <translation>Overlap</translation>
    </message>
    <message>
        <source>OverlapMM</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>OverlapInch</source>
        <translation>inches (0.00 - 1.00)</translation>
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
<context>
    <name>JobControls</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>&amp;Range:</translation>
    </message>
    <message>
        <source>e.g. 1-3, 5</source>
        <translation>e.g. 1-3, 5</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>Paper si&amp;ze:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientation:</translation>
    </message>
    <message>
        <source>Pa&amp;ges per sheet:</source>
        <translation>Pa&amp;ges per sheet:</translation>
    </message>
    <message>
        <source>Co&amp;ver page:</source>
        <translation>Co&amp;ver page:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Reverse portrait</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Reverse landscape</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classified</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidential</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Top secret</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Unclassified</translation>
    </message>
    <message>
        <source>The paper size %1 cannot be used with this printer's installed options.</source>
        <translation>The paper size %1 cannot be used with this printer's installed options.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>The page range &quot;%1&quot; is not valid: give pages and ranges such as 1-3,5,8-.</source>
        <translation>The page range &quot;%1&quot; is not valid: give pages and ranges such as 1-3,5,8-.</translation>
    </message>
</context>
<context>
    <name>LpCommandDialog</name>
    <message>
        <source>Print Command</source>
        <translation>Print Command</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue, so nothing is printed. This command prints the documents with the chosen settings on a queue that uses this PPD (change the name after -d to your queue's name):</source>
        <translation>This printer is a PPD file without a CUPS queue, so nothing is printed. This command prints the documents with the chosen settings on a queue that uses this PPD (change the name after -d to your queue's name):</translation>
    </message>
    <message>
        <source>Passwords and PINs are shown as &lt;hidden&gt;: put yours in their place before running the command.</source>
        <translation>Passwords and PINs are shown as &lt;hidden&gt;: put yours in their place before running the command.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Copied to the clipboard.</source>
        <translation>Copied to the clipboard.</translation>
    </message>
</context>
<context>
    <name>PanelTab</name>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>This panel has no settings to show.</translation>
    </message>
</context>
<context>
    <name>PrintDialogWindow</name>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Documents:</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>Add &amp;Files…</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The printer cannot be used: %1</source>
        <translation>The printer cannot be used: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Print %1</translation>
    </message>
    <message>
        <source>Documents to Print</source>
        <translation>Documents to Print</translation>
    </message>
    <message>
        <source>Show &amp;lp Command…</source>
        <translation>Show &amp;lp Command…</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue: the command that prints with these settings is shown instead.</source>
        <translation>This printer is a PPD file without a CUPS queue: the command that prints with these settings is shown instead.</translation>
    </message>
    <message>
        <source>Add the documents to print first.</source>
        <translation>Add the documents to print first.</translation>
    </message>
    <message>
        <source>%1 set to %2</source>
        <translation>%1 set to %2</translation>
    </message>
    <message>
        <source>To resolve a conflict, %1.</source>
        <translation>To resolve a conflict, %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>the settings of %1 are not complete</source>
        <translation>the settings of %1 are not complete</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Not printed: %1</translation>
    </message>
    <message>
        <source>The job was not printed: %1</source>
        <translation>The job was not printed: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer was changed on the server and cannot be used now: %1</source>
        <translation>The printer was changed on the server and cannot be used now: %1</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the server while this dialog was open: nothing was printed. Its settings were loaded again with your choices; check them and print again.</source>
        <translation>The printer %1 was changed on the server while this dialog was open: nothing was printed. Its settings were loaded again with your choices; check them and print again.</translation>
    </message>
    <message>
        <source>The printer no longer has these choices: %1.</source>
        <translation>The printer no longer has these choices: %1.</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>there is no document to print</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: the folder cannot be made</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 cannot be written</translation>
    </message>
</context>
<context>
    <name>PrintPanelsIntegration</name>
    <message>
        <source>the printer is not a CUPS queue and no PPD file was given</source>
        <translation>the printer is not a CUPS queue and no PPD file was given</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>no printer was opened</source>
        <translation>no printer was opened</translation>
    </message>
    <message>
        <source>no spool file can be made: %1</source>
        <translation>no spool file can be made: %1</translation>
    </message>
    <message>
        <source>applyToPrinter() was not called</source>
        <translation>applyToPrinter() was not called</translation>
    </message>
    <message>
        <source>the printer is a PPD file without a CUPS queue: nothing was sent</source>
        <translation>the printer is a PPD file without a CUPS queue: nothing was sent</translation>
    </message>
</context>
<context>
    <name>PrinterPresetBar</name>
    <message>
        <source>Print&amp;er:</source>
        <translation>Print&amp;er:</translation>
    </message>
    <message>
        <source>Prese&amp;ts:</source>
        <translation>Prese&amp;ts:</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Save As…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>%1 (sample PPD file)</source>
        <translation>%1 (sample PPD file)</translation>
    </message>
    <message>
        <source>%1 (PPD file)</source>
        <translation>%1 (PPD file)</translation>
    </message>
    <message>
        <source>%1 (PPD file %2)</source>
        <translation>%1 (PPD file %2)</translation>
    </message>
    <message>
        <source>Other PPD File…</source>
        <translation>Other PPD File…</translation>
    </message>
    <message>
        <source>Choose a PPD File</source>
        <translation>Choose a PPD File</translation>
    </message>
    <message>
        <source>PPD files (*.ppd *.PPD);;All files (*)</source>
        <translation>PPD files (*.ppd *.PPD);;All files (*)</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Default settings</translation>
    </message>
    <message>
        <source>None (no CUPS queue)</source>
        <translation>None (no CUPS queue)</translation>
    </message>
    <message>
        <source>Presets are kept with a CUPS queue; a PPD file has none.</source>
        <translation>Presets are kept with a CUPS queue; a PPD file has none.</translation>
    </message>
    <message>
        <source>Presets cannot be read: %1</source>
        <translation>Presets cannot be read: %1</translation>
    </message>
    <message>
        <source>The printer's default settings are used.</source>
        <translation>The printer's default settings are used.</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; chosen.</source>
        <translation>Preset &quot;%1&quot; chosen.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Save Preset</translation>
    </message>
    <message>
        <source>Save the current settings as the preset:</source>
        <translation>Save the current settings as the preset:</translation>
    </message>
    <message>
        <source>The preset cannot be saved: %1</source>
        <translation>The preset cannot be saved: %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; saved. Passwords and PINs are not kept in presets.</source>
        <translation>Preset &quot;%1&quot; saved. Passwords and PINs are not kept in presets.</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Delete the preset &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The preset cannot be deleted: %1</source>
        <translation>The preset cannot be deleted: %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; deleted.</source>
        <translation>Preset &quot;%1&quot; deleted.</translation>
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
        <translation>Make and model: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Location: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>State: %1</translation>
    </message>
    <message>
        <source>Your default printer</source>
        <translation>Your default printer</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>stopped</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>printing</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>idle</translation>
    </message>
    <message>
        <source>%1, not accepting jobs</source>
        <translation>%1, not accepting jobs</translation>
    </message>
    <message>
        <source>Defa&amp;ults</source>
        <translation>Defa&amp;ults</translation>
    </message>
    <message>
        <source>Use as My Defaults for This Printer</source>
        <translation>Use as My Defaults for This Printer</translation>
    </message>
    <message>
        <source>Every application's print dialog and lp start from these settings on this printer.</source>
        <translation>Every application's print dialog and lp start from these settings on this printer.</translation>
    </message>
    <message>
        <source>Make This My Default Printer</source>
        <translation>Make This My Default Printer</translation>
    </message>
    <message>
        <source>Make This Preset My Default Printer</source>
        <translation>Make This Preset My Default Printer</translation>
    </message>
    <message>
        <source>A preset named &quot;%1&quot; exists. Replace it?</source>
        <translation>A preset named &quot;%1&quot; exists. Replace it?</translation>
    </message>
    <message>
        <source>The defaults cannot be saved: %1</source>
        <translation>The defaults cannot be saved: %1</translation>
    </message>
    <message>
        <source>These settings are now your defaults for %1. Passwords and PINs are not kept.</source>
        <translation>These settings are now your defaults for %1. Passwords and PINs are not kept.</translation>
    </message>
    <message>
        <source>The default printer cannot be set: %1</source>
        <translation>The default printer cannot be set: %1</translation>
    </message>
    <message>
        <source>%1 is now your default printer.</source>
        <translation>%1 is now your default printer.</translation>
    </message>
</context>
<context>
    <name>PanelStack</name>
    <message>
        <source>Setting</source>
        <translation>Setting</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>%1 cannot be left yet: check its settings first.</source>
        <translation>%1 cannot be left yet: check its settings first.</translation>
    </message>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>This panel has no settings to show.</translation>
    </message>
    <message>
        <source>No settings to summarize</source>
        <translation>No settings to summarize</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(hidden)</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Job Setting</source>
        <translation>Job Setting</translation>
    </message>
    <message>
        <source>Job Accounting</source>
        <translation>Job Accounting</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature</source>
        <translation>You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature</source>
        <translation>You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature</translation>
    </message>
    <message>
        <source>You must enter a 4-32 digit PIN Code.</source>
        <translation>You must enter a 4-32 digit PIN Code.</translation>
    </message>
    <message>
        <source>Job Accounting Confirmation</source>
        <translation>Job Accounting Confirmation</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>Account ID</translation>
    </message>
    <message>
        <source>Enter the account to charge for this job, then click OK to print.</source>
        <translation>Enter the account to charge for this job, then click OK to print.</translation>
        <source>KEY_SortOptions</source>
        <translation>Sorting:</translation>
    </message>
    <message>
        <source>KEY_StapleLocation</source>
        <translation>Staple:</translation>
    </message>
    <message>
        <source>KEY_StaplePosition</source>
        <translation>Staple Position:</translation>
    </message>
    <message>
        <source>KEY_Punch</source>
        <translation>Hole Punch:</translation>
    </message>
    <message>
        <source>KEY_PunchPosition</source>
        <translation>Punch Position:</translation>
    </message>
    <message>
        <source>KEY_OutputMode</source>
        <translation>Output Mode:</translation>
    </message>
    <message>
        <source>KEY_OutputBin</source>
        <translation>Output Bin:</translation>
    </message>
    <message>
        <source>KEY_FoldingOptions</source>
        <translation>Folding:</translation>
    </message>
    <message>
        <source>KEY_CFoldingPattern</source>
        <translation>Fold Pattern:</translation>
    </message>
    <message>
        <source>KEY_CFoldingDivideSet</source>
        <translation>Sheets per Set:</translation>
    </message>
    <message>
        <source>(1 - %d)</source>
        <translation>(1 - %d)</translation>
    </message>
    <message>
        <source>Hard Copy Security</source>
        <translation>Hard Copy Security</translation>
    </message>
    <message>
        <source>KEY_SecuTrue</source>
        <translation>Secure Release:</translation>
    </message>
    <message>
        <source>KEY_SecuTrueUserID</source>
        <translation>User ID:</translation>
    </message>
    <message>
        <source>KEY_HardCopySecurity</source>
        <translation>Hard Copy Security:</translation>
    </message>
    <message>
        <source>KEY_HardCopyCurrSecureWatermark</source>
        <translation>Watermark Text:</translation>
    </message>
    <message>
        <source>KEY_HCSCustomWatermark</source>
        <translation>Custom Text:</translation>
    </message>
    <message>
        <source>KEY_HardCopySize</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>KEY_HardCopyDirection</source>
        <translation>Direction:</translation>
    </message>
    <message>
        <source>KEY_HardCopyPattern</source>
        <translation>Background Pattern:</translation>
    </message>
    <message>
        <source>KEY_HardCopyColor</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>KEY_HardCopyDarkness</source>
        <translation>Density:</translation>
    </message>
    <message>
        <source>KEY_HardCopyEnterPassword</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>KEY_HCSConfirmPassword</source>
        <translation>Confirm Password:</translation>
    </message>
    <message>
        <source>You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.</source>
        <translation>You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation>Confirm Password:</translation>
    </message>
    <message>
        <source>PIN Code:</source>
        <translation>PIN Code:</translation>
    </message>
    <message>
        <source>Confirm PIN Code:</source>
        <translation>Confirm PIN Code:</translation>
    </message>
</context>
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>ManualDuplex</source>
        <translation>Manual 2-Sided Printing</translation>
    </message>
    <message>
        <source>SecureRelease</source>
        <translation>Secure Release</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>User ID</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>ManualMarginPanelName</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Margin for</source>
        <translation>Margin For</translation>
    </message>
    <message>
        <source>VELMarginFor</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>VELBindingPosition</source>
        <translation>Binding Position</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Auto Reduction</source>
        <translation>Reduce the page to fit</translation>
    </message>
    <message>
        <source>Same value for front and back</source>
        <translation>Same value for front and back</translation>
    </message>
    <message>
        <source>Front side</source>
        <translation>Front side</translation>
    </message>
    <message>
        <source>Back side</source>
        <translation>Back side</translation>
    </message>
    <message>
        <source>LeftPosition</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>RightPosition</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>TopPosition</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>BottomPosition</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Concept Preview</source>
        <translation>Preview</translation>
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
        <translation>(0.00 - 2.00 inches)</translation>
    </message>
    <message>
        <source>(0.00 - 1.00 inches)</source>
        <translation>(0.00 - 1.00 inches)</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>SpecialPagePanelName</source>
        <translation>Special Pages</translation>
    </message>
    <message>
        <source>VELSpecialPage</source>
        <translation>Special Pages</translation>
    </message>
    <message>
        <source>Page Options</source>
        <translation>Page Options</translation>
    </message>
    <message>
        <source>Page Type</source>
        <translation>Page Type</translation>
    </message>
    <message>
        <source>Paper Options</source>
        <translation>Paper Options</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Cover Options</source>
        <translation>Cover Options</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Double-Sided Printing</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>PageNumberHint</source>
        <translation>e.g. 2,5-8</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Front Cover</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Back Cover</translation>
    </message>
    <message>
        <source>Front and Back Cover</source>
        <translation>Front and Back Cover</translation>
    </message>
    <message>
        <source>Before Page 1</source>
        <translation>Before Page 1</translation>
    </message>
    <message>
        <source>After Page(s)</source>
        <translation>After Page(s)</translation>
    </message>
    <message>
        <source>After Page %1</source>
        <translation>After Page %1</translation>
    </message>
    <message>
        <source>Blank or Preprinted</source>
        <translation>Blank or Preprinted</translation>
    </message>
    <message>
        <source>1-Sided Printed</source>
        <translation>1-Sided Printed</translation>
    </message>
    <message>
        <source>2-Sided Printed</source>
        <translation>2-Sided Printed</translation>
    </message>
    <message>
        <source>DuplexNone</source>
        <translation>1-Sided</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Long Edge</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Short Edge</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Inserted Sheet</source>
        <translation>Inserted Sheet</translation>
    </message>
    <message>
        <source>Exception Pages</source>
        <translation>Exception Pages</translation>
    </message>
    <message>
        <source>PrintErrorTitle</source>
        <translation>No special pages</translation>
    </message>
    <message>
        <source>PrintErrorContent</source>
        <translation>The list of special pages is empty. Print without special pages?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
</TS>
