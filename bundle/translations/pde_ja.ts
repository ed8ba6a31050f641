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
    <message>
        <source>Graphics/Paper</source>
        <translation>グラフィックス/用紙</translation>
    </message>
    <message>
        <source>Job Handling</source>
        <translation>ジョブ処理</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>KEY_DocType</source>
        <translation>原稿の種類:</translation>
    </message>
    <message>
        <source>KEY_XrayContrast</source>
        <translation>X線コントラスト:</translation>
    </message>
    <message>
        <source>KEY_VELResolution</source>
        <translation>解像度:</translation>
    </message>
    <message>
        <source>KEY_SaveMode</source>
        <translation>トナー節約:</translation>
    </message>
    <message>
        <source>KEY_Darkness</source>
        <translation>印刷濃度:</translation>
    </message>
    <message>
        <source>KEY_DarkenText</source>
        <translation>文字を濃くする:</translation>
    </message>
    <message>
        <source>KEY_EdgeEnhance</source>
        <translation>エッジ強調:</translation>
    </message>
    <message>
        <source>KEY_FineEdge</source>
        <translation>ファインエッジ:</translation>
    </message>
    <message>
        <source>KEY_Trapping</source>
        <translation>トラッピング:</translation>
    </message>
    <message>
        <source>KEY_ColorModel</source>
        <translation>カラーモード:</translation>
    </message>
    <message>
        <source>KEY_BlackOptimization</source>
        <translation>黒の最適化:</translation>
    </message>
    <message>
        <source>KEY_CMYKByPass</source>
        <translation>CMYKバイパス:</translation>
    </message>
    <message>
        <source>KEY_VELSimulator</source>
        <translation>カラーシミュレーション:</translation>
    </message>
    <message>
        <source>KEY_RGBColor</source>
        <translation>RGBカラー:</translation>
    </message>
    <message>
        <source>KEY_HalftoneLPI</source>
        <translation>ハーフトーン:</translation>
    </message>
    <message>
        <source>KEY_UserDefinedColor</source>
        <translation>ユーザー定義カラー:</translation>
    </message>
    <message>
        <source>KEY_Brightness</source>
        <translation>明るさ:</translation>
    </message>
    <message>
        <source>KEY_Contrast</source>
        <translation>コントラスト:</translation>
    </message>
    <message>
        <source>KEY_Saturation</source>
        <translation>彩度:</translation>
    </message>
    <message>
        <source>KEY_RCBalance</source>
        <translation>レッド-シアン:</translation>
    </message>
    <message>
        <source>KEY_GMBalance</source>
        <translation>グリーン-マゼンタ:</translation>
    </message>
    <message>
        <source>KEY_BYBalance</source>
        <translation>ブルー-イエロー:</translation>
    </message>
    <message>
        <source>KEY_Skin</source>
        <translation>肌色:</translation>
    </message>
    <message>
        <source>KEY_Grass</source>
        <translation>緑:</translation>
    </message>
    <message>
        <source>KEY_Sky</source>
        <translation>空:</translation>
    </message>
    <message>
        <source>KEY_PreferredColorCheck</source>
        <translation>優先色</translation>
    </message>
    <message>
        <source>KEY_MediaType</source>
        <translation>用紙の種類:</translation>
    </message>
    <message>
        <source>KEY_SeparatorsOption</source>
        <translation>合紙:</translation>
    </message>
    <message>
        <source>KEY_SeparatorsSource</source>
        <translation>合紙の給紙元:</translation>
    </message>
    <message>
        <source>KEY_SkipBlankpages</source>
        <translation>白紙を飛ばす</translation>
    </message>
    <message>
        <source>KEY_CurlMode</source>
        <translation>カール軽減</translation>
    </message>
    <message>
        <source>KEY_ReverseDuplex</source>
        <translation>両面逆順</translation>
    </message>
    <message>
        <source>(%@-%@ Alphanumeric)</source>
        <translation>(%@-%@ 英数字)</translation>
    </message>
</context>
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>社外秘</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>LongEdge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>ShortEdge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>HoldForUser</source>
        <translation>解除まで保留</translation>
    </message>
    <message>
        <source>AdvancedOptions</source>
        <translation>詳細オプション</translation>
    </message>
    <message>
        <source>WatermarkTab</source>
        <translation>透かし</translation>
    </message>
    <message>
        <source>BookletTab</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>PosterTab</source>
        <translation>ポスター</translation>
    </message>
    <message>
        <source>PrintingTip</source>
        <translation>印刷のヒント</translation>
    </message>
    <message>
        <source>ConceptPreview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>VELWatermarkOption</source>
        <translation>透かし</translation>
    </message>
    <message>
        <source>VELPosterOption</source>
        <translation>ポスター</translation>
    </message>
    <message>
        <source>VELBookletOption</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>VELFoldMethod</source>
        <translation>折り方</translation>
    </message>
    <message>
        <source>VELBookletFinishing</source>
        <translation>小冊子の仕上げ</translation>
    </message>
    <message>
        <source>BookletOutputPageSize</source>
        <translation>出力用紙サイズ</translation>
    </message>
    <message>
        <source>VELManualBookletOption</source>
        <translation>手動小冊子</translation>
    </message>
    <message>
        <source>TopSecret</source>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Poster2x2</source>
        <translation>2 x 2 ページ</translation>
    </message>
    <message>
        <source>Poster3x3</source>
        <translation>3 x 3 ページ</translation>
    </message>
    <message>
        <source>Poster4x4</source>
        <translation>4 x 4 ページ</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>BookletNup</source>
        <translation>ページ集約付き小冊子</translation>
    </message>
    <message>
        <source>AllSheets</source>
        <translation>全用紙をまとめて折る</translation>
    </message>
    <message>
        <source>BySet</source>
        <translation>セットごとに折る</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>FoldStitch</source>
        <translation>折り＋中とじ</translation>
    </message>
    <message>
        <source>FontNameTitle</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>FontStyleTitle</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>FontColorTitle</source>
        <translation>色</translation>
    </message>
    <message>
        <source>FontSizeTitle</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>FontShadeTitle</source>
        <translation>濃度</translation>
    </message>
    <message>
        <source>AngleTitle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>MessageFieldTitle</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>FirstPageButtonTitle</source>
        <translation>最初のページのみ</translation>
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
        <translation>透かしなし</translation>
    </message>
    <message>
        <source>ColorGray</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>ColorRed</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>ColorYellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>ColorGreen</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>ColorCyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>ColorBlue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>ColorMagenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>ExtraDark</source>
        <translation>かなり濃い</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>濃い</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>薄い</translation>
    </message>
    <message>
        <source>ExtraLight</source>
        <translation>かなり薄い</translation>
    </message>
    <message>
        <source>HorizontalTitle</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>VerticalTitle</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>FreeAngleTitle</source>
        <translation>任意の角度</translation>
    </message>
    <message>
        <source>SheetsPerSetTitle</source>
        <translation>セットあたりの枚数</translation>
    </message>
    <message>
        <source>SheetsPerSetTitleSign</source>
        <translation>-</translation>
    </message>
    <message>
        <source>GutterTitle</source>
        <translation>とじしろ</translation>
    </message>
    <message>
        <source>GutterSizemmDes</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>GutterSizeInchDes</source>
        <translation>インチ (0.00 - 0.98)</translation>
    </message>
    <message>
        <source>RightBindingTitle</source>
        <translation>右とじ</translation>
    </message>
    <message>
        <source>NupTitle</source>
        <translation>小冊子の片面あたりのページ数</translation>
    </message>
    <message>
        <source>PageBorderTitle</source>
        <translation>枠線</translation>
    </message>
    <message>
        <source>PagePerSideTitle</source>
        <translation>片面あたりのページ数</translation>
    </message>
    <message>
        <source>PageOrder</source>
        <translation>ページの順序</translation>
    </message>
    <message>
        <source>BorderNone</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>BorderSingleHairline</source>
        <translation>細線（1本）</translation>
    </message>
    <message>
        <source>BorderSingleThinLine</source>
        <translation>実線（1本）</translation>
    </message>
    <message>
        <source>BorderDoubleHairline</source>
        <translation>細線（2本）</translation>
    </message>
    <message>
        <source>BorderDoubleThinLine</source>
        <translation>実線（2本）</translation>
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
        <translation>左から右、上から下</translation>
    </message>
    <message>
        <source>OrderRightLeftTopBottom</source>
        <translation>右から左、上から下</translation>
    </message>
    <message>
        <source>OrderTopBottomLeftRight</source>
        <translation>上から下、左から右</translation>
    </message>
    <message>
        <source>OrderTopBottomRightLeft</source>
        <translation>上から下、右から左</translation>
    </message>
    <message>
        <source>PrintingTipDescription</source>
        <translation>手動で両面を印刷する場合（手動両面印刷、手動小冊子印刷）、まず各用紙の片面を印刷します。その後、用紙の束を裏返してもう一度セットします。</translation>
    </message>
    <message>
        <source>PrintingTipCoverPage</source>
        <translation>手動で両面を印刷する場合はカバーページを使用しないでください。</translation>
    </message>
    <message>
        <source>PrintingTipStep1</source>
        <translation>1. プリンターが各用紙の1面目を印刷します。</translation>
    </message>
    <message>
        <source>PrintingTipStep2</source>
        <translation>2. 印刷された用紙の束を取り出して裏返します。</translation>
    </message>
    <message>
        <source>PrintingTipStep3</source>
        <translation>3. 白紙面を上にしてトレイに戻し、印刷を続けます。</translation>
    </message>
    <message>
        <source>LayoutTitle</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>OverlapTitle</source>
        <translation>重なり幅</translation>
    </message>
    <message>
        <source>OverlapMM</source>
        <translation>mm (0 - 25)</translation>
    </message>
    <message>
        <source>OverlapInch</source>
        <translation>インチ (0.00 - 1.00)</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>None</source>
        <translation>余白なし</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>とじしろ</translation>
    </message>
    <message>
        <source>ImageShift</source>
        <translation>画像シフト</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>None</source>
        <translation>特殊ページなし</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>例外ページ</translation>
    </message>
</context>
<context>
    <name>JobControls</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>範囲(&amp;R):</translation>
    </message>
    <message>
        <source>e.g. 1-3, 5</source>
        <translation>例: 1-3, 5</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>用紙サイズ(&amp;Z):</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>方向(&amp;O):</translation>
    </message>
    <message>
        <source>Pa&amp;ges per sheet:</source>
        <translation>1枚あたりのページ数(&amp;G):</translation>
    </message>
    <message>
        <source>Co&amp;ver page:</source>
        <translation>カバーページ(&amp;V):</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>縦 (180度回転)</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>横 (180度回転)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>機密</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>部外秘</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>秘密</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>機密指定なし</translation>
    </message>
    <message>
        <source>The paper size %1 cannot be used with this printer's installed options.</source>
        <translation>用紙サイズ %1 は、このプリンタに取り付けられているオプションでは使用できません。</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>The page range &quot;%1&quot; is not valid: give pages and ranges such as 1-3,5,8-.</source>
        <translation>ページ範囲「%1」は無効です。1-3,5,8- のようにページと範囲を指定してください。</translation>
    </message>
</context>
<context>
    <name>LpCommandDialog</name>
    <message>
        <source>Print Command</source>
        <translation>印刷コマンド</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue, so nothing is printed. This command prints the documents with the chosen settings on a queue that uses this PPD (change the name after -d to your queue's name):</source>
        <translation>このプリンタは CUPS キューのない PPD ファイルのため、何もプリントされません。次のコマンドは、この PPD を使うキューで、選んだ設定で書類をプリントします (-d の後の名前をお使いのキューの名前に変えてください):</translation>
    </message>
    <message>
        <source>Passwords and PINs are shown as &lt;hidden&gt;: put yours in their place before running the command.</source>
        <translation>パスワードと PIN は &lt;hidden&gt; と表示されています。コマンドを実行する前にご自分のものに置き換えてください。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Copied to the clipboard.</source>
        <translation>クリップボードにコピーしました。</translation>
    </message>
</context>
<context>
    <name>PanelTab</name>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>このパネルに表示する設定はありません。</translation>
    </message>
</context>
<context>
    <name>PrintDialogWindow</name>
    <message>
        <source>Print</source>
        <translation>プリント</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>書類:</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>ファイルを追加(&amp;F)…</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>プリント(&amp;P)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The printer cannot be used: %1</source>
        <translation>このプリンタは使用できません: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 をプリント</translation>
    </message>
    <message>
        <source>Documents to Print</source>
        <translation>プリントする書類</translation>
    </message>
    <message>
        <source>Show &amp;lp Command…</source>
        <translation>lp コマンドを表示(&amp;L)…</translation>
    </message>
    <message>
        <source>This printer is a PPD file without a CUPS queue: the command that prints with these settings is shown instead.</source>
        <translation>このプリンタは CUPS キューのない PPD ファイルです。代わりに、これらの設定でプリントするコマンドを表示します。</translation>
    </message>
    <message>
        <source>Add the documents to print first.</source>
        <translation>先にプリントする書類を追加してください。</translation>
    </message>
    <message>
        <source>%1 set to %2</source>
        <translation>%1 を %2 に変更</translation>
    </message>
    <message>
        <source>To resolve a conflict, %1.</source>
        <translation>競合を解決するため、%1しました。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>the settings of %1 are not complete</source>
        <translation>%1 の設定が完了していません</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>プリントしませんでした: %1</translation>
    </message>
    <message>
        <source>The job was not printed: %1</source>
        <translation>ジョブはプリントされませんでした: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer was changed on the server and cannot be used now: %1</source>
        <translation>プリンタはサーバ上で変更されたため、現在使用できません: %1</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the server while this dialog was open: nothing was printed. Its settings were loaded again with your choices; check them and print again.</source>
        <translation>このダイアログを開いている間にプリンタ %1 がサーバ上で変更されました。何もプリントされていません。設定を選択内容とともに読み込み直しました。確認してからもう一度プリントしてください。</translation>
    </message>
    <message>
        <source>The printer no longer has these choices: %1.</source>
        <translation>プリンタには次の選択項目がなくなりました: %1。</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>プリントする書類がありません</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: フォルダを作成できません</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
</context>
<context>
    <name>PrintPanelsIntegration</name>
    <message>
        <source>the printer is not a CUPS queue and no PPD file was given</source>
        <translation>プリンタは CUPS キューではなく、PPD ファイルも指定されていません</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>no printer was opened</source>
        <translation>プリンタが開かれていません</translation>
    </message>
    <message>
        <source>no spool file can be made: %1</source>
        <translation>スプールファイルを作成できません: %1</translation>
    </message>
    <message>
        <source>applyToPrinter() was not called</source>
        <translation>applyToPrinter() が呼び出されていません</translation>
    </message>
    <message>
        <source>the printer is a PPD file without a CUPS queue: nothing was sent</source>
        <translation>プリンタは CUPS キューのない PPD ファイルです。何も送信されませんでした</translation>
    </message>
</context>
<context>
    <name>PrinterPresetBar</name>
    <message>
        <source>Print&amp;er:</source>
        <translation>プリンタ(&amp;E):</translation>
    </message>
    <message>
        <source>Prese&amp;ts:</source>
        <translation>プリセット(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>別名で保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>%1 (sample PPD file)</source>
        <translation>%1 (サンプル PPD ファイル)</translation>
    </message>
    <message>
        <source>%1 (PPD file)</source>
        <translation>%1 (PPD ファイル)</translation>
    </message>
    <message>
        <source>%1 (PPD file %2)</source>
        <translation>%1 (PPD ファイル %2)</translation>
    </message>
    <message>
        <source>Other PPD File…</source>
        <translation>その他の PPD ファイル…</translation>
    </message>
    <message>
        <source>Choose a PPD File</source>
        <translation>PPD ファイルを選択</translation>
    </message>
    <message>
        <source>PPD files (*.ppd *.PPD);;All files (*)</source>
        <translation>PPD ファイル (*.ppd *.PPD);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>デフォルト設定</translation>
    </message>
    <message>
        <source>None (no CUPS queue)</source>
        <translation>なし (CUPS キューなし)</translation>
    </message>
    <message>
        <source>Presets are kept with a CUPS queue; a PPD file has none.</source>
        <translation>プリセットは CUPS キューに保存されます。PPD ファイルにはありません。</translation>
    </message>
    <message>
        <source>Presets cannot be read: %1</source>
        <translation>プリセットを読み込めません: %1</translation>
    </message>
    <message>
        <source>The printer's default settings are used.</source>
        <translation>プリンタのデフォルト設定を使用します。</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; chosen.</source>
        <translation>プリセット「%1」を選択しました。</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットを保存</translation>
    </message>
    <message>
        <source>Save the current settings as the preset:</source>
        <translation>現在の設定を次のプリセットとして保存:</translation>
    </message>
    <message>
        <source>The preset cannot be saved: %1</source>
        <translation>プリセットを保存できません: %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; saved. Passwords and PINs are not kept in presets.</source>
        <translation>プリセット「%1」を保存しました。パスワードと PIN はプリセットに保存されません。</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>プリセット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>The preset cannot be deleted: %1</source>
        <translation>プリセットを削除できません: %1</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; deleted.</source>
        <translation>プリセット「%1」を削除しました。</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <translation>%1 — %2、%3</translation>
    </message>
    <message>
        <source>Make and model: %1</source>
        <translation>メーカーとモデル: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>場所: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>Your default printer</source>
        <translation>既定のプリンター</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>%1, not accepting jobs</source>
        <translation>%1、ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Defa&amp;ults</source>
        <translation>既定(&amp;U)</translation>
    </message>
    <message>
        <source>Use as My Defaults for This Printer</source>
        <translation>このプリンターの既定の設定にする</translation>
    </message>
    <message>
        <source>Every application's print dialog and lp start from these settings on this printer.</source>
        <translation>このプリンターでは、すべてのアプリケーションの印刷ダイアログと lp がこの設定から始まります。</translation>
    </message>
    <message>
        <source>Make This My Default Printer</source>
        <translation>既定のプリンターにする</translation>
    </message>
    <message>
        <source>Make This Preset My Default Printer</source>
        <translation>このプリセットを既定のプリンターにする</translation>
    </message>
    <message>
        <source>A preset named &quot;%1&quot; exists. Replace it?</source>
        <translation>プリセット「%1」はすでにあります。置き換えますか?</translation>
    </message>
    <message>
        <source>The defaults cannot be saved: %1</source>
        <translation>既定の設定を保存できません: %1</translation>
    </message>
    <message>
        <source>These settings are now your defaults for %1. Passwords and PINs are not kept.</source>
        <translation>これらの設定が %1 の既定になりました。パスワードと PIN は保存されません。</translation>
    </message>
    <message>
        <source>The default printer cannot be set: %1</source>
        <translation>既定のプリンターを設定できません: %1</translation>
    </message>
    <message>
        <source>%1 is now your default printer.</source>
        <translation>%1 が既定のプリンターになりました。</translation>
    </message>
</context>
<context>
    <name>PanelStack</name>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>%1 cannot be left yet: check its settings first.</source>
        <translation>%1 はまだ閉じられません。先に設定を確認してください。</translation>
    </message>
    <message>
        <source>This panel has no settings to show.</source>
        <translation>このパネルに表示する設定はありません。</translation>
    </message>
    <message>
        <source>No settings to summarize</source>
        <translation>概要に表示する設定はありません</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(非表示)</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Job Setting</source>
        <translation>ジョブ設定</translation>
    </message>
    <message>
        <source>Job Accounting</source>
        <translation>ジョブアカウンティング</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature</source>
        <translation>印刷モードを使用するには、英数字のパスワードを入力し、確認のためにもう一度入力してください。</translation>
    </message>
    <message>
        <source>You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature</source>
        <translation>ジョブアカウンティングを使用するには、英数字のパスワードを入力し、確認のためにもう一度入力してください。</translation>
    </message>
    <message>
        <source>You must enter a 4-32 digit PIN Code.</source>
        <translation>4～32 桁の PIN コードを入力してください。</translation>
    </message>
    <message>
        <source>Job Accounting Confirmation</source>
        <translation>ジョブアカウンティングの確認</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>アカウント ID</translation>
    </message>
    <message>
        <source>Enter the account to charge for this job, then click OK to print.</source>
        <translation>このジョブを課金するアカウントを入力し、[OK] をクリックして印刷してください。</translation>
        <source>KEY_SortOptions</source>
        <translation>ソート:</translation>
    </message>
    <message>
        <source>KEY_StapleLocation</source>
        <translation>ステープル:</translation>
    </message>
    <message>
        <source>KEY_StaplePosition</source>
        <translation>ステープル位置:</translation>
    </message>
    <message>
        <source>KEY_Punch</source>
        <translation>パンチ穴:</translation>
    </message>
    <message>
        <source>KEY_PunchPosition</source>
        <translation>パンチ位置:</translation>
    </message>
    <message>
        <source>KEY_OutputMode</source>
        <translation>出力モード:</translation>
    </message>
    <message>
        <source>KEY_OutputBin</source>
        <translation>排紙トレイ:</translation>
    </message>
    <message>
        <source>KEY_FoldingOptions</source>
        <translation>折り:</translation>
    </message>
    <message>
        <source>KEY_CFoldingPattern</source>
        <translation>折りパターン:</translation>
    </message>
    <message>
        <source>KEY_CFoldingDivideSet</source>
        <translation>セットあたりの枚数:</translation>
    </message>
    <message>
        <source>(1 - %d)</source>
        <translation>(1 - %d)</translation>
    </message>
    <message>
        <source>Hard Copy Security</source>
        <translation>ハードコピーセキュリティ</translation>
    </message>
    <message>
        <source>KEY_SecuTrue</source>
        <translation>セキュアリリース:</translation>
    </message>
    <message>
        <source>KEY_SecuTrueUserID</source>
        <translation>ユーザーID:</translation>
    </message>
    <message>
        <source>KEY_HardCopySecurity</source>
        <translation>ハードコピーセキュリティ:</translation>
    </message>
    <message>
        <source>KEY_HardCopyCurrSecureWatermark</source>
        <translation>透かし文字:</translation>
    </message>
    <message>
        <source>KEY_HCSCustomWatermark</source>
        <translation>カスタム文字:</translation>
    </message>
    <message>
        <source>KEY_HardCopySize</source>
        <translation>サイズ:</translation>
    </message>
    <message>
        <source>KEY_HardCopyDirection</source>
        <translation>方向:</translation>
    </message>
    <message>
        <source>KEY_HardCopyPattern</source>
        <translation>背景パターン:</translation>
    </message>
    <message>
        <source>KEY_HardCopyColor</source>
        <translation>色:</translation>
    </message>
    <message>
        <source>KEY_HardCopyDarkness</source>
        <translation>濃度:</translation>
    </message>
    <message>
        <source>KEY_HardCopyEnterPassword</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>KEY_HCSConfirmPassword</source>
        <translation>パスワードの確認:</translation>
    </message>
    <message>
        <source>You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.</source>
        <translation>パスワード印刷を使用するには、1～9文字の英数字のパスワードを入力し、確認のためにもう一度入力してください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation>パスワードの確認:</translation>
    </message>
    <message>
        <source>PIN Code:</source>
        <translation>PIN コード:</translation>
    </message>
    <message>
        <source>Confirm PIN Code:</source>
        <translation>PIN コードの確認:</translation>
    </message>
</context>
<context>
    <name>AdvancedOptionPDELocalizable</name>
    <message>
        <source>ManualDuplex</source>
        <translation>手動両面印刷</translation>
    </message>
    <message>
        <source>SecureRelease</source>
        <translation>セキュアリリース</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>ユーザー ID</translation>
    </message>
</context>
<context>
    <name>ManualMarginPDELocalizable</name>
    <message>
        <source>ManualMarginPanelName</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>Margin for</source>
        <translation>余白の種類</translation>
    </message>
    <message>
        <source>VELMarginFor</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>VELBindingPosition</source>
        <translation>とじ位置</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左とじ</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右とじ</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上とじ</translation>
    </message>
    <message>
        <source>Auto Reduction</source>
        <translation>自動縮小</translation>
    </message>
    <message>
        <source>Same value for front and back</source>
        <translation>表面と裏面を同じ値にする</translation>
    </message>
    <message>
        <source>Front side</source>
        <translation>表面</translation>
    </message>
    <message>
        <source>Back side</source>
        <translation>裏面</translation>
    </message>
    <message>
        <source>LeftPosition</source>
        <translation>左</translation>
    </message>
    <message>
        <source>RightPosition</source>
        <translation>右</translation>
    </message>
    <message>
        <source>TopPosition</source>
        <translation>上</translation>
    </message>
    <message>
        <source>BottomPosition</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Concept Preview</source>
        <translation>イメージ</translation>
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
        <translation>(0.00 - 2.00 インチ)</translation>
    </message>
    <message>
        <source>(0.00 - 1.00 inches)</source>
        <translation>(0.00 - 1.00 インチ)</translation>
    </message>
</context>
<context>
    <name>SpecialPagePDELocalizable</name>
    <message>
        <source>SpecialPagePanelName</source>
        <translation>特殊ページ</translation>
    </message>
    <message>
        <source>VELSpecialPage</source>
        <translation>特殊ページ</translation>
    </message>
    <message>
        <source>Page Options</source>
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>Page Type</source>
        <translation>ページの種類</translation>
    </message>
    <message>
        <source>Paper Options</source>
        <translation>用紙設定</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>用紙種類</translation>
    </message>
    <message>
        <source>Cover Options</source>
        <translation>表紙の印刷</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>PageNumberHint</source>
        <translation>例: 2,5-8</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>表表紙</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>裏表紙</translation>
    </message>
    <message>
        <source>Front and Back Cover</source>
        <translation>表表紙と裏表紙</translation>
    </message>
    <message>
        <source>Before Page 1</source>
        <translation>1ページ目の前</translation>
    </message>
    <message>
        <source>After Page(s)</source>
        <translation>指定ページの後</translation>
    </message>
    <message>
        <source>After Page %1</source>
        <translation>%1ページ目の後</translation>
    </message>
    <message>
        <source>Blank or Preprinted</source>
        <translation>白紙または印刷済み</translation>
    </message>
    <message>
        <source>1-Sided Printed</source>
        <translation>片面印刷</translation>
    </message>
    <message>
        <source>2-Sided Printed</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>DuplexNone</source>
        <translation>片面</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Inserted Sheet</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Exception Pages</source>
        <translation>例外ページ</translation>
    </message>
    <message>
        <source>PrintErrorTitle</source>
        <translation>特殊ページがありません</translation>
    </message>
    <message>
        <source>PrintErrorContent</source>
        <translation>特殊ページのリストが空です。特殊ページなしで印刷しますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
</TS>
