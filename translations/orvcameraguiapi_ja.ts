<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ActionRunner</name>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Use --any-model to load it nevertheless.</source>
        <translation>それでも読み込むには --any-model を指定してください。</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>カメラにありません。</translation>
    </message>
</context>
<context>
    <name>BrowserModel</name>
    <message>
        <source>Favourites</source>
        <translation type="unfinished">お気に入り</translation>
    </message>
    <message>
        <source>The features that you have marked with a star</source>
        <translation type="unfinished">星印を付けたパラメーター</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished">拒否されました: %1</translation>
    </message>
</context>
<context>
    <name>CameraInformation</name>
    <message>
        <source>OrvCameraConfiguration</source>
        <translation type="unfinished">OrvCameraConfiguration</translation>
    </message>
    <message>
        <source>1.3.0 (build 2230) </source>
        <translation type="unfinished">1.3.0 (ビルド 2230) </translation>
    </message>
    <message>
        <source>Copyright %1 2016 The OrvCameraGuiApi developers</source>
        <translation type="unfinished">Copyright %1 2016 OrvCameraGuiApi 開発者</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation type="unfinished">該当なし</translation>
    </message>
</context>
<context>
    <name>CameraTreeDelegate</name>
    <message>
        <source>This camera cannot be opened: it is in use, or access to it is denied.</source>
        <translation>このカメラは開けません。使用中であるか、アクセスが拒否されています。</translation>
    </message>
    <message>
        <source>This camera cannot be opened: its IP address is not in the subnet of the network adapter.</source>
        <translation>このカメラは開けません。IP アドレスがネットワークアダプターのサブネットにありません。</translation>
    </message>
</context>
<context>
    <name>CameraWindows</name>
    <message>
        <source>Feature Tree</source>
        <translation>パラメーターツリー</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>The camera has nothing that &apos;%1&apos; could show.</source>
        <translation>このカメラには「%1」で表示できるものがありません。</translation>
    </message>
</context>
<context>
    <name>Cameras</name>
    <message>
        <source>No camera was found.</source>
        <translation>カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <source>None of the cameras found can be used: %1.</source>
        <translation>見つかったカメラはいずれも使用できません: %1。</translation>
    </message>
    <message>
        <source>There is no camera &apos;%1&apos;. Found: %2.</source>
        <translation>カメラ「%1」はありません。見つかったカメラ: %2。</translation>
    </message>
</context>
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
</context>
<context>
    <name>DiagramDrawing</name>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished">遅延</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">周期</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished">フレーム</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation type="unfinished">ストロボ 1</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation type="unfinished">ストロボ 2</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation type="unfinished">露光</translation>
    </message>
    <message>
        <source>Readout</source>
        <translation type="unfinished">読み出し</translation>
    </message>
    <message>
        <source>P%1</source>
        <translation type="unfinished">P%1</translation>
    </message>
    <message>
        <source>E%1</source>
        <translation type="unfinished">E%1</translation>
    </message>
</context>
<context>
    <name>FeatureJournal</name>
    <message>
        <source>There is no %1.</source>
        <translation type="unfinished">%1 がありません。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">元に戻す</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished">元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">やり直す</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation type="unfinished">やり直す: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished">%1 ほか %2 件</translation>
    </message>
</context>
<context>
    <name>FeatureMarks</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Earlier value: %1</source>
        <translation type="unfinished">以前の値: %1</translation>
    </message>
    <message>
        <source>Earlier value: %1 (%2)</source>
        <translation type="unfinished">以前の値: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>FeatureMenu</name>
    <message>
        <source>Copy Name</source>
        <translation type="unfinished">名前をコピー</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation type="unfinished">値をコピー</translation>
    </message>
    <message>
        <source>Copy &quot;Name = Value&quot;</source>
        <translation type="unfinished">「名前 = 値」をコピー</translation>
    </message>
    <message>
        <source>Go to %1</source>
        <translation type="unfinished">%1 へ移動</translation>
    </message>
    <message>
        <source>Go to Selected Feature</source>
        <translation type="unfinished">選択対象のパラメーターへ移動</translation>
    </message>
    <message>
        <source>Show in Its Category</source>
        <translation type="unfinished">カテゴリー内で表示</translation>
    </message>
    <message>
        <source>Values by %1…</source>
        <translation type="unfinished">%1 ごとの値…</translation>
    </message>
    <message>
        <source>Remove from Favourites</source>
        <translation type="unfinished">お気に入りから削除</translation>
    </message>
    <message>
        <source>Add to Favourites</source>
        <translation type="unfinished">お気に入りに追加</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation type="unfinished">元に戻す</translation>
    </message>
    <message>
        <source>Expand All Below</source>
        <translation type="unfinished">下をすべて展開</translation>
    </message>
    <message>
        <source>Collapse All Below</source>
        <translation type="unfinished">下をすべて折りたたむ</translation>
    </message>
    <message>
        <source>Read Again</source>
        <translation type="unfinished">再読み込み</translation>
    </message>
</context>
<context>
    <name>FeatureSource</name>
    <message>
        <source>%1 (read only)</source>
        <translation>%1（読み取り専用）</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; is read only: another program controls it.</source>
        <translation>カメラ「%1」は読み取り専用です: ほかのプログラムが制御しています。</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; cannot be opened.</source>
        <translation>カメラ「%1」を開けません。</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; is gone.</source>
        <translation>カメラ「%1」は取り外されました。</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; has sent nothing new for %2 seconds.</source>
        <translation>カメラ「%1」から %2 秒間新しいデータが届いていません。</translation>
    </message>
</context>
<context>
    <name>FeatureToolTip</name>
    <message>
        <source>Range: %1 to %2</source>
        <translation type="unfinished">範囲: %1 ～ %2</translation>
    </message>
    <message>
        <source>Increment: %1</source>
        <translation type="unfinished">増分: %1</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation type="unfinished">単位: %1</translation>
    </message>
    <message>
        <source>Feature: %1</source>
        <translation type="unfinished">パラメーター: %1</translation>
    </message>
</context>
<context>
    <name>FeatureValue</name>
    <message>
        <source>The text is not in UTF-8.</source>
        <translation type="unfinished">テキストが UTF-8 ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation type="unfinished">&apos;%1&apos; は数値ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no integer.</source>
        <translation type="unfinished">&apos;%1&apos; は整数ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false.</source>
        <translation type="unfinished">&apos;%1&apos; は真でも偽でもありません。</translation>
    </message>
    <message>
        <source>There is no entry &apos;%1&apos;.</source>
        <translation type="unfinished">項目 &apos;%1&apos; はありません。</translation>
    </message>
    <message>
        <source>The camera takes values from %1 to %2.</source>
        <translation type="unfinished">カメラが受け付ける値は %1 から %2 までです。</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation type="unfinished">カメラにありません。</translation>
    </message>
    <message>
        <source>It is not available now.</source>
        <translation type="unfinished">現在は利用できません。</translation>
    </message>
    <message>
        <source>It cannot be changed now.</source>
        <translation type="unfinished">現在は変更できません。</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation type="unfinished">読み取れません。</translation>
    </message>
    <message>
        <source>The step is %1.</source>
        <translation type="unfinished">増分は %1 です。</translation>
    </message>
    <message>
        <source>It has no value.</source>
        <translation type="unfinished">値がありません。</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation type="unfinished">カメラが応答しません。</translation>
    </message>
    <message>
        <source>It could not be put back.</source>
        <translation type="unfinished">元に戻せませんでした。</translation>
    </message>
    <message>
        <source>The camera has no &apos;%1&apos;.</source>
        <translation type="unfinished">カメラに &apos;%1&apos; はありません。</translation>
    </message>
    <message>
        <source>It is no command.</source>
        <translation type="unfinished">コマンドではありません。</translation>
    </message>
    <message>
        <source>The camera is not done with it yet.</source>
        <translation type="unfinished">カメラの処理がまだ終わっていません。</translation>
    </message>
    <message>
        <source>Its selector has too many values.</source>
        <translation type="unfinished">セレクターの値が多すぎます。</translation>
    </message>
</context>
<context>
    <name>FramesPanel</name>
    <message>
        <source>%1C</source>
        <translation type="unfinished">%1C</translation>
    </message>
    <message>
        <source>Image size</source>
        <translation type="unfinished">画像サイズ</translation>
    </message>
    <message>
        <source>Frames per second, computed from the frame time</source>
        <translation type="unfinished">フレームレート (フレーム時間から計算)</translation>
    </message>
    <message>
        <source>Frame time</source>
        <translation type="unfinished">フレーム時間</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation type="unfinished">露光時間</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished">温度</translation>
    </message>
</context>
<context>
    <name>GenParamDelegate</name>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>偽</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;値は利用できません&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;値は読み取れません&gt;</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>ブール値</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮動小数点数</translation>
    </message>
    <message>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>列挙</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;範囲&lt;/i&gt;: 最小: %1、最大: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;増分&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;有効な値&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;列挙エントリ&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 (0x%3)</source>
        <translation>「%1」: %2 (0x%3)</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;名前:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;型:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;セレクター:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;説明:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>偽</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;ストリーム可能:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>The feature cannot be written at the moment.</source>
        <translation>このパラメーターは現在書き込めません。</translation>
    </message>
    <message>
        <source>The camera has refused the value.</source>
        <translation>カメラが値を拒否しました。</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>GenParamTreeView</source>
        <translation>GenParamTreeView</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>表示レベル:</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>エキスパート</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>グル</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
</context>
<context>
    <name>HistoryCaption</name>
    <message>
        <source>Click for the last ten minutes</source>
        <translation type="unfinished">クリックすると直近10分間を表示</translation>
    </message>
</context>
<context>
    <name>HistoryChart</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>%1, last ten minutes</source>
        <translation type="unfinished">%1、直近10分間</translation>
    </message>
    <message>
        <source>Copy as CSV</source>
        <translation type="unfinished">CSV としてコピー</translation>
    </message>
    <message>
        <source>%1: no values</source>
        <translation type="unfinished">%1: 値なし</translation>
    </message>
    <message>
        <source>%1: min %2, max %3, mean %4</source>
        <translation type="unfinished">%1: 最小 %2、最大 %3、平均 %4</translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished">時刻</translation>
    </message>
</context>
<context>
    <name>InfoPane</name>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>OpeningLine</name>
    <message>
        <source>Opening the camera &apos;%1&apos;: %2 %</source>
        <translation>カメラ「%1」を開いています: %2 %</translation>
    </message>
</context>
<context>
    <name>OpeningProgress</name>
    <message>
        <source>Open Camera</source>
        <translation type="unfinished">カメラを開く</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation type="unfinished">%1 を開いています</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation type="unfinished">接続しています…</translation>
    </message>
    <message>
        <source>Reading the camera&apos;s description...</source>
        <translation type="unfinished">カメラの記述ファイルを読み込んでいます…</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Use simulated cameras; nothing is sent anywhere.</source>
        <translation>シミュレーションのカメラを使用します。外部には何も送信しません。</translation>
    </message>
    <message>
        <source>Open the camera of this identifier, serial number or name.</source>
        <translation>この識別子、シリアル番号または名前のカメラを開きます。</translation>
    </message>
    <message>
        <source>Show a GenICam description without a camera; its registers live in memory.</source>
        <translation>カメラなしで GenICam 記述ファイルを表示します。レジスターはメモリー上に置かれます。</translation>
    </message>
    <message>
        <source>Print the features as the tree shows them and exit: two blanks of indentation per level, the name, a tab, the value.</source>
        <translation>パラメーターをツリーの表示どおりに出力して終了します。階層ごとに空白 2 個の字下げ、名前、タブ、値の順です。</translation>
    </message>
    <message>
        <source>The level of detail: basic, expert or guru.</source>
        <translation>表示レベル: basic、expert または guru。</translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;.</source>
        <translation>オプション「%1」はありません。</translation>
    </message>
    <message>
        <source>There is no visibility &apos;%1&apos;; use basic, expert or guru.</source>
        <translation>表示レベル「%1」はありません。basic、expert または guru を指定してください。</translation>
    </message>
    <message>
        <source>A description is shown without a camera: use --xml alone.</source>
        <translation>記述ファイルはカメラなしで表示されます。--xml は単独で指定してください。</translation>
    </message>
    <message>
        <source>Print one camera a line and exit: the identifier (MAC address, or vendor and serial number), the name, the IPv4 address if it has one and the access (read-write, read-only, no-access, subnet-mismatch or unknown), with tabs between them.</source>
        <translation>カメラを 1 行に 1 台ずつ出力して終了します。識別子 (MAC アドレス、またはベンダーとシリアル番号)、名前、IPv4 アドレス (ある場合)、アクセス状態 (read-write、read-only、no-access、subnet-mismatch または unknown) をタブで区切ります。</translation>
    </message>
    <message>
        <source>All cameras are listed: use --list-cameras alone or with --simulate.</source>
        <translation>すべてのカメラが一覧表示されます。--list-cameras は単独で、または --simulate と共に指定してください。</translation>
    </message>
    <message>
        <source>A description is shown without a camera: there is nothing to pick.</source>
        <translation>記述ファイルはカメラなしで表示されるため、選択するものがありません。</translation>
    </message>
    <message>
        <source>Say whose features to list: --simulate, --camera ID or --xml FILE.</source>
        <translation>パラメーターを一覧表示する対象を指定してください: --simulate、--camera ID または --xml FILE。</translation>
    </message>
    <message>
        <source>The main window needs a camera: use --xml alone.</source>
        <translation>メインウィンドウにはカメラが必要です。--xml は単独で指定してください。</translation>
    </message>
    <message>
        <source>Only the tree can be printed: use --list-features without --window.</source>
        <translation>出力できるのはツリーのみです。--list-features は --window なしで指定してください。</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>The option &apos;--%1&apos; needs a value.</source>
        <translation>オプション「--%1」には値が必要です。</translation>
    </message>
    <message>
        <source>What to show first: the picker, in which the camera named by --camera is selected; the main window, with the tree beside it; the tree alone; or one of the main window&apos;s dialogs (trigger, pulse, strobe, output, color, frames, about) with the main window. All but the picker take the first usable camera without --camera. The picker when neither --simulate nor --camera nor --xml says what to show; the tree for --xml and --screenshot; otherwise the main window.</source>
        <translation>最初に表示するもの: カメラの選択 (picker、--camera で指定したカメラが選択されます)、メインウィンドウ (main、横にツリーを表示)、ツリーのみ (tree)、またはメインウィンドウのダイアログの 1 つ (trigger、pulse、strobe、output、color、frames、about、メインウィンドウも表示)。カメラの選択以外は、--camera がなければ最初に使用できるカメラを開きます。省略時は、--simulate、--camera、--xml のいずれも指定されていなければカメラの選択、--xml または --screenshot が指定されていればツリー、それ以外はメインウィンドウです。</translation>
    </message>
    <message>
        <source>Save a picture of the first window, or of the dialog that --window names, and exit. Needs no display.</source>
        <translation>最初のウィンドウ、または --window で指定したダイアログの画像を保存して終了します。ディスプレイは不要です。</translation>
    </message>
    <message>
        <source>There is no window &apos;%1&apos;; use one of: %2.</source>
        <translation>ウィンドウ「%1」はありません。次のいずれかを指定してください: %2。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; sets nothing: use --set NAME=VALUE.</source>
        <translation>&apos;%1&apos; では何も設定されません。--set 名前=値 の形で指定してください。</translation>
    </message>
    <message>
        <source>Print the values of these features as the tree shows them, one a line: the name, a tab, the value. This and the following options are carried out in the order given, without a window.</source>
        <translation>これらのパラメーターの値をツリーの表示どおりに 1 行に 1 つずつ出力します。名前、タブ、値の順です。これ以降のオプションは、ウィンドウを表示せずに指定された順に実行されます。</translation>
    </message>
    <message>
        <source>Set features to such values.</source>
        <translation>パラメーターをこの形の値に設定します。</translation>
    </message>
    <message>
        <source>Execute a command, and wait until it is done.</source>
        <translation>コマンドを実行し、完了するまで待ちます。</translation>
    </message>
    <message>
        <source>Save the settings of the camera in a file.</source>
        <translation>カメラの設定をファイルに保存します。</translation>
    </message>
    <message>
        <source>Write the settings in a file to the camera, and tell what it refuses.</source>
        <translation>ファイルの設定をカメラに書き込み、拒否されたものを知らせます。</translation>
    </message>
    <message>
        <source>Print what is not the same, one a line: the feature, the value in the file, the value in the camera, with tabs between them.</source>
        <translation>異なるものを 1 行に 1 つずつ出力します。パラメーター、ファイルの値、カメラの値の順で、タブで区切ります。</translation>
    </message>
    <message>
        <source>Print what these options have to tell as one JSON document.</source>
        <translation>これらのオプションの結果を 1 つの JSON 文書として出力します。</translation>
    </message>
    <message>
        <source>Load settings of another model, too.</source>
        <translation>別の機種の設定も読み込みます。</translation>
    </message>
    <message>
        <source>Shows and changes the features of a camera, which is picked first.
Exit status: 0 success (also when no camera is picked), 1 failure (also when a camera refuses something, or is not as a file), 2 wrong usage.</source>
        <translation>最初に選択したカメラのパラメーターを表示および変更します。
終了ステータス: 0 成功 (カメラを選択しなかった場合を含む)、1 失敗 (カメラが拒否した場合やファイルと異なる場合を含む)、2 使い方の誤り。</translation>
    </message>
    <message>
        <source>Features are read and written without a window: use --get, --set, --execute, --save, --load and --compare without --window, --screenshot and the lists.</source>
        <translation>パラメーターの読み書きではウィンドウを表示しません。--get、--set、--execute、--save、--load、--compare は --window、--screenshot および一覧のオプションなしで使用してください。</translation>
    </message>
    <message>
        <source>Say whose features these are: --simulate, --camera ID or --xml FILE.</source>
        <translation>どのカメラのパラメーターかを指定してください: --simulate、--camera ID または --xml FILE。</translation>
    </message>
    <message>
        <source>There is nothing for --json to print: use it with --get, --set, --execute, --save, --load or --compare.</source>
        <translation>--json で出力するものがありません。--get、--set、--execute、--save、--load または --compare と一緒に使用してください。</translation>
    </message>
    <message>
        <source>No settings are loaded: use --any-model with --load.</source>
        <translation>設定を読み込みません。--any-model は --load と一緒に使用してください。</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation>デバイス情報</translation>
    </message>
    <message>
        <source>Device Manufacturer Name:</source>
        <translation>メーカー名:</translation>
    </message>
    <message>
        <source>Device Model Name:</source>
        <translation>モデル名:</translation>
    </message>
    <message>
        <source>Device Family Name:</source>
        <translation>ファミリー名:</translation>
    </message>
    <message>
        <source>Device Version:</source>
        <translation>デバイスのバージョン:</translation>
    </message>
    <message>
        <source>Device Manufacturer Info:</source>
        <translation>メーカー情報:</translation>
    </message>
    <message>
        <source>Device Serial Number:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Device User Defined Name:</source>
        <translation>ユーザー定義名:</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Sensor Type:</source>
        <translation>センサーの種類:</translation>
    </message>
    <message>
        <source>RgsID:</source>
        <translation>RgsID:</translation>
    </message>
    <message>
        <source>FpgaID:</source>
        <translation>FpgaID:</translation>
    </message>
    <message>
        <source>EpcsID:</source>
        <translation>EpcsID:</translation>
    </message>
    <message>
        <source>Firmware Image:</source>
        <translation>ファームウェアイメージ:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>ファームウェアのバージョン:</translation>
    </message>
    <message>
        <source>Firmware Build:</source>
        <translation>ファームウェアのビルド:</translation>
    </message>
    <message>
        <source>CustomerID:</source>
        <translation>カスタマー ID:</translation>
    </message>
    <message>
        <source>Xml Version:</source>
        <translation>XML のバージョン:</translation>
    </message>
    <message>
        <source>U3V Firmware Version:</source>
        <translation>U3V ファームウェアのバージョン:</translation>
    </message>
    <message>
        <source>U3V Firmware Build Number:</source>
        <translation>U3V ファームウェアのビルド番号:</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>追従速度</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>赤係数:</translation>
    </message>
    <message>
        <source>4095</source>
        <translation>4095</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>緑係数:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>青係数:</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>手動 WB 係数</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>等倍</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Red unity</source>
        <translation>赤を等倍</translation>
    </message>
    <message>
        <source>Green unity</source>
        <translation>緑を等倍</translation>
    </message>
    <message>
        <source>Blue unity</source>
        <translation>青を等倍</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>フレーム A/B</translation>
    </message>
    <message>
        <source>Output mode:</source>
        <translation>出力モード:</translation>
    </message>
    <message>
        <source>Frame-A +</source>
        <translation>フレーム A +</translation>
    </message>
    <message>
        <source>Frame-B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Shutter mode:</source>
        <translation>シャッターモード:</translation>
    </message>
    <message>
        <source>Rolling</source>
        <translation>ローリング</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>グローバル</translation>
    </message>
    <message>
        <source>ADC Selector:</source>
        <translation>ADC 選択:</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 ビット</translation>
    </message>
    <message>
        <source>12 bits</source>
        <translation>12 ビット</translation>
    </message>
    <message>
        <source>Dual Video:</source>
        <translation>デュアルビデオ:</translation>
    </message>
    <message>
        <source>Frame-A</source>
        <translation>フレーム A</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>露光制御</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>ライン</translation>
    </message>
    <message>
        <source>Clocks</source>
        <translation>クロック</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>固定フレーム周期</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Frame line time</source>
        <translation>フレームのライン時間</translation>
    </message>
    <message>
        <source>Frame size</source>
        <translation>フレームサイズ</translation>
    </message>
    <message>
        <source>Current size:</source>
        <translation>現在のサイズ:</translation>
    </message>
    <message>
        <source>AOI</source>
        <translation>AOI</translation>
    </message>
    <message>
        <source>Full Frame</source>
        <translation>フルフレーム</translation>
    </message>
    <message>
        <source>QFHD</source>
        <translation>QFHD</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Subsampling</source>
        <translation>サブサンプリング</translation>
    </message>
    <message>
        <source>P:</source>
        <translation>P:</translation>
    </message>
    <message>
        <source>x M:</source>
        <translation>x M:</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>平均化</translation>
    </message>
    <message>
        <source>Video amplifier</source>
        <translation>ビデオアンプ</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>アナログゲイン:</translation>
    </message>
    <message>
        <source>1x</source>
        <translation>1x</translation>
    </message>
    <message>
        <source>2x</source>
        <translation>2x</translation>
    </message>
    <message>
        <source>4x</source>
        <translation>4x</translation>
    </message>
    <message>
        <source>8x</source>
        <translation>8x</translation>
    </message>
    <message>
        <source>WDR</source>
        <translation>WDR</translation>
    </message>
    <message>
        <source>P3:</source>
        <translation>P3:</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>P2:</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>P1:</translation>
    </message>
    <message>
        <source>E1:</source>
        <translation>E1:</translation>
    </message>
    <message>
        <source>us</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>E2:</source>
        <translation>E2:</translation>
    </message>
    <message>
        <source>E3:</source>
        <translation>E3:</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>[%1]:</source>
        <translation type="unfinished">[%1]:</translation>
    </message>
    <message>
        <source>The trigger is switched off.</source>
        <translation type="unfinished">トリガーはオフです。</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>CamConfig</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>カメラ情報</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>フレーム A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Size, frame A</source>
        <translation>サイズ、フレーム A</translation>
    </message>
    <message>
        <source>Size, frame B</source>
        <translation>サイズ、フレーム B</translation>
    </message>
    <message>
        <source>PxL</source>
        <translation>PxL</translation>
    </message>
    <message>
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message>
        <source>Frames per second, frame A</source>
        <translation>フレームレート、フレーム A</translation>
    </message>
    <message>
        <source>Frames per second, frame B</source>
        <translation>フレームレート、フレーム B</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>FTM</source>
        <translation>FTM</translation>
    </message>
    <message>
        <source>Frame time, frame A</source>
        <translation>フレーム時間、フレーム A</translation>
    </message>
    <message>
        <source>Frame time, frame B</source>
        <translation>フレーム時間、フレーム B</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>EXP</translation>
    </message>
    <message>
        <source>Exposure time, frame A</source>
        <translation>露光時間、フレーム A</translation>
    </message>
    <message>
        <source>Exposure time, frame B</source>
        <translation>露光時間、フレーム B</translation>
    </message>
    <message>
        <source>TMP</source>
        <translation>TMP</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>0C</source>
        <translation>0C</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>フレーム A/B</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>パルス</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>ストロボ</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>データ出力</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMapper</name>
    <message>
        <source>Error while setting the %1 boolean value!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">ブール値 %1 の設定中にエラーが発生しました。<byte value="xd"/>
エラーコード: %2</translation>
    </message>
    <message>
        <source>Error while executing the %1 command!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">コマンド %1 の実行中にエラーが発生しました。<byte value="xd"/>
エラーコード: %2</translation>
    </message>
    <message>
        <source>Error while setting the %1 enumeration value!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">列挙値 %1 の設定中にエラーが発生しました。<byte value="xd"/>
エラーコード: %2</translation>
    </message>
    <message>
        <source>Error while setting the %1 integer value!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">整数値 %1 の設定中にエラーが発生しました。<byte value="xd"/>
エラーコード: %2</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOpening</name>
    <message>
        <source>Another program has it open.</source>
        <translation type="unfinished">他のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>It does not answer.</source>
        <translation type="unfinished">応答がありません。</translation>
    </message>
    <message>
        <source>It did not answer in time.</source>
        <translation type="unfinished">時間内に応答がありませんでした。</translation>
    </message>
    <message>
        <source>Its address does not fit the network adapter&apos;s subnet.</source>
        <translation type="unfinished">アドレスがネットワークアダプターのサブネットに合っていません。</translation>
    </message>
    <message>
        <source>Its description cannot be used.</source>
        <translation type="unfinished">記述ファイルを使用できません。</translation>
    </message>
    <message>
        <source>It refuses access.</source>
        <translation type="unfinished">アクセスが拒否されました。</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>データ出力</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera Link 出力</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>タップ数:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>ビット深度:</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>ピクセルの種類</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>ピクセルフォーマット:</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT 設定</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC:</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>画像反転</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>水平反転</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>垂直反転</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>テストモード</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>テストパターン:</translation>
    </message>
    <message>
        <source>DPC dynamic threshold</source>
        <translation>DPC の動的閾値</translation>
    </message>
    <message>
        <source>HPC dynamic threshold</source>
        <translation>HPC の動的閾値</translation>
    </message>
    <message>
        <source>Dyn.Thres.:</source>
        <translation type="unfinished">動的閾値:</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>パルス制御</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>内部パルスジェネレーター</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>パルス幅</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>分解能:</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>周波数 [Hz]:</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S, Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S, Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>パルス数</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>連続</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source> [%1s]:</source>
        <translation type="unfinished"> [%1s]:</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">停止</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>ストロボ制御</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>ストロボ 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>モード:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>基準:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>ストロボ 2</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>Out1:</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>Out2:</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation type="unfinished">遅延 [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation type="unfinished">幅 [%1s]:</translation>
    </message>
    <message>
        <source>Source of output %1</source>
        <translation type="unfinished">出力 %1 のソース</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>トリガー制御</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>トリガーソース:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>エッジ:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>デバウンス:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>ソフトウェア
トリガー</translation>
    </message>
</context>
<context>
    <name>OrvCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>カメラの選択</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>インターフェイス情報(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>デバイス情報(&amp;D)</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>インターフェイス情報</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>デバイス情報</translation>
    </message>
</context>
<context>
    <name>OrvCameraSettings</name>
    <message>
        <source>The camera does not have it.</source>
        <translation>カメラにありません。</translation>
    </message>
</context>
<context>
    <name>OrvFeatureBrowser</name>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation type="unfinished">検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished">検索</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished">メニュー</translation>
    </message>
    <message>
        <source>Show Only Changed</source>
        <translation type="unfinished">変更されたものだけを表示</translation>
    </message>
    <message>
        <source>Put Back All</source>
        <translation type="unfinished">すべて元に戻す</translation>
    </message>
    <message>
        <source>Search in Descriptions</source>
        <translation type="unfinished">説明も検索</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished">見つかりませんでした</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation type="unfinished">%1 件見つかりました</translation>
    </message>
    <message>
        <source>%1 more at level %2</source>
        <translation type="unfinished">レベル %2 でさらに %1 件</translation>
    </message>
    <message>
        <source>Shows them</source>
        <translation type="unfinished">それらを表示します</translation>
    </message>
</context>
<context>
    <name>OrvGui::Microseconds</name>
    <message>
        <source>%1s</source>
        <translation type="unfinished">%1s</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfig</name>
    <message>
        <source>Select a device</source>
        <translation>デバイスの選択</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened!</source>
        <translation>カメラ %1 を開けません。</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>The camera system cannot be started.</source>
        <translation>カメラシステムを起動できません。</translation>
    </message>
    <message>
        <source>This program has no camera library: OrvCam_GetSystem or OrvCam_CreateDevice is missing.</source>
        <translation>このプログラムにはカメラライブラリがありません: OrvCam_GetSystem または OrvCam_CreateDevice が見つかりません。</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigFrameABDialog</name>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>デュアルビデオ
ライン時間 [pclk]:</translation>
    </message>
    <message>
        <source>Exposure Time </source>
        <translation>露光時間 </translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>ライン時間 [pclk]:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>オフセット X:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>オフセット Y:</translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>幅: </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>デジタルゲイン:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>黒レベル:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSelectorDialog</name>
    <message>
        <source>Set IP address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>再検索(&amp;R)</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Access status</source>
        <translation>アクセス状態</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC アドレス</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>ネットマスク</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>ゲートウェイ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>読み書き可能</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>アクセス不可</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>IP サブネット不一致</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>IP アドレスを設定できません</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>IP 設定の警告</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>指定された IP 設定は正しくありません。カメラを検出できなくなるおそれがあります
IP 設定を中止するには [OK]、そのまま設定するには [無視] を押してください</translation>
    </message>
    <message>
        <source>Waiting for the camera to come back with its new address...</source>
        <translation>カメラが新しいアドレスで応答するのを待っています...</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSettings</name>
    <message>
        <source>There is no camera.</source>
        <translation>カメラがありません。</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvSettingsMenu</name>
    <message>
        <source>Save Settings...</source>
        <translation>設定を保存...</translation>
    </message>
    <message>
        <source>Load Settings...</source>
        <translation>設定を読み込む...</translation>
    </message>
    <message>
        <source>Put Settings Back</source>
        <translation>設定を元に戻す</translation>
    </message>
    <message>
        <source>Compare with File...</source>
        <translation>ファイルと比較...</translation>
    </message>
    <message>
        <source>User Sets</source>
        <translation>ユーザーセット</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>設定を読み込む</translation>
    </message>
    <message>
        <source>Compare with File</source>
        <translation>ファイルと比較</translation>
    </message>
    <message>
        <source>The camera is gone. Not everything that was begun has been done.</source>
        <translation>カメラが見つかりません。開始した処理は完了していません。</translation>
    </message>
    <message>
        <source>Camera settings (*.pfs)</source>
        <translation>カメラの設定 (*.pfs)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Reading the settings of the camera...</source>
        <translation>カメラの設定を読み取っています...</translation>
    </message>
    <message>
        <source>The settings are not saved. %1</source>
        <translation>設定は保存されていません。%1</translation>
    </message>
    <message>
        <source>Settings saved in %1: %2.</source>
        <translation>%1 に保存した設定の数: %2</translation>
    </message>
    <message>
        <source>These are not:</source>
        <translation>含まれないもの:</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>The file has the settings of another model: %1. Much of it may not fit. Do you want to see what would change?</source>
        <translation>ファイルは別の機種の設定です: %1。適合しないものが多い可能性があります。変更される内容を表示しますか?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>The camera has all values of %1 already.</source>
        <translation>カメラの値はすでに %1 のとおりです。</translation>
    </message>
    <message>
        <source>This is what %1 changes:</source>
        <translation>%1 によって変更される内容:</translation>
    </message>
    <message>
        <source>(The last rows are of features that the camera does not have.)</source>
        <translation>(最後の行は、カメラにないパラメーターです。)</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Writing the settings to the camera...</source>
        <translation>設定をカメラに書き込んでいます...</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Settings that the camera has now: %1.</source>
        <translation>カメラに反映された設定の数: %1</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>カメラにありません。</translation>
    </message>
    <message>
        <source>It could not be put back.</source>
        <translation>元に戻せませんでした。</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Gives the camera the values that it had before</source>
        <translation>カメラの値を以前のものに戻します</translation>
    </message>
    <message>
        <source>Putting the settings back...</source>
        <translation>設定を元に戻しています...</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>設定の比較</translation>
    </message>
    <message>
        <source>Compare with Another File...</source>
        <translation>別のファイルと比較...</translation>
    </message>
    <message>
        <source>Compare with Another File</source>
        <translation>別のファイルと比較</translation>
    </message>
    <message>
        <source>The camera has all values of %1.</source>
        <translation>カメラの値は %1 のとおりです。</translation>
    </message>
    <message>
        <source>This is not the same in %1 and in the camera:</source>
        <translation>%1 とカメラで異なる内容:</translation>
    </message>
    <message>
        <source>%1 and %2 have the same values.</source>
        <translation>%1 と %2 の値は同じです。</translation>
    </message>
    <message>
        <source>This is not the same in %1 and in %2:</source>
        <translation>%1 と %2 で異なる内容:</translation>
    </message>
    <message>
        <source>Load %1? The present settings of the camera are lost.</source>
        <translation>%1 を読み込みますか? カメラの現在の設定は失われます。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the present settings of the camera in %1? What is there is lost.</source>
        <translation>カメラの現在の設定を %1 に保存しますか? 以前の内容は失われます。</translation>
    </message>
    <message>
        <source>Start with</source>
        <translation>起動時に使用</translation>
    </message>
    <message>
        <source>The camera is busy with its user sets...</source>
        <translation>カメラがユーザーセットを処理しています...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The output failed.</source>
        <translation>出力に失敗しました。</translation>
    </message>
    <message>
        <source>The picture &apos;%1&apos; cannot be written.</source>
        <translation>画像「%1」を書き込めません。</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; is gone.</source>
        <translation>カメラ「%1」は取り外されました。</translation>
    </message>
    <message>
        <source>The camera system cannot be started.</source>
        <translation>カメラシステムを起動できません。</translation>
    </message>
    <message>
        <source>No window can be shown: %1</source>
        <translation>ウィンドウを表示できません: %1</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>カメラが見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>QtOrvSpinBox</name>
    <message>
        <source>Show a slider</source>
        <translation>スライダーを表示</translation>
    </message>
</context>
<context>
    <name>SafeDelegate</name>
    <message>
        <source>%1 (no entry is available)</source>
        <translation type="unfinished">%1 (選択できる項目がありません)</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Values by %1</source>
        <translation type="unfinished">%1 ごとの値</translation>
    </message>
    <message>
        <source>Read Again</source>
        <translation type="unfinished">再読み込み</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation type="unfinished">読み込み中…</translation>
    </message>
    <message>
        <source>A value that you enter is written at once.</source>
        <translation type="unfinished">入力した値はすぐに書き込まれます。</translation>
    </message>
    <message>
        <source>The camera cannot be read: %1</source>
        <translation type="unfinished">カメラを読み取れません: %1</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished">拒否されました: %1</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>ネットワークアダプターの IP 設定</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC アドレス</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Subnet Mask       </source>
        <translation>サブネットマスク       </translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>カメラの IP 設定</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP アドレス(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>サブネットマスク(&amp;S)</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>デフォルトゲートウェイ(&amp;G)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>サブネットマスクが一致しません。</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>IP サブネットが一致しません。</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>IP アドレスが正しくありません。</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP 設定は正常です</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The file &apos;%1&apos; is of another model: %2.</source>
        <translation type="unfinished">ファイル &apos;%1&apos; は別の機種のものです: %2。</translation>
    </message>
    <message>
        <source>The file is too large for settings of a camera.</source>
        <translation type="unfinished">カメラの設定としてはファイルが大きすぎます。</translation>
    </message>
    <message>
        <source>The file is cut off: its last line has no end.</source>
        <translation type="unfinished">ファイルが途中で切れています。最後の行に改行がありません。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished">%1 行目: %2</translation>
    </message>
    <message>
        <source>Line 1: This is no file of camera settings.</source>
        <translation type="unfinished">1 行目: カメラの設定のファイルではありません。</translation>
    </message>
    <message>
        <source>This is no text in UTF-8.</source>
        <translation type="unfinished">UTF-8 のテキストではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name of a feature.</source>
        <translation type="unfinished">&apos;%1&apos; はパラメーターの名前ではありません。</translation>
    </message>
    <message>
        <source>There is no value for &apos;%1&apos;.</source>
        <translation type="unfinished">&apos;%1&apos; の値がありません。</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be read. %2</source>
        <translation type="unfinished">ファイル &apos;%1&apos; を読み取れません。%2</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be written. %2</source>
        <translation type="unfinished">ファイル &apos;%1&apos; に書き込めません。%2</translation>
    </message>
</context>
<context>
    <name>SettingsJob</name>
    <message>
        <source>Camera Settings</source>
        <translation type="unfinished">カメラの設定</translation>
    </message>
</context>
<context>
    <name>SettingsReader</name>
    <message>
        <source>The camera has no values that are meant to be saved.</source>
        <translation type="unfinished">保存の対象となる値がカメラにありません。</translation>
    </message>
    <message>
        <source>The text has control characters.</source>
        <translation type="unfinished">テキストに制御文字が含まれています。</translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>(none)</source>
        <translation type="unfinished">(なし)</translation>
    </message>
</context>
<context>
    <name>SettingsTableDialog</name>
    <message>
        <source>Copy</source>
        <translation type="unfinished">コピー</translation>
    </message>
</context>
<context>
    <name>SettingsWriter</name>
    <message>
        <source>The camera has made it %1.</source>
        <translation type="unfinished">カメラが %1 に変更しました。</translation>
    </message>
</context>
<context>
    <name>UndoActions</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished">元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">やり直す</translation>
    </message>
    <message>
        <source>The camera refuses this step: %1</source>
        <translation type="unfinished">カメラがこの操作を拒否しました: %1</translation>
    </message>
    <message>
        <source>Skip This Step</source>
        <translation type="unfinished">この操作をとばす</translation>
    </message>
</context>
<context>
    <name>UsedAddresses</name>
    <message>
        <source>The address %1 is that of the network adapter %2.</source>
        <translation>アドレス %1 はネットワークアダプター %2 のものです。</translation>
    </message>
    <message>
        <source>The camera %2 has the address %1.</source>
        <translation>カメラ %2 がアドレス %1 を使用しています。</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it begins with 0.</source>
        <translation>カメラにアドレス %1 は設定できません。0 で始まっています。</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is a loopback address.</source>
        <translation>カメラにアドレス %1 は設定できません。ループバックアドレスです。</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is a multicast address.</source>
        <translation>カメラにアドレス %1 は設定できません。マルチキャストアドレスです。</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is a broadcast address.</source>
        <translation>カメラにアドレス %1 は設定できません。ブロードキャストアドレスです。</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is reserved.</source>
        <translation>カメラにアドレス %1 は設定できません。予約されています。</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is that of the subnet.</source>
        <translation>カメラにアドレス %1 は設定できません。サブネット自体のアドレスです。</translation>
    </message>
</context>
</TS>
