<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Editors</name>
    <message>
        <source>One text in each line</source>
        <translation>1 行に 1 つのテキスト</translation>
    </message>
    <message>
        <source>w</source>
        <comment>short for width</comment>
        <translation>幅</translation>
    </message>
    <message>
        <source>h</source>
        <comment>short for height</comment>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>This file is no picture</source>
        <translation>このファイルは画像ではありません</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>画像なし</translation>
    </message>
</context>
<context>
    <name>EntryText</name>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>High quality</source>
        <translation>高画質</translation>
    </message>
    <message>
        <source>Balanced</source>
        <translation>バランス</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>小さいファイル</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Record the pointer</source>
        <translation>ポインターを録画</translation>
    </message>
    <message>
        <source>Record clicks</source>
        <translation>クリックを録画</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Opens a floating panel of the application&apos;s widgets beside itself.</source>
        <translation>アプリケーションのウィジェットを載せたフローティングパネルを隣に開きます。</translation>
    </message>
    <message>
        <source>Typical</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Icon and text</source>
        <translation>アイコンとテキスト</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>アイコンのみ</translation>
    </message>
    <message>
        <source>Long text</source>
        <translation>長いテキスト</translation>
    </message>
    <message>
        <source>Quality, pointer and clicks of this recording</source>
        <translation>この録画の画質、ポインター、クリック</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Opens upwards</source>
        <translation>上に開く</translation>
    </message>
    <message>
        <source>Empty panel</source>
        <translation>空のパネル</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>テイク %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>アニメーション画像</translation>
    </message>
    <message>
        <source>Sound only</source>
        <translation>音声のみ</translation>
    </message>
    <message>
        <source>Drawing colour</source>
        <translation>描画の色</translation>
    </message>
    <message>
        <source>Click sound</source>
        <translation>クリック音</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>音なし</translation>
    </message>
    <message>
        <source>Soft click</source>
        <translation>静かな音</translation>
    </message>
    <message>
        <source>Mechanical keyboard</source>
        <translation>メカニカルキーボード</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>タイプライター</translation>
    </message>
    <message>
        <source>Mechanical keyboard of the office next door, recorded twice</source>
        <translation>隣のオフィスで 2 回録音したメカニカルキーボード</translation>
    </message>
    <message>
        <source>A tool button with a menu of choices, of which one is current.</source>
        <translation>選択肢のメニューを持ち、そのうち 1 つが現在の項目となるツールボタンです。</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>Nothing to choose</source>
        <translation>選択肢なし</translation>
    </message>
    <message>
        <source>Many items</source>
        <translation>多数の項目</translation>
    </message>
    <message>
        <source>Long texts</source>
        <translation>長いテキスト</translation>
    </message>
    <message>
        <source>Video for people who see it on a telephone</source>
        <translation>電話で見る人のための動画</translation>
    </message>
    <message>
        <source>Video for a lecture hall with a large screen</source>
        <translation>大画面のある講義室のための動画</translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>何も選択されていない</translation>
    </message>
    <message>
        <source>Shows a colour, and opens a dialog that chooses another one.</source>
        <translation>色を表示し、別の色を選択するダイアログを開きます。</translation>
    </message>
    <message>
        <source>Opaque</source>
        <translation>不透明</translation>
    </message>
    <message>
        <source>Translucent, up to 60 %</source>
        <translation>半透明、60% まで</translation>
    </message>
    <message>
        <source>Square placed elsewhere</source>
        <translation>四角形を別の位置に配置</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>A combo box that elides texts too long for it instead of growing with them.</source>
        <translation>長すぎるテキストに合わせて広がらず、省略表示するコンボボックスです。</translation>
    </message>
    <message>
        <source>With icons</source>
        <translation>アイコン付き</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>編集可能</translation>
    </message>
    <message>
        <source>Narrow</source>
        <translation>幅が狭い</translation>
    </message>
    <message>
        <source>Right-to-left</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Kit</source>
        <translation>キット</translation>
    </message>
    <message>
        <source>An editor for the style sheet of the running application; here it works on the sample above it.</source>
        <translation>実行中のアプリケーションのスタイルシートエディターです。ここでは上のサンプルに適用されます。</translation>
    </message>
    <message>
        <source>With a sheet</source>
        <translation>スタイルシートあり</translation>
    </message>
    <message>
        <source>With mistakes</source>
        <translation>エラーあり</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>A drawn portrait</source>
        <translation>人物のイラスト</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>Draws a soft rim inside the edges of a widget; here, of a picture.</source>
        <translation>ウィジェット (ここでは画像) の縁の内側に柔らかな影を描きます。</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Wide</source>
        <translation>幅が広い</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>強い</translation>
    </message>
    <message>
        <source>Coloured</source>
        <translation>色付き</translation>
    </message>
    <message>
        <source>Built-in camera of the laptop in the lecture hall</source>
        <translation>講義室のノートパソコンの内蔵カメラ</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>カメラなし</translation>
    </message>
    <message>
        <source>Document camera</source>
        <translation>書画カメラ</translation>
    </message>
    <message>
        <source>Sound sources</source>
        <translation>音源</translation>
    </message>
    <message>
        <source>Sources: %1</source>
        <translation>ソース: %1</translation>
    </message>
    <message>
        <source>System sound</source>
        <translation>システム音</translation>
    </message>
    <message>
        <source>Click sounds</source>
        <translation>クリック音</translation>
    </message>
    <message>
        <source>A combo box that elides its text, opens a list as wide as its items or a widget of yours, and can leave the wheel to its panel.</source>
        <translation>テキストを省略し、項目の幅のリストや独自のウィジェットを開き、ホイール操作をパネルに任せることもできるコンボボックスです。</translation>
    </message>
    <message>
        <source>Elided, wide list</source>
        <translation>省略、幅の広いリスト</translation>
    </message>
    <message>
        <source>Narrow list</source>
        <translation>幅の狭いリスト</translation>
    </message>
    <message>
        <source>Cut, not elided</source>
        <translation>省略せず切り取り</translation>
    </message>
    <message>
        <source>Display text</source>
        <translation>表示テキスト</translation>
    </message>
    <message>
        <source>Choose a camera…</source>
        <translation>カメラを選択…</translation>
    </message>
    <message>
        <source>Opens a widget</source>
        <translation>ウィジェットを開く</translation>
    </message>
    <message>
        <source>With icons, elided</source>
        <translation>アイコン付き、省略</translation>
    </message>
    <message>
        <source>Wheel left to the panel</source>
        <translation>ホイール操作はパネルに任せる</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name of the camera</source>
        <translation>カメラの名前</translation>
    </message>
    <message>
        <source>A line edit that elides its text until it gets the focus, and reports an edit when the focus leaves.</source>
        <translation>フォーカスを得るまでテキストを省略し、フォーカスを失うと編集を通知する入力欄です。</translation>
    </message>
    <message>
        <source>Fits</source>
        <translation>収まる</translation>
    </message>
    <message>
        <source>Elided</source>
        <translation>省略</translation>
    </message>
    <message>
        <source>Right-to-left text</source>
        <translation>右から左のテキスト</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Clear button</source>
        <translation>クリアボタン</translation>
    </message>
    <message>
        <source>Validated</source>
        <translation>入力を検証</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>秘密</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Wheel in focus only</source>
        <translation>フォーカス時のみホイール有効</translation>
    </message>
    <message>
        <source>A slider that can leave the wheel to its panel until it has the focus.</source>
        <translation>フォーカスを得るまでホイール操作をパネルに任せることができるスライダーです。</translation>
    </message>
    <message>
        <source>At its end</source>
        <translation>端の値</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>A slider for a floating-point value: its position times a multiplier.</source>
        <translation>浮動小数点値のスライダーです。値は位置と倍率の積になります。</translation>
    </message>
    <message>
        <source>Tenths</source>
        <translation>0.1 単位</translation>
    </message>
    <message>
        <source>Around zero, in quarters</source>
        <translation>0 を中心に 0.25 単位</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>A field for a whole number that can leave the wheel to its panel until it has the focus.</source>
        <translation>フォーカスを得るまでホイール操作をパネルに任せることができる整数フィールドです。</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>単位付き</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>A field for a floating-point number that can keep what is typed to whole steps.</source>
        <translation>入力値をステップの倍数に揃えることができる浮動小数点数フィールドです。</translation>
    </message>
    <message>
        <source>Typed numbers in whole steps</source>
        <translation>入力値をステップに揃える</translation>
    </message>
    <message>
        <source>Button %1</source>
        <translation>ボタン %1</translation>
    </message>
    <message>
        <source>Built-in camera</source>
        <translation>内蔵カメラ</translation>
    </message>
    <message>
        <source>A small page</source>
        <translation>小さいページ</translation>
    </message>
    <message>
        <source>A page that takes
the room of its text
and no more</source>
        <translation>テキストに
必要なだけの
広さのページ</translation>
    </message>
    <message>
        <source>A frame whose layout can be spaced by a style sheet.</source>
        <translation>レイアウトの間隔をスタイルシートで指定できるフレームです。</translation>
    </message>
    <message>
        <source>Spaced by style sheet</source>
        <translation>スタイルシートによる間隔</translation>
    </message>
    <message>
        <source>Spaced by properties</source>
        <translation>プロパティによる間隔</translation>
    </message>
    <message>
        <source>A camera with a name that is far too long for this place</source>
        <translation>この場所には名前がはるかに長すぎるカメラ</translation>
    </message>
    <message>
        <source>A label for one text that may be too long: it is elided, and shown whole as the tool tip.</source>
        <translation>長すぎるテキストを省略し、全体をツールチップで表示するラベルです。</translation>
    </message>
    <message>
        <source>Not clickable</source>
        <translation>クリック不可</translation>
    </message>
    <message>
        <source>A stack of pages that takes the size of the page it shows instead of the largest one.</source>
        <translation>最大のページではなく、表示中のページのサイズになるページスタックです。</translation>
    </message>
    <message>
        <source>Small page</source>
        <translation>小さいページ</translation>
    </message>
    <message>
        <source>Large page</source>
        <translation>大きいページ</translation>
    </message>
    <message>
        <source>Without fitting</source>
        <translation>サイズ調整なし</translation>
    </message>
    <message>
        <source>Show the hint</source>
        <translation>ヒントを表示</translation>
    </message>
    <message>
        <source>Choose a source first</source>
        <translation>最初にソースを選択してください</translation>
    </message>
    <message>
        <source>A camera, the screen
or the test picture</source>
        <translation>カメラ、画面、
またはテスト映像</translation>
    </message>
    <message>
        <source>A camera, the screen or the test picture</source>
        <translation>カメラ、画面、またはテスト映像</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>A hint in a window of its own, in the shape of an image, that goes by itself.</source>
        <translation>画像の形をした独立したウィンドウに表示され、自動的に消えるヒントです。</translation>
    </message>
    <message>
        <source>Title and text</source>
        <translation>タイトルとテキスト</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>テキストのみ</translation>
    </message>
    <message>
        <source>The recording goes on</source>
        <translation>録画は続いています</translation>
    </message>
    <message>
        <source>Speech bubble</source>
        <translation>吹き出し</translation>
    </message>
    <message>
        <source>Indicators</source>
        <translation>インジケーター</translation>
    </message>
    <message>
        <source>Shows a remaining time as three numbers with captions, in the units that suit it.</source>
        <translation>残り時間を、適切な単位の 3 つの数値で見出しとともに表示します。</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>初期状態</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短い</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Shows how the highlight around the mouse cursor will look.</source>
        <translation>マウスカーソル周囲の強調表示の見え方を示します。</translation>
    </message>
    <message>
        <source>Translucent colour</source>
        <translation>半透明の色</translation>
    </message>
    <message>
        <source>Larger than the preview</source>
        <translation>プレビューより大きい</translation>
    </message>
    <message>
        <source>Thick border</source>
        <translation>太い枠線</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>枠線なし</translation>
    </message>
    <message>
        <source>Take a picture</source>
        <translation>撮影</translation>
    </message>
    <message>
        <source>Starts a recording with these settings</source>
        <translation>この設定で録画を開始します</translation>
    </message>
    <message>
        <source>A push button with an icon, a text and a hot key, each with a look of its own.</source>
        <translation>アイコン、テキスト、ショートカットキーの外観を個別に設定できるプッシュボタンです。</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Take a picture of everything on the screen</source>
        <translation>画面上のすべてを撮影</translation>
    </message>
    <message>
        <source>No hot key</source>
        <translation>ショートカットキーなし</translation>
    </message>
    <message>
        <source>Region around 
the pointer</source>
        <translation>ポインターの
周辺の領域</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Shows an action with its shortcut, and triggers it.</source>
        <translation>アクションをショートカットとともに表示し、実行します。</translation>
    </message>
    <message>
        <source>Preset type &quot;User&quot;</source>
        <translation>プリセットの種類「User」</translation>
    </message>
    <message>
        <source>My lecture</source>
        <translation>私の講義</translation>
    </message>
    <message>
        <source>Line feed, no word wrap</source>
        <translation>改行あり、折り返しなし</translation>
    </message>
    <message>
        <source>Line feed, word wrap by style</source>
        <translation>改行あり、スタイルによる折り返し</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>ショートカットなし</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>Waves of colour</source>
        <translation>色の波</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>色</translation>
    </message>
    <message>
        <source>A grid of round LEDs, each of a colour of its own.</source>
        <translation>それぞれ独自の色を持つ丸い LED のグリッドです。</translation>
    </message>
    <message>
        <source>A sign</source>
        <translation>記号</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>透明な背景</translation>
    </message>
    <message>
        <source>Named colours</source>
        <translation>名前付きの色</translation>
    </message>
    <message>
        <source>Wider than the grid</source>
        <translation>グリッドより幅が広い</translation>
    </message>
    <message>
        <source>4096 LEDs</source>
        <translation>4096 個の LED</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>A button that shows a level and opens a slider above itself.</source>
        <translation>レベルを表示し、上にスライダーを開くボタンです。</translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation>レベル 0</translation>
    </message>
    <message>
        <source>From 1</source>
        <translation>1 以上</translation>
    </message>
    <message>
        <source>From 25</source>
        <translation>25 以上</translation>
    </message>
    <message>
        <source>From 50</source>
        <translation>50 以上</translation>
    </message>
    <message>
        <source>From 75</source>
        <translation>75 以上</translation>
    </message>
    <message>
        <source>Slider in a window apart</source>
        <translation>別ウィンドウのスライダー</translation>
    </message>
    <message>
        <source>High slider</source>
        <translation>縦に長いスライダー</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>映像なし</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Shows live video frames in an area of fixed size.</source>
        <translation>ライブ映像のフレームを固定サイズの領域に表示します。</translation>
    </message>
    <message>
        <source>Default image</source>
        <translation>既定の画像</translation>
    </message>
    <message>
        <source>Large frame</source>
        <translation>大きいフレーム</translation>
    </message>
    <message>
        <source>Upright frame</source>
        <translation>縦長のフレーム</translation>
    </message>
    <message>
        <source>Small frame</source>
        <translation>小さいフレーム</translation>
    </message>
    <message>
        <source>Runs the live picture of a capture device in a preview; here, of the moving test picture.</source>
        <translation>キャプチャデバイス (ここでは動くテスト映像) のライブ映像をプレビューに表示します。</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>A slider for a recording volume, with a meter of the input level behind its handle.</source>
        <translation>つまみの後ろに入力レベルメーターを備えた、録音音量のスライダーです。</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>無音</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Volume lower than level</source>
        <translation>音量がレベルより低い</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>角丸</translation>
    </message>
    <message>
        <source>Shows one picture over its whole area: stretched, cut, or cut to an ellipse.</source>
        <translation>1 つの画像を領域全体に表示します。引き伸ばし、切り抜き、楕円形の切り抜きができます。</translation>
    </message>
    <message>
        <source>No mask</source>
        <translation>マスクなし</translation>
    </message>
    <message>
        <source>Rectangle, top left</source>
        <translation>長方形、左上</translation>
    </message>
    <message>
        <source>Rectangle, bottom right</source>
        <translation>長方形、右下</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>楕円</translation>
    </message>
    <message>
        <source>Ellipse upright</source>
        <translation>縦長の楕円</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>ポインター</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>ペン</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>矢印</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Drawing tools</source>
        <translation>描画ツール</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>A strip of tool buttons that scrolls sideways when they do not fit.</source>
        <translation>収まらないときに横にスクロールするツールボタンの列です。</translation>
    </message>
    <message>
        <source>All fit</source>
        <translation>すべて収まる</translation>
    </message>
    <message>
        <source>Scrolls</source>
        <translation>スクロールする</translation>
    </message>
    <message>
        <source>Scrolled to the middle</source>
        <translation>中央までスクロール</translation>
    </message>
    <message>
        <source>Few items</source>
        <translation>少数の項目</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>A slider for one of a few named values, with the names above its ticks.</source>
        <translation>名前付きの値から 1 つを選び、目盛りの上に名前を表示するスライダーです。</translation>
    </message>
    <message>
        <source>Three values</source>
        <translation>3 つの値</translation>
    </message>
    <message>
        <source>Five values</source>
        <translation>5 つの値</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>ソースと同じ</translation>
    </message>
    <message>
        <source>As small as possible</source>
        <translation>できるだけ小さく</translation>
    </message>
    <message>
        <source>Balanced for most recordings</source>
        <translation>ほとんどの録画に適したバランス</translation>
    </message>
    <message>
        <source>Without any loss</source>
        <translation>完全にロスレス</translation>
    </message>
    <message>
        <source>Little room</source>
        <translation>狭いスペース</translation>
    </message>
    <message>
        <source>One value</source>
        <translation>1 つの値</translation>
    </message>
    <message>
        <source>No value</source>
        <translation>値なし</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Start</source>
        <comment>thumb</comment>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <comment>thumb</comment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>%1 のマーク</translation>
    </message>
    <message>
        <source>A slider with any number of thumbs and highlighted stretches, for trimming and timelines.</source>
        <translation>任意の数のつまみと強調区間を持つ、トリミングやタイムラインのためのスライダーです。</translation>
    </message>
    <message>
        <source>One thumb</source>
        <translation>つまみ 1 つ</translation>
    </message>
    <message>
        <source>Trimming</source>
        <translation>トリミング</translation>
    </message>
    <message>
        <source>Trimming, position limited</source>
        <translation>トリミング、位置を制限</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>区間</translation>
    </message>
    <message>
        <source>Marks, one selected</source>
        <translation>マーク、1 つ選択</translation>
    </message>
    <message>
        <source>Marks that snap to the position</source>
        <translation>位置に吸着するマーク</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>縦向き</translation>
    </message>
    <message>
        <source>Upright, segments</source>
        <translation>縦向き、区間</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>録画 %1</translation>
    </message>
    <message>
        <source>What is on the screen, or a part of it.</source>
        <translation>画面に表示されているもの、またはその一部。</translation>
    </message>
    <message>
        <source>A camera, in a corner of the picture.</source>
        <translation>映像の隅に表示するカメラ。</translation>
    </message>
    <message>
        <source>The sound of what is said.</source>
        <translation>話している音声。</translation>
    </message>
    <message>
        <source>A page that is wider than the others</source>
        <translation>ほかのページより幅の広いページ</translation>
    </message>
    <message>
        <source>A page
that is higher
than the others
and not wide</source>
        <translation>ほかのページより
高さがあり
幅の広くない
ページ</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>A tab bar whose style sheet says where text and icon of a tab are, and how they change with the selection.</source>
        <translation>タブのテキストとアイコンの位置、選択による変化をスタイルシートで指定するタブバーです。</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>One disabled</source>
        <translation>1 つ無効</translation>
    </message>
    <message>
        <source>Scrolled</source>
        <translation>スクロール済み</translation>
    </message>
    <message>
        <source>Closable and movable</source>
        <translation>閉じる・移動が可能</translation>
    </message>
    <message>
        <source>A tab widget with that tab bar.</source>
        <translation>そのタブバーを備えたタブウィジェットです。</translation>
    </message>
    <message>
        <source>At the side</source>
        <translation>横に配置</translation>
    </message>
    <message>
        <source>A stack of pages that is fixed to the size of the page it shows.</source>
        <translation>表示中のページのサイズに固定されるページスタックです。</translation>
    </message>
    <message>
        <source>Wide page</source>
        <translation>幅の広いページ</translation>
    </message>
    <message>
        <source>High page</source>
        <translation>高さのあるページ</translation>
    </message>
    <message>
        <source>A slider for a time within a span, which bounds can narrow; it tells the time under the mouse.</source>
        <translation>範囲内の時刻を選ぶスライダー。境界で範囲を狭められ、マウスの下の時刻を表示します。</translation>
    </message>
    <message>
        <source>One minute of three</source>
        <translation>3 分のうち 1 分</translation>
    </message>
    <message>
        <source>Narrowed by bounds</source>
        <translation>境界で狭めた範囲</translation>
    </message>
    <message>
        <source>Bounds with thumbs</source>
        <translation>つまみ付きの境界</translation>
    </message>
    <message>
        <source>At its bound</source>
        <translation>境界上</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>A field for a time whose digits are overwritten in place, in the shortest format that is exact.</source>
        <translation>数字をその場で上書きする時刻欄。正確に表せる最短の形式で表示します。</translation>
    </message>
    <message>
        <source>One format</source>
        <translation>1 つの形式</translation>
    </message>
    <message>
        <source>The format that fits: minutes</source>
        <translation>合う形式: 分</translation>
    </message>
    <message>
        <source>The format that fits: milliseconds</source>
        <translation>合う形式: ミリ秒</translation>
    </message>
    <message>
        <source>Always the longest format</source>
        <translation>常に最長の形式</translation>
    </message>
    <message>
        <source>As wide as its text</source>
        <translation>テキストの幅</translation>
    </message>
    <message>
        <source>From 00:01:00 to 00:30:00</source>
        <translation>00:01:00 から 00:30:00 まで</translation>
    </message>
    <message>
        <source>Twelve hours</source>
        <translation>12 時間</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>レコーダー</translation>
    </message>
    <message>
        <source>Drag the window by its title bar or by this text.</source>
        <translation>タイトルバーまたはこのテキストをドラッグしてウィンドウを移動します。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>A title bar that the application draws itself, for a window without a frame.</source>
        <translation>枠のないウィンドウのために、アプリケーション自身が描画するタイトルバーです。</translation>
    </message>
    <message>
        <source>With tools</source>
        <translation>ツール付き</translation>
    </message>
    <message>
        <source>Close only</source>
        <translation>閉じるのみ</translation>
    </message>
    <message>
        <source>Long title</source>
        <translation>長いタイトル</translation>
    </message>
    <message>
        <source>Recording of the weekly meeting, second part - Recorder</source>
        <translation>週例会議の録画、後半 - レコーダー</translation>
    </message>
    <message>
        <source>No icon</source>
        <translation>アイコンなし</translation>
    </message>
    <message>
        <source>Show the dialog</source>
        <translation>ダイアログを表示</translation>
    </message>
    <message>
        <source>Copyright 2026 Example Company</source>
        <translation>Copyright 2026 サンプル株式会社</translation>
    </message>
    <message>
        <source>The about dialog, whose links take their style from the style sheet.</source>
        <translation>リンクのスタイルをスタイルシートから取得するバージョン情報ダイアログです。</translation>
    </message>
    <message>
        <source>Link of its own</source>
        <translation>独自のリンク</translation>
    </message>
    <message>
        <source>Copyright 2026 Example Company. All rights reserved. Protected by law; made with the help of many.</source>
        <translation>Copyright 2026 サンプル株式会社. All rights reserved. 法律により保護されています。多くの方々の協力により制作されました。</translation>
    </message>
    <message>
        <source>Resize the window by its edges, and double-click its title bar.</source>
        <translation>ウィンドウの端をドラッグしてサイズを変更し、タイトルバーをダブルクリックします。</translation>
    </message>
    <message>
        <source>Open a window</source>
        <translation>ウィンドウを開く</translation>
    </message>
    <message>
        <source>Lets a window without a frame be resized, maximised and restored like one with a frame.</source>
        <translation>枠のないウィンドウを、枠のあるウィンドウと同じようにサイズ変更、最大化、復元できるようにします。</translation>
    </message>
    <message>
        <source>Maximised</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Fixed size</source>
        <translation>固定サイズ</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>There is no colour for %1</source>
        <translation>%1 の色がありません</translation>
    </message>
    <message>
        <source>Not a line of a palette: %1</source>
        <translation>パレットの行ではありません: %1</translation>
    </message>
</context>
<context>
    <name>Zelkor::Examples::Appearance</name>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>ハイコントラスト</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::CodePane</name>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>ヘッダー</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>リンクをコピー</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy all of the code</source>
        <translation>コードをすべてコピー</translation>
    </message>
    <message>
        <source>Forms cannot contain it.</source>
        <translation>フォームには配置できません。</translation>
    </message>
    <message>
        <source>Forms cannot contain it: %1.</source>
        <translation>フォームには配置できません: %1。</translation>
    </message>
    <message>
        <source>Copy the command that opens this page and state:
%1</source>
        <translation>このページと状態を開くコマンドをコピー:
%1</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open a file that this page comes from</source>
        <translation>このページの元になったファイルを開く</translation>
    </message>
    <message>
        <source>Source of the catalogue</source>
        <translation>カタログのソース</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ColorField</name>
    <message>
        <source>No colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>色を選択</translation>
    </message>
    <message>
        <source>Choose a colour (%1)</source>
        <translation>色を選択 (%1)</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::GalleryWindow</name>
    <message>
        <source>VxUiWidgets Gallery</source>
        <translation>VxUiWidgets ギャラリー</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::Inspector</name>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>役割</translation>
    </message>
    <message>
        <source>Accessible name</source>
        <translation>アクセシブル名</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ObjectTree</name>
    <message>
        <source>Objects</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Class and object name</source>
        <translation>クラスとオブジェクト名</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search the pages (%1)</source>
        <translation>ページを検索 (%1)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>By description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>By property, signal or part</source>
        <translation>プロパティ、シグナル、部品</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PaletteEditor</name>
    <message>
        <source>Palettes (*.palette)</source>
        <translation>パレット (*.palette)</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Palette to start from</source>
        <translation>元にするパレット</translation>
    </message>
    <message>
        <source>Open a palette...</source>
        <translation>パレットを開く...</translation>
    </message>
    <message>
        <source>Save the palette...</source>
        <translation>パレットを保存...</translation>
    </message>
    <message>
        <source>There are colours that were not saved.</source>
        <translation>保存されていない色があります。</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PropertyPanel</name>
    <message>
        <source>In a style sheet</source>
        <translation>スタイルシートでの記述</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copies the line of the style sheet</source>
        <translation>スタイルシートの行をコピー</translation>
    </message>
    <message>
        <source>Values of the type %1 are shown only</source>
        <translation>%1 型の値は表示のみです</translation>
    </message>
    <message>
        <source>Default of %1</source>
        <translation>%1 の既定値</translation>
    </message>
    <message>
        <source>%1: %2
Default: %3</source>
        <translation>%1: %2
既定値: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Back to the default: %1</source>
        <translation>既定値に戻す: %1</translation>
    </message>
    <message>
        <source>Choose a property</source>
        <translation>プロパティを選択してください</translation>
    </message>
    <message>
        <source>Style sheets cannot say this</source>
        <translation>スタイルシートでは指定できません</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ResizeFrame</name>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Arrow keys resize the widget, Backspace restores its size</source>
        <translation>矢印キーでウィジェットのサイズを変更し、Backspace で元に戻します</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::SceneBar</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>表示環境</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>Lay out from right to left</source>
        <translation>右から左に配置</translation>
    </message>
    <message>
        <source>Scale. Another one starts the gallery anew, with this page.</source>
        <translation>倍率。変更するとこのページでギャラリーを再起動します。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Enable the widgets of the page</source>
        <translation>ページのウィジェットを有効にする</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>Edit the style sheet (F12)</source>
        <translation>スタイルシートを編集 (F12)</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>Properties, signals and objects of a widget</source>
        <translation>ウィジェットのプロパティ、シグナル、オブジェクト</translation>
    </message>
    <message>
        <source>%1 (starts anew)</source>
        <translation>%1 (再起動)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Open a style sheet</source>
        <translation>スタイルシートを開く</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>スタイルシート (*.qss)</translation>
    </message>
    <message>
        <source>Open a style sheet...</source>
        <translation>スタイルシートを開く...</translation>
    </message>
    <message>
        <source>Edit the palette...</source>
        <translation>パレットを編集...</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::SignalLog</name>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Empties the list of signals</source>
        <translation>シグナルの一覧を消去します</translation>
    </message>
    <message>
        <source>The signals of the widgets are listed here</source>
        <translation>ウィジェットのシグナルがここに表示されます</translation>
    </message>
    <message>
        <source>The widgets of this page have no signals of their own</source>
        <translation>このページのウィジェットには独自のシグナルがありません</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::StartPage</name>
    <message>
        <source>Widgets for screen recorders</source>
        <translation>画面レコーダー用ウィジェット</translation>
    </message>
    <message>
        <source>The recorder is an application made of these widgets: a live picture, its sound level, panels, settings and a trimmer.</source>
        <translation>レコーダーはこれらのウィジェットで作られたアプリケーションです。ライブ映像、音量レベル、パネル、設定、トリミングを備えています。</translation>
    </message>
    <message>
        <source>Open the recorder</source>
        <translation>レコーダーを開く</translation>
    </message>
    <message>
        <source>The list at the side has a page for each widget, with all of its states and an inspector.</source>
        <translation>横のリストには各ウィジェットのページがあり、すべての状態とインスペクターを表示します。</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::StateBar</name>
    <message>
        <source>Forced states</source>
        <translation>強制した状態</translation>
    </message>
    <message>
        <source>Force:</source>
        <translation>強制:</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>ホバー</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>押下</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>フォーカス</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Show the selected widget in this state until it is switched off</source>
        <translation>オフにするまで、選択したウィジェットをこの状態で表示します</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::WidgetPage</name>
    <message>
        <source>Return leads to the tools of this state</source>
        <translation>Enter キーでこの状態のツールに移動します</translation>
    </message>
</context>
</TS>
