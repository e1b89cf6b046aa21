<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>CountdownIndicatorWidget</name>
    <message>
        <source>yr</source>
        <comment>short years (max 3 letters)</comment>
        <translation>年</translation>
    </message>
    <message>
        <source>mon</source>
        <comment>short months (max 3 letters)</comment>
        <translation>月</translation>
    </message>
    <message>
        <source>day</source>
        <comment>short days (max 3 letters)</comment>
        <translation>日</translation>
    </message>
    <message>
        <source>hr</source>
        <comment>short hours (max 3 letters)</comment>
        <translation>時</translation>
    </message>
    <message>
        <source>min</source>
        <comment>short minutes (max 3 letters)</comment>
        <translation>分</translation>
    </message>
    <message>
        <source>sec</source>
        <comment>short seconds (max 3 letters)</comment>
        <translation>秒</translation>
    </message>
</context>
<context>
    <name>CursorHighlightPreviewWidget</name>
    <message>
        <source>Preview of the cursor highlight</source>
        <translation>カーソルの強調表示のプレビュー</translation>
    </message>
</context>
<context>
    <name>QLedMatrix</name>
    <message>
        <source>LED matrix</source>
        <translation>LED マトリクス</translation>
    </message>
</context>
<context>
    <name>StyleSheetChecker</name>
    <message>
        <source>The comment has no end.</source>
        <translation>コメントが閉じられていません。</translation>
    </message>
    <message>
        <source>The string has no end.</source>
        <translation>文字列が閉じられていません。</translation>
    </message>
    <message>
        <source>The brace is not closed.</source>
        <translation>波括弧が閉じられていません。</translation>
    </message>
    <message>
        <source>The parenthesis is not closed.</source>
        <translation>丸括弧が閉じられていません。</translation>
    </message>
    <message>
        <source>The bracket is not closed.</source>
        <translation>角括弧が閉じられていません。</translation>
    </message>
    <message>
        <source>The brace closes nothing.</source>
        <translation>対応する開き波括弧がありません。</translation>
    </message>
    <message>
        <source>A selector is missing.</source>
        <translation>セレクターがありません。</translation>
    </message>
    <message>
        <source>Declarations in braces are missing.</source>
        <translation>波括弧で囲んだ宣言がありません。</translation>
    </message>
    <message>
        <source>This cannot stand in a selector.</source>
        <translation>これはセレクターには使えません。</translation>
    </message>
    <message>
        <source>The name of a property is missing.</source>
        <translation>プロパティ名がありません。</translation>
    </message>
    <message>
        <source>A colon is missing.</source>
        <translation>コロンがありません。</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>値がありません。</translation>
    </message>
    <message>
        <source>A semicolon is missing.</source>
        <translation>セミコロンがありません。</translation>
    </message>
    <message>
        <source>This cannot stand in a value.</source>
        <translation>これは値には使えません。</translation>
    </message>
    <message>
        <source>This is no colour.</source>
        <translation>これは色ではありません。</translation>
    </message>
    <message>
        <source>Qt does not accept this.</source>
        <translation>Qt はこれを受け付けません。</translation>
    </message>
</context>
<context>
    <name>StyleSheetFile</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み込めません: %2。</translation>
    </message>
    <message>
        <source>%1 is too large for a style sheet.</source>
        <translation>%1 はスタイルシートとしては大きすぎます。</translation>
    </message>
    <message>
        <source>%1 is not a text in UTF-8.</source>
        <translation>%1 は UTF-8 のテキストではありません。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 は通常のファイルではありません。</translation>
    </message>
</context>
<context>
    <name>ZRuntimeStylesheetEditor</name>
    <message>
        <source>Line %1, column %2</source>
        <translation>%1 行 %2 列</translation>
    </message>
    <message>
        <source>The widget is gone. Choose another one.</source>
        <translation>ウィジェットがなくなりました。別のものを選択してください。</translation>
    </message>
    <message>
        <source>Click on a widget of the application, or press Escape.</source>
        <translation>アプリケーションのウィジェットをクリックするか、Esc キーを押してください。</translation>
    </message>
    <message>
        <source>Style sheet editor</source>
        <translation>スタイルシートエディター</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(ほか %n 件)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no mistakes.</source>
        <translation>エラーはありません。</translation>
    </message>
    <message>
        <source>Not applied: the widget is gone. Choose another one.</source>
        <translation>適用できませんでした: ウィジェットがなくなりました。別のものを選択してください。</translation>
    </message>
    <message>
        <source>Not applied. %1</source>
        <translation>適用できませんでした。%1</translation>
    </message>
    <message>
        <source>Applied to %1.</source>
        <translation>%1 に適用しました。</translation>
    </message>
    <message>
        <source>Applied to the application.</source>
        <translation>アプリケーションに適用しました。</translation>
    </message>
    <message>
        <source>Nothing was applied that could be reverted.</source>
        <translation>元に戻せる適用はありません。</translation>
    </message>
    <message>
        <source>Reverted.</source>
        <translation>元に戻しました。</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>Save the style sheet</source>
        <translation>スタイルシートを保存</translation>
    </message>
    <message>
        <source>Open a style sheet</source>
        <translation>スタイルシートを開く</translation>
    </message>
    <message>
        <source>Style sheets (*.qss);;All files (*)</source>
        <translation>スタイルシート (*.qss);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find and replace</source>
        <translation>検索と置換(&amp;F)</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>Next &amp;mistake</source>
        <translation>次のエラー(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>入力補完(&amp;C)</translation>
    </message>
    <message>
        <source>Style s&amp;heet</source>
        <translation>スタイルシート(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>元に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Read &amp;from the target</source>
        <translation>対象から読み込む(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Pick a widget</source>
        <translation>ウィジェットを選択(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Target:</source>
        <translation>対象(&amp;T):</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Choose a widget with the mouse</source>
        <translation>マウスでウィジェットを選択します</translation>
    </message>
    <message>
        <source>Apply while t&amp;yping</source>
        <translation>入力しながら適用(&amp;Y)</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>コピー(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ZSliderButton</name>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::CustomTitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::SaveChangesBar</name>
    <message>
        <source>There are changes that were not saved.</source>
        <translation>保存されていない変更があります。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::SearchBar</name>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>置換後の文字列</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>大文字と小文字を区別(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Whole words</source>
        <translation>単語単位(&amp;W)</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>見つかりませんでした。</translation>
    </message>
    <message>
        <source>Found from the end on.</source>
        <translation>末尾に戻って見つかりました。</translation>
    </message>
    <message>
        <source>Found from the beginning on.</source>
        <translation>先頭に戻って見つかりました。</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced.</source>
        <translation>
            <numerusform>%n 件置換しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>置換(&amp;P)</translation>
    </message>
    <message>
        <source>Replace a&amp;ll</source>
        <translation>すべて置換(&amp;L)</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>閉じる(&amp;O)</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::StyleSheetTargetComboBox</name>
    <message>
        <source>Application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>Choose a widget</source>
        <translation>ウィジェットを選択</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::TitleBarController</name>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::ScrollablePanelWithItem</name>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::VideoPreviewWidget</name>
    <message>
        <source>Video preview</source>
        <translation>ビデオのプレビュー</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::VolumeSlider</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
</context>
</TS>
