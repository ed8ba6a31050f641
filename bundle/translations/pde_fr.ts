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
    <message>
        <source>Graphics/Paper</source>
        <translation>Graphiques/Papier</translation>
    </message>
    <message>
        <source>Job Handling</source>
        <translation>Gestion des travaux</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Niveaux</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>KEY_DocType</source>
        <translation>Type de document :</translation>
    </message>
    <message>
        <source>KEY_XrayContrast</source>
        <translation>Contraste radiographique :</translation>
    </message>
    <message>
        <source>KEY_VELResolution</source>
        <translation>Résolution :</translation>
    </message>
    <message>
        <source>KEY_SaveMode</source>
        <translation>Économie de toner :</translation>
    </message>
    <message>
        <source>KEY_Darkness</source>
        <translation>Densité d'impression :</translation>
    </message>
    <message>
        <source>KEY_DarkenText</source>
        <translation>Assombrir le texte :</translation>
    </message>
    <message>
        <source>KEY_EdgeEnhance</source>
        <translation>Amélioration des contours :</translation>
    </message>
    <message>
        <source>KEY_FineEdge</source>
        <translation>Contours fins :</translation>
    </message>
    <message>
        <source>KEY_Trapping</source>
        <translation>Recouvrement :</translation>
    </message>
    <message>
        <source>KEY_ColorModel</source>
        <translation>Mode couleur :</translation>
    </message>
    <message>
        <source>KEY_BlackOptimization</source>
        <translation>Optimisation du noir :</translation>
    </message>
    <message>
        <source>KEY_CMYKByPass</source>
        <translation>Contournement CMJN :</translation>
    </message>
    <message>
        <source>KEY_VELSimulator</source>
        <translation>Simulation des couleurs :</translation>
    </message>
    <message>
        <source>KEY_RGBColor</source>
        <translation>Couleur RVB :</translation>
    </message>
    <message>
        <source>KEY_HalftoneLPI</source>
        <translation>Trame de demi-teinte :</translation>
    </message>
    <message>
        <source>KEY_UserDefinedColor</source>
        <translation>Couleur personnalisée :</translation>
    </message>
    <message>
        <source>KEY_Brightness</source>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>KEY_Contrast</source>
        <translation>Contraste :</translation>
    </message>
    <message>
        <source>KEY_Saturation</source>
        <translation>Saturation :</translation>
    </message>
    <message>
        <source>KEY_RCBalance</source>
        <translation>Équilibre rouge-cyan :</translation>
    </message>
    <message>
        <source>KEY_GMBalance</source>
        <translation>Équilibre vert-magenta :</translation>
    </message>
    <message>
        <source>KEY_BYBalance</source>
        <translation>Équilibre bleu-jaune :</translation>
    </message>
    <message>
        <source>KEY_Skin</source>
        <translation>Tons chair :</translation>
    </message>
    <message>
        <source>KEY_Grass</source>
        <translation>Verdure :</translation>
    </message>
    <message>
        <source>KEY_Sky</source>
        <translation>Ciel :</translation>
    </message>
    <message>
        <source>KEY_PreferredColorCheck</source>
        <translation>Couleur préférée</translation>
    </message>
    <message>
        <source>KEY_MediaType</source>
        <translation>Type de papier :</translation>
    </message>
    <message>
        <source>KEY_SeparatorsOption</source>
        <translation>Intercalaires :</translation>
    </message>
    <message>
        <source>KEY_SeparatorsSource</source>
        <translation>Source des intercalaires :</translation>
    </message>
    <message>
        <source>KEY_SkipBlankpages</source>
        <translation>Ignorer les pages blanches</translation>
    </message>
    <message>
        <source>KEY_CurlMode</source>
        <translation>Réduire le gondolage</translation>
    </message>
    <message>
        <source>KEY_ReverseDuplex</source>
        <translation>Recto verso inversé</translation>
    </message>
    <message>
        <source>(%@-%@ Alphanumeric)</source>
        <translation>(%@-%@ alphanumériques)</translation>
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
    <message>
        <source>AdvancedOptions</source>
        <translation>Options avancées</translation>
    </message>
    <message>
        <source>WatermarkTab</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>BookletTab</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>PosterTab</source>
        <translation>Affiche</translation>
    </message>
    <message>
        <source>PrintingTip</source>
        <translation>Conseils d'impression</translation>
    </message>
    <message>
        <source>ConceptPreview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>VELWatermarkOption</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>VELPosterOption</source>
        <translation>Affiche</translation>
    </message>
    <message>
        <source>VELBookletOption</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>VELFoldMethod</source>
        <translation>Méthode de pliage</translation>
    </message>
    <message>
        <source>VELBookletFinishing</source>
        <translation>Finition du livret</translation>
    </message>
    <message>
        <source>BookletOutputPageSize</source>
        <translation>Format du papier de sortie</translation>
    </message>
    <message>
        <source>VELManualBookletOption</source>
        <translation>Livret manuel</translation>
    </message>
    <message>
        <source>TopSecret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Poster2x2</source>
        <translation>2 x 2 pages</translation>
    </message>
    <message>
        <source>Poster3x3</source>
        <translation>3 x 3 pages</translation>
    </message>
    <message>
        <source>Poster4x4</source>
        <translation>4 x 4 pages</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>BookletNup</source>
        <translation>Livret avec plusieurs pages par face</translation>
    </message>
    <message>
        <source>AllSheets</source>
        <translation>Toutes les feuilles ensemble</translation>
    </message>
    <message>
        <source>BySet</source>
        <translation>Pliage par jeu</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>FoldStitch</source>
        <translation>Plier et agrafer</translation>
    </message>
    <message>
        <source>FontNameTitle</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>FontStyleTitle</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>FontColorTitle</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>FontSizeTitle</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>FontShadeTitle</source>
        <translation>Densité</translation>
    </message>
    <message>
        <source>AngleTitle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>MessageFieldTitle</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>FirstPageButtonTitle</source>
        <translation>Première page uniquement</translation>
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
        <translation>Aucun filigrane</translation>
    </message>
    <message>
        <source>ColorGray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>ColorRed</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>ColorYellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>ColorGreen</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>ColorCyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>ColorBlue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>ColorMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ExtraDark</source>
        <translation>Très foncé</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Foncé</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>ExtraLight</source>
        <translation>Très clair</translation>
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
        <translation>Angle personnalisé</translation>
    </message>
    <message>
        <source>SheetsPerSetTitle</source>
        <translation>Feuilles par jeu</translation>
    </message>
    <message>
        <source>SheetsPerSetTitleSign</source>
        <translation>-</translation>
    </message>
    <message>
        <source>GutterTitle</source>
        <translation>Gouttière</translation>
    </message>
    <message>
        <source>GutterSizemmDes</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>GutterSizeInchDes</source>
        <translation>pouces (0,00 - 0,98)</translation>
    </message>
    <message>
        <source>RightBindingTitle</source>
        <translation>Reliure à droite</translation>
    </message>
    <message>
        <source>NupTitle</source>
        <translation>Pages par face du livret</translation>
    </message>
    <message>
        <source>PageBorderTitle</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>PagePerSideTitle</source>
        <translation>Pages par face</translation>
    </message>
    <message>
        <source>PageOrder</source>
        <translation>Ordre des pages</translation>
    </message>
    <message>
        <source>BorderNone</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>BorderSingleHairline</source>
        <translation>Filet simple</translation>
    </message>
    <message>
        <source>BorderSingleThinLine</source>
        <translation>Trait fin simple</translation>
    </message>
    <message>
        <source>BorderDoubleHairline</source>
        <translation>Filet double</translation>
    </message>
    <message>
        <source>BorderDoubleThinLine</source>
        <translation>Trait fin double</translation>
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
        <translation>De gauche à droite, de haut en bas</translation>
    </message>
    <message>
        <source>OrderRightLeftTopBottom</source>
        <translation>De droite à gauche, de haut en bas</translation>
    </message>
    <message>
        <source>OrderTopBottomLeftRight</source>
        <translation>De haut en bas, de gauche à droite</translation>
    </message>
    <message>
        <source>OrderTopBottomRightLeft</source>
        <translation>De haut en bas, de droite à gauche</translation>
    </message>
    <message>
        <source>PrintingTipDescription</source>
        <translation>Quand les deux côtés sont imprimés à la main (recto verso manuel, livret manuel), l'imprimante imprime d'abord un côté de chaque feuille ; retournez ensuite la pile et remettez-la dans le bac.</translation>
    </message>
    <message>
        <source>PrintingTipCoverPage</source>
        <translation>N'utilisez pas de page de garde quand les deux côtés sont imprimés à la main.</translation>
    </message>
    <message>
        <source>PrintingTipStep1</source>
        <translation>1. L'imprimante imprime le premier côté de chaque feuille.</translation>
    </message>
    <message>
        <source>PrintingTipStep2</source>
        <translation>2. Prenez la pile imprimée et retournez-la.</translation>
    </message>
    <message>
        <source>PrintingTipStep3</source>
        <translation>3. Remettez-la dans le bac, face vierge vers le haut, et continuez.</translation>
    </message>
    <message>
        <source>LayoutTitle</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>OverlapTitle</source>
        <translation>Chevauchement</translation>
    </message>
    <message>
        <source>OverlapMM</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>OverlapInch</source>
        <translation>pouces (0,00 - 1,00)</translation>
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
<context>
    <name>JobControls</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages :</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Toutes</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>&amp;Plage :</translation>
    </message>
    <message>
        <source>e.g. 1-3, 5</source>
        <translation>p. ex. 1-3, 5</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>Format du papi&amp;er :</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientation :</translation>
    </message>
    <message>
        <source>Pa&amp;ges per sheet:</source>
        <translation>Pages par &amp;feuille :</translation>
    </message>
    <message>
        <source>Co&amp;ver page:</source>
        <translation>Page de &amp;garde :</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Portrait inversé</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Paysage inversé</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>The paper size %1 cannot be used with this printer's installed options.</source>
        <translation>Le format de papier %1 ne peut pas être utilisé avec les options installées de cette imprimante.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>The page range &quot;%1&quot; is not valid: give pages and ranges such as 1-3,5,8-.</source>
        <translation>La plage de pages « %1 » n’est pas valide : indiquez des pages et des plages comme 1-3,5,8-.</translation>
    </message>
</context>
<context>
    <name>LpCommandDialog</name>
    <message>
        <source>Print Command</source>
        <translation>Commande d’impression</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue, so nothing is printed. This command prints the documents with the chosen settings on a queue that uses this PPD (change the name after -d to your queue's name):</source>
        <translation>Cette imprimante est un fichier PPD sans file d’attente CUPS : rien n’est imprimé. Cette commande imprime les documents avec les réglages choisis sur une file d’attente qui utilise ce PPD (remplacez le nom après -d par celui de votre file d’attente) :</translation>
    </message>
    <message>
        <source>Passwords and PINs are shown as &lt;hidden&gt;: put yours in their place before running the command.</source>
        <translation>Les mots de passe et les codes PIN apparaissent comme &lt;hidden&gt; : remplacez-les par les vôtres avant de lancer la commande.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Copied to the clipboard.</source>
        <translation>Copiée dans le presse-papiers.</translation>
    </message>
</context>
<context>
    <name>PanelTab</name>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>Ce panneau n’a aucun réglage à afficher.</translation>
    </message>
</context>
<context>
    <name>PrintDialogWindow</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Documents :</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>Ajo&amp;uter des fichiers…</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The printer cannot be used: %1</source>
        <translation>L’imprimante ne peut pas être utilisée : %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Documents to Print</source>
        <translation>Documents à imprimer</translation>
    </message>
    <message>
        <source>Show &amp;lp Command…</source>
        <translation>Afficher la commande &amp;lp…</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue: the command that prints with these settings is shown instead.</source>
        <translation>Cette imprimante est un fichier PPD sans file d’attente CUPS : la commande qui imprime avec ces réglages est affichée à la place.</translation>
    </message>
    <message>
        <source>Add the documents to print first.</source>
        <translation>Ajoutez d’abord les documents à imprimer.</translation>
    </message>
    <message>
        <source>%1 set to %2</source>
        <translation>%1 réglé sur %2</translation>
    </message>
    <message>
        <source>To resolve a conflict, %1.</source>
        <translation>Pour résoudre un conflit : %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>the settings of %1 are not complete</source>
        <translation>les réglages de %1 sont incomplets</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Non imprimé : %1</translation>
    </message>
    <message>
        <source>The job was not printed: %1</source>
        <translation>La tâche n’a pas été imprimée : %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The printer was changed on the server and cannot be used now: %1</source>
        <translation>L’imprimante a été modifiée sur le serveur et ne peut pas être utilisée maintenant : %1</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the server while this dialog was open: nothing was printed. Its settings were loaded again with your choices; check them and print again.</source>
        <translation>L’imprimante %1 a été modifiée sur le serveur pendant que ce dialogue était ouvert : rien n’a été imprimé. Ses réglages ont été rechargés avec vos choix ; vérifiez-les et imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The printer no longer has these choices: %1.</source>
        <translation>L’imprimante n’offre plus ces choix : %1.</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>il n’y a aucun document à imprimer</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1 : le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>PrintPanelsIntegration</name>
    <message>
        <source>the printer is not a CUPS queue and no PPD file was given</source>
        <translation>l’imprimante n’est pas une file d’attente CUPS et aucun fichier PPD n’a été donné</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>no printer was opened</source>
        <translation>aucune imprimante n’a été ouverte</translation>
    </message>
    <message>
        <source>no spool file can be made: %1</source>
        <translation>aucun fichier d’impression ne peut être créé : %1</translation>
    </message>
    <message>
        <source>applyToPrinter() was not called</source>
        <translation>applyToPrinter() n’a pas été appelée</translation>
    </message>
    <message>
        <source>the printer is a PPD file without a CUPS queue: nothing was sent</source>
        <translation>l’imprimante est un fichier PPD sans file d’attente CUPS : rien n’a été envoyé</translation>
    </message>
</context>
<context>
    <name>PrinterPresetBar</name>
    <message>
        <source>Print&amp;er:</source>
        <translation>Imprima&amp;nte :</translation>
    </message>
    <message>
        <source>Prese&amp;ts:</source>
        <translation>Pré&amp;réglages :</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Suppri&amp;mer</translation>
    </message>
    <message>
        <source>%1 (sample PPD file)</source>
        <translation>%1 (fichier PPD d’exemple)</translation>
    </message>
    <message>
        <source>%1 (PPD file)</source>
        <translation>%1 (fichier PPD)</translation>
    </message>
    <message>
        <source>%1 (PPD file %2)</source>
        <translation>%1 (fichier PPD %2)</translation>
    </message>
    <message>
        <source>Other PPD File…</source>
        <translation>Autre fichier PPD…</translation>
    </message>
    <message>
        <source>Choose a PPD File</source>
        <translation>Choisir un fichier PPD</translation>
    </message>
    <message>
        <source>PPD files (*.ppd *.PPD);;All files (*)</source>
        <translation>Fichiers PPD (*.ppd *.PPD);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Réglages par défaut</translation>
    </message>
    <message>
        <source>None (no CUPS queue)</source>
        <translation>Aucun (pas de file d’attente CUPS)</translation>
    </message>
    <message>
        <source>Presets are kept with a CUPS queue; a PPD file has none.</source>
        <translation>Les préréglages sont conservés avec une file d’attente CUPS ; un fichier PPD n’en a pas.</translation>
    </message>
    <message>
        <source>Presets cannot be read: %1</source>
        <translation>Les préréglages ne peuvent pas être lus : %1</translation>
    </message>
    <message>
        <source>The printer's default settings are used.</source>
        <translation>Les réglages par défaut de l’imprimante sont utilisés.</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; chosen.</source>
        <translation>Préréglage « %1 » choisi.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>Save the current settings as the preset:</source>
        <translation>Enregistrer les réglages actuels comme préréglage :</translation>
    </message>
    <message>
        <source>The preset cannot be saved: %1</source>
        <translation>Le préréglage ne peut pas être enregistré : %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; saved. Passwords and PINs are not kept in presets.</source>
        <translation>Préréglage « %1 » enregistré. Les mots de passe et les codes PIN ne sont pas conservés dans les préréglages.</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Supprimer le préréglage « %1 » ?</translation>
    </message>
    <message>
        <source>The preset cannot be deleted: %1</source>
        <translation>Le préréglage ne peut pas être supprimé : %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; deleted.</source>
        <translation>Préréglage « %1 » supprimé.</translation>
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
        <translation>Marque et modèle : %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Emplacement : %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>Your default printer</source>
        <translation>Votre imprimante par défaut</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>en impression</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactive</translation>
    </message>
    <message>
        <source>%1, not accepting jobs</source>
        <translation>%1, n’accepte pas de travaux</translation>
    </message>
    <message>
        <source>Defa&amp;ults</source>
        <translation>Par &amp;défaut</translation>
    </message>
    <message>
        <source>Use as My Defaults for This Printer</source>
        <translation>Utiliser comme mes réglages par défaut pour cette imprimante</translation>
    </message>
    <message>
        <source>Every application's print dialog and lp start from these settings on this printer.</source>
        <translation>Les dialogues d’impression de toutes les applications et lp partent de ces réglages sur cette imprimante.</translation>
    </message>
    <message>
        <source>Make This My Default Printer</source>
        <translation>Définir comme mon imprimante par défaut</translation>
    </message>
    <message>
        <source>Make This Preset My Default Printer</source>
        <translation>Définir ce préréglage comme mon imprimante par défaut</translation>
    </message>
    <message>
        <source>A preset named &quot;%1&quot; exists. Replace it?</source>
        <translation>Un préréglage nommé « %1 » existe. Le remplacer ?</translation>
    </message>
    <message>
        <source>The defaults cannot be saved: %1</source>
        <translation>Les réglages par défaut ne peuvent pas être enregistrés : %1</translation>
    </message>
    <message>
        <source>These settings are now your defaults for %1. Passwords and PINs are not kept.</source>
        <translation>Ces réglages sont désormais vos réglages par défaut pour %1. Les mots de passe et codes PIN ne sont pas conservés.</translation>
    </message>
    <message>
        <source>The default printer cannot be set: %1</source>
        <translation>L’imprimante par défaut ne peut pas être définie : %1</translation>
    </message>
    <message>
        <source>%1 is now your default printer.</source>
        <translation>%1 est désormais votre imprimante par défaut.</translation>
    </message>
</context>
<context>
    <name>PanelStack</name>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>%1 cannot be left yet: check its settings first.</source>
        <translation>Impossible de quitter %1 pour l’instant : vérifiez d’abord ses réglages.</translation>
    </message>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>Ce panneau n’a aucun réglage à afficher.</translation>
    </message>
    <message>
        <source>No settings to summarize</source>
        <translation>Aucun réglage à résumer</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(masqué)</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Job Setting</source>
        <translation>Paramètres du travail</translation>
    </message>
    <message>
        <source>Job Accounting</source>
        <translation>Comptabilité des travaux</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature</source>
        <translation>Saisissez un mot de passe alphanumérique, puis saisissez-le de nouveau pour confirmation, afin d'utiliser le mode d'impression.</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature</source>
        <translation>Saisissez un mot de passe alphanumérique, puis saisissez-le de nouveau pour confirmation, afin d'utiliser la comptabilité des travaux.</translation>
    </message>
    <message>
        <source>You must enter a 4-32 digit PIN Code.</source>
        <translation>Saisissez un code PIN de 4 à 32 chiffres.</translation>
    </message>
    <message>
        <source>Job Accounting Confirmation</source>
        <translation>Confirmation de la comptabilité des travaux</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>ID de compte</translation>
    </message>
    <message>
        <source>Enter the account to charge for this job, then click OK to print.</source>
        <translation>Saisissez le compte à débiter pour ce travail, puis cliquez sur OK pour imprimer.</translation>
        <source>KEY_SortOptions</source>
        <translation>Tri :</translation>
    </message>
    <message>
        <source>KEY_StapleLocation</source>
        <translation>Agrafage :</translation>
    </message>
    <message>
        <source>KEY_StaplePosition</source>
        <translation>Position d'agrafage :</translation>
    </message>
    <message>
        <source>KEY_Punch</source>
        <translation>Perforation :</translation>
    </message>
    <message>
        <source>KEY_PunchPosition</source>
        <translation>Position de perforation :</translation>
    </message>
    <message>
        <source>KEY_OutputMode</source>
        <translation>Mode de sortie :</translation>
    </message>
    <message>
        <source>KEY_OutputBin</source>
        <translation>Bac de sortie :</translation>
    </message>
    <message>
        <source>KEY_FoldingOptions</source>
        <translation>Pliage :</translation>
    </message>
    <message>
        <source>KEY_CFoldingPattern</source>
        <translation>Motif de pliage :</translation>
    </message>
    <message>
        <source>KEY_CFoldingDivideSet</source>
        <translation>Feuilles par jeu :</translation>
    </message>
    <message>
        <source>(1 - %d)</source>
        <translation>(1 - %d)</translation>
    </message>
    <message>
        <source>Hard Copy Security</source>
        <translation>Sécurité des impressions</translation>
    </message>
    <message>
        <source>KEY_SecuTrue</source>
        <translation>Libération sécurisée :</translation>
    </message>
    <message>
        <source>KEY_SecuTrueUserID</source>
        <translation>ID utilisateur :</translation>
    </message>
    <message>
        <source>KEY_HardCopySecurity</source>
        <translation>Sécurité des impressions :</translation>
    </message>
    <message>
        <source>KEY_HardCopyCurrSecureWatermark</source>
        <translation>Texte du filigrane :</translation>
    </message>
    <message>
        <source>KEY_HCSCustomWatermark</source>
        <translation>Texte personnalisé :</translation>
    </message>
    <message>
        <source>KEY_HardCopySize</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>KEY_HardCopyDirection</source>
        <translation>Orientation :</translation>
    </message>
    <message>
        <source>KEY_HardCopyPattern</source>
        <translation>Motif de fond :</translation>
    </message>
    <message>
        <source>KEY_HardCopyColor</source>
        <translation>Couleur :</translation>
    </message>
    <message>
        <source>KEY_HardCopyDarkness</source>
        <translation>Densité :</translation>
    </message>
    <message>
        <source>KEY_HardCopyEnterPassword</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>KEY_HCSConfirmPassword</source>
        <translation>Confirmer le mot de passe :</translation>
    </message>
    <message>
        <source>You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.</source>
        <translation>Saisissez un mot de passe alphanumérique de 1 à 9 caractères et confirmez-le pour utiliser le travail protégé par mot de passe.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation>Confirmer le mot de passe :</translation>
    </message>
    <message>
        <source>PIN Code:</source>
        <translation>Code PIN :</translation>
    </message>
    <message>
        <source>Confirm PIN Code:</source>
        <translation>Confirmer le code PIN :</translation>
    </message>
</context>
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>ManualDuplex</source>
        <translation>Recto verso manuel</translation>
    </message>
    <message>
        <source>SecureRelease</source>
        <translation>Libération sécurisée</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>ID utilisateur</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>ManualMarginPanelName</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Margin for</source>
        <translation>Marge pour</translation>
    </message>
    <message>
        <source>VELMarginFor</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>VELBindingPosition</source>
        <translation>Position de reliure</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Auto Reduction</source>
        <translation>Réduire la page pour l'adapter</translation>
    </message>
    <message>
        <source>Same value for front and back</source>
        <translation>Même valeur recto et verso</translation>
    </message>
    <message>
        <source>Front side</source>
        <translation>Recto</translation>
    </message>
    <message>
        <source>Back side</source>
        <translation>Verso</translation>
    </message>
    <message>
        <source>LeftPosition</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>RightPosition</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>TopPosition</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>BottomPosition</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Concept Preview</source>
        <translation>Aperçu</translation>
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
        <translation>(0.00 - 2.00 pouces)</translation>
    </message>
    <message>
        <source>(0.00 - 1.00 inches)</source>
        <translation>(0.00 - 1.00 pouce)</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>SpecialPagePanelName</source>
        <translation>Pages spéciales</translation>
    </message>
    <message>
        <source>VELSpecialPage</source>
        <translation>Pages spéciales</translation>
    </message>
    <message>
        <source>Page Options</source>
        <translation>Options de page</translation>
    </message>
    <message>
        <source>Page Type</source>
        <translation>Type de page</translation>
    </message>
    <message>
        <source>Paper Options</source>
        <translation>Options papier</translation>
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
        <translation>Options de couverture</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>PageNumberHint</source>
        <translation>p. ex. 2,5-8</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Couverture avant</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Couverture arrière</translation>
    </message>
    <message>
        <source>Front and Back Cover</source>
        <translation>Couvertures avant et arrière</translation>
    </message>
    <message>
        <source>Before Page 1</source>
        <translation>Avant la page 1</translation>
    </message>
    <message>
        <source>After Page(s)</source>
        <translation>Après la/les page(s)</translation>
    </message>
    <message>
        <source>After Page %1</source>
        <translation>Après la page %1</translation>
    </message>
    <message>
        <source>Blank or Preprinted</source>
        <translation>Vierge ou préimprimée</translation>
    </message>
    <message>
        <source>1-Sided Printed</source>
        <translation>Imprimée recto</translation>
    </message>
    <message>
        <source>2-Sided Printed</source>
        <translation>Imprimée recto verso</translation>
    </message>
    <message>
        <source>DuplexNone</source>
        <translation>Recto</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Inserted Sheet</source>
        <translation>Intercalaire</translation>
    </message>
    <message>
        <source>Exception Pages</source>
        <translation>Pages d'exception</translation>
    </message>
    <message>
        <source>PrintErrorTitle</source>
        <translation>Aucune page spéciale</translation>
    </message>
    <message>
        <source>PrintErrorContent</source>
        <translation>La liste des pages spéciales est vide. Imprimer sans pages spéciales ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
</TS>
