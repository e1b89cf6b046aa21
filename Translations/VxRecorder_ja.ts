<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>FirstHint</name>
    <message>
        <source>Start here</source>
        <translation>まずはここから</translation>
    </message>
    <message>
        <source>Choose what is shown: a camera, the screen or the test picture.</source>
        <translation>表示するものを選択してください: カメラ、画面、テスト映像。</translation>
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
    <name>Zelkor::Recorder::AudioPanel</name>
    <message>
        <source>Test signal</source>
        <translation>テスト信号</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>System sound</source>
        <translation>システム音</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::CaptureBar</name>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>Around pointer</source>
        <translation>ポインター周辺</translation>
    </message>
    <message>
        <source>Sound only</source>
        <translation>音声のみ</translation>
    </message>
    <message>
        <source>No click sound</source>
        <translation>クリック音なし</translation>
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
        <source>Recording mode: %1</source>
        <translation>録画モード: %1</translation>
    </message>
    <message>
        <source>Chooses what is recorded</source>
        <translation>録画するものを選択します</translation>
    </message>
    <message>
        <source>Chooses the colour of drawings</source>
        <translation>描画の色を選択します</translation>
    </message>
    <message>
        <source>Drawing colour</source>
        <translation>描画の色</translation>
    </message>
    <message>
        <source>Chooses what is heard when you click</source>
        <translation>クリック時に鳴る音を選択します</translation>
    </message>
    <message>
        <source>Click sound</source>
        <translation>クリック音</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderModel</name>
    <message>
        <source>Test picture</source>
        <translation>テスト映像</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderView</name>
    <message>
        <source>Record</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Starts to record after a countdown</source>
        <translation>カウントダウンの後に録画を開始します</translation>
    </message>
    <message>
        <source>Ends the recording</source>
        <translation>録画を終了します</translation>
    </message>
    <message>
        <source>Waiting for the picture</source>
        <translation>映像を待っています</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>映像なし</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>%1 · %2 · %3 fps</source>
        <translation>%1 · %2 · %3 fps</translation>
    </message>
    <message>
        <source>Recording %1 · %2</source>
        <translation>録画中 %1 · %2</translation>
    </message>
    <message>
        <source>Stopped · %1</source>
        <translation>停止中 · %1</translation>
    </message>
    <message>
        <source>No picture · %1</source>
        <translation>映像なし · %1</translation>
    </message>
    <message>
        <source>The camera could not be opened. Check that it is connected and that no other program uses it, then start again.</source>
        <translation>カメラを開けませんでした。接続されていること、ほかのプログラムが使用していないことを確認して、もう一度開始してください。</translation>
    </message>
    <message>
        <source>The source could not be opened. Choose another one, or start again.</source>
        <translation>ソースを開けませんでした。別のソースを選択するか、もう一度開始してください。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Chooses what is shown</source>
        <translation>表示するものを選択します</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Sets how loud microphone and system are</source>
        <translation>マイクとシステムの音量を設定します</translation>
    </message>
    <message>
        <source>Settings of the device</source>
        <translation>デバイスの設定</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>ライブ映像</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderWindow</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Shows the widgets of VxUiWidgets at work. Nothing is recorded.</source>
        <translation>VxUiWidgets のウィジェットの動作を示します。録画は行われません。</translation>
    </message>
    <message>
        <source>Vx Recorder</source>
        <translation>Vx Recorder</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Edit the style sheet (F12)</source>
        <translation>スタイルシートを編集 (F12)</translation>
    </message>
    <message>
        <source>Trim a recording</source>
        <translation>録画のトリミング</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>ポインター</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>As given</source>
        <translation>指定どおり</translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation>カウントダウン</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>ロスレス</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>The pointer&apos;s highlight</source>
        <translation>ポインターの強調表示</translation>
    </message>
    <message>
        <source>About %1 MB per minute</source>
        <translation>1 分あたり約 %1 MB</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::SourcePanel</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (未接続)</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <translation>%1 フレーム/秒</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::ToolStrip</name>
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
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>楕円</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Numbered step</source>
        <translation>番号付きステップ</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>スポットライト</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>拡大鏡</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::TrimPage</name>
    <message>
        <source>Result: %1</source>
        <translation>結果: %1</translation>
    </message>
    <message>
        <source>Trim a recording</source>
        <translation>録画のトリミング</translation>
    </message>
    <message>
        <source>Drag the brackets or type the times. A cut begins where the position is and ends where it is the next time. Everything can be undone; Escape takes back a drag.</source>
        <translation>かっこをドラッグするか、時刻を入力してください。カットは現在位置で始まり、次に押した位置で終わります。すべて元に戻せます。Esc キーでドラッグを取り消します。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Cut to here</source>
        <translation>ここまでカット</translation>
    </message>
    <message>
        <source>Cut from here</source>
        <translation>ここからカット</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Trimmer</source>
        <translation>トリミング</translation>
    </message>
</context>
</TS>
