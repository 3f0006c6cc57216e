<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>ボタンとテキスト</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>スクリーンショットを撮る</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>A long text takes a second line</source>
        <translation>長いテキストは二行になります</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>The title of a page</source>
        <translation>ページのタイトル</translation>
    </message>
    <message>
        <source>The heading of a card</source>
        <translation>カードの見出し</translation>
    </message>
    <message>
        <source>A text that people read, which wraps where the line ends.</source>
        <translation>読むためのテキストで、行末で折り返されます。</translation>
    </message>
    <message>
        <source>A text of less importance.</source>
        <translation>重要度の低いテキストです。</translation>
    </message>
    <message>
        <source>A label, which ends in an ellipsis where there is no room for it</source>
        <translation>ラベルは、場所が足りないと省略記号で終わります</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>アイコン</translation>
    </message>
</context>
<context>
    <name>CablePage</name>
    <message>
        <source>Cable test</source>
        <translation>ケーブル試験</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cable test, %1</source>
        <translation>ケーブル試験、%1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存済み: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
</context>
<context>
    <name>ChangesPage</name>
    <message>
        <source>Changes that wait</source>
        <translation>保留中の変更</translation>
    </message>
    <message>
        <source>Nothing is sent before Apply</source>
        <translation>「適用」まで何も送信されません</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>すべて元に戻す</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>DatesPage</name>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked; passed on as ISO 8601</source>
        <translation>地域の書き方で入力または選択。ISO 8601 で渡されます</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>このページの項目</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>期日</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>Values of this page</source>
        <translation>このページの値</translation>
    </message>
    <message>
        <source>Next calibration</source>
        <translation>次回の校正</translation>
    </message>
    <message>
        <source>In this year</source>
        <translation>今年のうち</translation>
    </message>
    <message>
        <source>Passed on: %1</source>
        <translation>渡された値: %1</translation>
    </message>
</context>
<context>
    <name>EntriesPage</name>
    <message>
        <source>Entries</source>
        <translation>入力欄</translation>
    </message>
    <message>
        <source>ItemEntry over items of the optical service</source>
        <translation>光サービスの項目に対する ItemEntry</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Gallery</source>
        <translation>ギャラリー</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>light</source>
        <translation>明るい</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>暗い</translation>
    </message>
    <message>
        <source>sunlight</source>
        <translation>日光</translation>
    </message>
</context>
<context>
    <name>GroupsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>ボタンとテキスト</translation>
    </message>
    <message>
        <source>Buttons, icons, cards and the sizes of texts</source>
        <translation>ボタン、アイコン、カード、文字の大きさ</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Rows, sections and what stands there when a list is empty</source>
        <translation>行、セクション、空のリストの表示</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>入力欄</translation>
    </message>
    <message>
        <source>The entry for every kind of item</source>
        <translation>あらゆる種類の項目の入力欄</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>選択と数値</translation>
    </message>
    <message>
        <source>Segments, steppers and sliders that keep an item&apos;s limits</source>
        <translation>項目の限度値を守るセグメント、ステッパー、スライダー</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked</source>
        <translation>地域の書き方で入力、または選択</translation>
    </message>
    <message>
        <source>Status and messages</source>
        <translation>状態とメッセージ</translation>
    </message>
    <message>
        <source>Verdicts, progress, problems and services that are away</source>
        <translation>判定、進行状況、問題、応答しないサービス</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>The stack of pages, tabs and the line at the top</source>
        <translation>ページの重なり、タブ、上端の行</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>部品</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>保留中の変更</translation>
    </message>
    <message>
        <source>What is applied together, each change with what became of it</source>
        <translation>まとめて適用される変更と、それぞれの状態</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Lists</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Rows of 11 mm and more, which may touch</source>
        <translation>11 mm 以上の行は、隣り合って構いません</translation>
    </message>
    <message>
        <source>JOB-4711, 3 tests</source>
        <translation>JOB-4711、試験 3 件</translation>
    </message>
    <message>
        <source>JOB-4712, 1 test</source>
        <translation>JOB-4712、試験 1 件</translation>
    </message>
    <message>
        <source>JOB-4713, 8 tests</source>
        <translation>JOB-4713、試験 8 件</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>A section whose contents fold away</source>
        <translation>内容を畳めるセクション</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>being copied</source>
        <translation>コピー中</translation>
    </message>
    <message>
        <source>No screenshots</source>
        <translation>スクリーンショットなし</translation>
    </message>
    <message>
        <source>Tap the camera at the top of a page to keep what it shows.</source>
        <translation>ページ上部のカメラをタップすると、表示内容を残せます。</translation>
    </message>
    <message>
        <source>Take one</source>
        <translation>撮る</translation>
    </message>
</context>
<context>
    <name>NumbersPage</name>
    <message>
        <source>Choices and numbers</source>
        <translation>選択と数値</translation>
    </message>
    <message>
        <source>A gesture writes one value, within the limits of the item</source>
        <translation>一回の操作で、項目の限度内の値を一つ書き込みます</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>サービスの項目</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>このページの項目</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>繰り返し回数</translation>
    </message>
    <message>
        <source>Brightness in per cent</source>
        <translation>明るさ (パーセント)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>不合格のみ</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>選択: %1</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Page %1 of the stack</source>
        <translation>重なりの %1 ページ目</translation>
    </message>
    <message>
        <source>The footer stays where it is.</source>
        <translation>フッターは動きません。</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲線</translation>
    </message>
    <message>
        <source>Tabs above the contents. The arrow keys go from tab to tab.</source>
        <translation>内容の上のタブ。矢印キーでタブを移動します。</translation>
    </message>
    <message>
        <source>Tabs below the contents are the navigation of a program.</source>
        <translation>内容の下のタブは、プログラムの移動に使います。</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>測定</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>StatusPage</name>
    <message>
        <source>Status and messages</source>
        <translation>状態とメッセージ</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>往復時間</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>スループット</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>損失</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Let the service return</source>
        <translation>サービスを戻す</translation>
    </message>
    <message>
        <source>Let the service vanish</source>
        <translation>サービスを消す</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>42 of 100 samples, 12 s left</source>
        <translation>サンプル 42 / 100、残り 12 秒</translation>
    </message>
    <message>
        <source>Waiting for the far end</source>
        <translation>対向側を待っています</translation>
    </message>
    <message>
        <source>Problems, where they are</source>
        <translation>問題は、その場所に</translation>
    </message>
    <message>
        <source>The name may have 50 characters, it has 86.</source>
        <translation>名前は最大 50 文字です。現在は 86 文字です。</translation>
    </message>
    <message>
        <source>The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.</source>
        <translation>ドライブがいっぱいです。ファイルを削除するか、USB メモリーに保存してください。それまで測定結果は下書きとして残ります。</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Site</source>
        <translation>設置場所</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>損失</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>繰り返し回数</translation>
    </message>
    <message>
        <source>Server (either version)</source>
        <translation>サーバー (どちらの版も可)</translation>
    </message>
    <message>
        <source>Unit address</source>
        <translation>本体のアドレス</translation>
    </message>
    <message>
        <source>Unit address, version 6</source>
        <translation>本体のアドレス、バージョン 6</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Upload to</source>
        <translation>アップロード先</translation>
    </message>
    <message>
        <source>Report file</source>
        <translation>レポートのファイル</translation>
    </message>
    <message>
        <source>Upload password</source>
        <translation>アップロードのパスワード</translation>
    </message>
    <message>
        <source>Call back</source>
        <translation>折り返し先</translation>
    </message>
    <message>
        <source>Cabinet code</source>
        <translation>キャビネットのコード</translation>
    </message>
    <message>
        <source>Test pattern (hexadecimal)</source>
        <translation>試験パターン (16 進)</translation>
    </message>
    <message>
        <source>File mode (octal)</source>
        <translation>ファイルモード (8 進)</translation>
    </message>
    <message>
        <source>Alarm lines (binary)</source>
        <translation>警報線 (2 進)</translation>
    </message>
    <message>
        <source>Test time</source>
        <translation>試験時間</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <translation>ブザー</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>コネクター</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>ストレート</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>斜め</translation>
    </message>
    <message>
        <source>Bare fiber</source>
        <translation>裸ファイバー</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>目印</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>基準値</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>センサー</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>サービスの項目</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>このページの項目</translation>
    </message>
</context>
</TS>
