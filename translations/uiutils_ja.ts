<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ActionForm</name>
    <message>
        <source>Argument</source>
        <translation>引数</translation>
    </message>
    <message>
        <source>Carry out</source>
        <translation>実行</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. Name another folder.</source>
        <translation>--root または UIUTILS_ROOT で指定されたフォルダー %1 の名前は、ファイル名の文字コードで書かれていません。別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Try --help for the options.</source>
        <translation>オプションは --help で確認できます。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Publish the services described in &lt;folder&gt;; may be given more than once (default: %1).</source>
        <translation>&lt;folder&gt; に記述されたサービスを公開します。複数回指定できます (既定値: %1)。</translation>
    </message>
    <message>
        <source>--%1 needs a name.</source>
        <translation>--%1 には名前が必要です。</translation>
    </message>
    <message>
        <source>Show what a screen of that size and density shows, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, such as 800x480@133 (default: %1).</source>
        <translation>指定したサイズと密度の画面での表示にします。&lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt; の形式、例: 800x480@133 (既定値: %1)。</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as 1024x600@170.</source>
        <translation>--screen には %1 ～ %2 ピクセルのサイズと %3 ～ %4 dpi の密度が必要です (例: 1024x600@170)。</translation>
    </message>
    <message>
        <source>--from needs a number of seconds.</source>
        <translation>--from には秒数が必要です。</translation>
    </message>
    <message>
        <source>--speed needs a number from 0.001 to 1000000.</source>
        <translation>--speed には 0.001 から 1000000 までの数が必要です。</translation>
    </message>
</context>
<context>
    <name>ControlsStyle</name>
    <message>
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>Measures TCP over this machine&apos;s loopback interface and saves a report of it, the way a test application of the instrument does.
With a display a window opens. Without one, or with --tour, the program runs by itself.

Exit status: 0 done, 1 failed, 2 wrong command line.</source>
        <translation>このコンピューターのループバックインターフェースで TCP を測定し、測定器の試験アプリケーションと同じようにレポートを保存します。
画面があればウィンドウが開きます。画面がない場合や --tour を指定した場合は自動で進みます。

終了コード: 0 正常、1 失敗、2 コマンドラインの誤り。</translation>
    </message>
    <message>
        <source>Keep everything that is written below &lt;folder&gt; (default: %1).</source>
        <translation>書き込むものをすべて &lt;folder&gt; の下に置きます (既定値: %1)。</translation>
    </message>
    <message>
        <source>Take &lt;number&gt; samples of each quantity, %1 to %2 (default: as the settings say).</source>
        <translation>各量を &lt;number&gt; サンプル測定します。%1 ～ %2 (既定値: 設定のとおり)。</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Measure, save a report, take a picture of each page and quit.</source>
        <translation>測定してレポートを保存し、各ページの画像を撮って終了します。</translation>
    </message>
    <message>
        <source>Wait until another application changes the user&apos;s name, the services end and return; take a picture of each and quit. Needs KIV_PLATFORM=bus.</source>
        <translation>別のアプリケーションがユーザー名を変更し、サービスが終了して戻るまで待ち、それぞれの画像を撮って終了します。KIV_PLATFORM=bus が必要です。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>予期しない引数 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>--samples needs a number from %1 to %2.</source>
        <translation>--samples には %1 ～ %2 の数値が必要です。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created, because %2 is a file. Name another folder with --root.</source>
        <translation>%2 がファイルであるため、フォルダー %1 を作成できません。--root で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created in %2. Check that you may write there, or name another folder with --root.</source>
        <translation>フォルダー %1 を %2 に作成できません。書き込み権限を確認するか、--root で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Everything is written below %1</source>
        <translation>すべて %1 の下に書き込まれます</translation>
    </message>
    <message>
        <source>The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>上記の理由でメインページを読み込めませんでした。QML モジュール QtQuick、QtQuick.Controls、QtQuick.Layouts、QtQuick.Window がインストールされているか確認してください。</translation>
    </message>
    <message>
        <source>Pictures:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>レポート:</translation>
    </message>
    <message>
        <source>Screenshots:</source>
        <translation>スクリーンショット:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>Texts were typed on the on-screen keyboard.</source>
        <translation>テキストは画面キーボードで入力されました。</translation>
    </message>
</context>
<context>
    <name>DeskDrawer</name>
    <message>
        <source>Desk</source>
        <translation>実験台</translation>
    </message>
    <message>
        <source>What happens to an instrument in the field, at the press of a button.</source>
        <translation>現場の測定器に起こることを、ボタンひとつで再現します。</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>USB メモリー</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>取り外す</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>接続する</translation>
    </message>
    <message>
        <source>Pull unnoticed</source>
        <translation>黙って抜く</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Make space</source>
        <translation>空きを作る</translation>
    </message>
    <message>
        <source>Fill the disk</source>
        <translation>ディスクを満杯にする</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>本体</translation>
    </message>
    <message>
        <source>Drain the battery</source>
        <translation>バッテリーを放電</translation>
    </message>
    <message>
        <source>Charge the battery</source>
        <translation>バッテリーを充電</translation>
    </message>
    <message>
        <source>Cut the link</source>
        <translation>リンクを切断</translation>
    </message>
    <message>
        <source>Restore the link</source>
        <translation>リンクを復旧</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>They live in another process.</source>
        <translation>別のプロセスで動いています。</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>戻す</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>消す</translation>
    </message>
    <message>
        <source>Inspector (F12)</source>
        <translation>インスペクター (F12)</translation>
    </message>
</context>
<context>
    <name>DigitsEntry</name>
    <message>
        <source>Only digits can be used here</source>
        <translation>数字だけを使用できます</translation>
    </message>
</context>
<context>
    <name>DurableFile</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>The path holds a NUL character</source>
        <translation>パスに NUL 文字が含まれています</translation>
    </message>
    <message>
        <source>Cannot create a file in the folder of %1: %2</source>
        <translation>%1 のフォルダーにファイルを作成できません: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>%1 を置き換えられません: %2</translation>
    </message>
    <message>
        <source>Cannot make sure that %1 survives a power cut: %2</source>
        <translation>%1 が停電後も残ることを保証できません: %2</translation>
    </message>
</context>
<context>
    <name>DurationEntry</name>
    <message>
        <source>Hours, minutes and seconds, such as 1:30:00</source>
        <translation>時、分、秒 (例: 1:30:00)</translation>
    </message>
    <message>
        <source>This is too long</source>
        <translation>長すぎます</translation>
    </message>
</context>
<context>
    <name>Entry</name>
    <message>
        <source>Not available</source>
        <translation>使用できません</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>入力が必要です</translation>
    </message>
</context>
<context>
    <name>FieldEntry</name>
    <message>
        <source>chars</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>This must be filled in</source>
        <translation>入力が必要です</translation>
    </message>
    <message>
        <source>This does not have the required form</source>
        <translation>形式が正しくありません</translation>
    </message>
    <message>
        <source>Changed meanwhile to %1</source>
        <translation>%1 に変更されました</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>別の値</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1 を隠す</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 を表示</translation>
    </message>
    <message>
        <source>Number pad for %1</source>
        <translation>%1 の数字キー</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>準備中</translation>
    </message>
</context>
<context>
    <name>FileDetailsPage</name>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Copy to USB</source>
        <translation>USB にコピー</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読む</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1、圧縮</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存日時</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>The list of reports that stay here cannot be used.</source>
        <translation>ここに残すレポートの一覧を使用できません。</translation>
    </message>
    <message>
        <source>The cloud may take it.</source>
        <translation>クラウドに送られます。</translation>
    </message>
    <message>
        <source>It stays on the unit.</source>
        <translation>本体に残ります。</translation>
    </message>
    <message>
        <source>Keep here</source>
        <translation>ここに残す</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
</context>
<context>
    <name>FileSystemUsage</name>
    <message>
        <source>Not Enough Space</source>
        <translation>空き容量不足</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>Directory</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>I/O Error</source>
        <translation>入出力エラー</translation>
    </message>
    <message>
        <source>Drive %1 is full</source>
        <translation>ドライブ %1 がいっぱいです</translation>
    </message>
    <message>
        <source>Read Error</source>
        <translation>読み取りエラー</translation>
    </message>
    <message>
        <source>There was an error reading %1</source>
        <translation>%1 の読み取り中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>書き込みエラー</translation>
    </message>
    <message>
        <source>There was an error writing to %1</source>
        <translation>%1 への書き込み中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Not enough disk space for %1 - would need %2</source>
        <translation>%1 のための空き容量がありません (必要: %2)</translation>
    </message>
    <message>
        <source>Not Enough Space</source>
        <translation>空き容量不足</translation>
    </message>
    <message>
        <source>Do you want to overwrite all files/directories?</source>
        <translation>すべてのファイル/フォルダーを上書きしますか?</translation>
    </message>
    <message>
        <source>Do you want to overwrite %1 %2?</source>
        <translation>%1 %2 を上書きしますか?</translation>
    </message>
    <message>
        <source>File Exists</source>
        <translation>既存のファイル</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Do you want to delete these %1 files?</source>
        <translation>これら %1 個のファイルを削除しますか?</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 %2?</source>
        <translation>%1 %2 を削除しますか?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 の削除</translation>
    </message>
    <message>
        <source>Report Exists</source>
        <translation>既存のレポート</translation>
    </message>
    <message>
        <source>Do you want to overwrite report %1?</source>
        <translation>レポート %1 を上書きしますか?</translation>
    </message>
    <message>
        <source>Do you want to overwrite screenshot %1?</source>
        <translation>スクリーンショット %1 を上書きしますか?</translation>
    </message>
    <message>
        <source>Internal:</source>
        <translation>内蔵:</translation>
    </message>
    <message>
        <source>USB:</source>
        <translation>USB:</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>control characters</source>
        <translation>制御文字</translation>
    </message>
    <message>
        <source>The name may have %1 characters, it has %2</source>
        <translation>名前は最大 %1 文字です (現在 %2 文字)</translation>
    </message>
    <message>
        <source>The name must not contain %1</source>
        <translation>名前に %1 は使用できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file name</source>
        <translation>&quot;%1&quot; はファイル名として使えません</translation>
    </message>
    <message>
        <source>The name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>The name must not begin with a space</source>
        <translation>名前の先頭に空白は使用できません</translation>
    </message>
    <message>
        <source>The name must not end with a space</source>
        <translation>名前の末尾に空白は使用できません</translation>
    </message>
    <message>
        <source>The name must not end with a point</source>
        <translation>名前の末尾に点は使用できません</translation>
    </message>
    <message>
        <source>Computers do not allow the name &quot;%1&quot;</source>
        <translation>コンピューターでは &quot;%1&quot; という名前を使用できません</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>スクリーンショット %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>レポート %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>本体</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Name or format</source>
        <translation>名前または形式</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>新しい順</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, 圧縮</translation>
    </message>
    <message>
        <source>No report is found</source>
        <translation>レポートが見つかりません</translation>
    </message>
    <message>
        <source>There is no USB drive</source>
        <translation>USB メモリーがありません</translation>
    </message>
    <message>
        <source>Nothing is saved yet</source>
        <translation>まだ何も保存されていません</translation>
    </message>
    <message>
        <source>There are no screenshots</source>
        <translation>スクリーンショットがありません</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>%1, %2 % of the drive in use</source>
        <translation>%1、ドライブ使用率 %2 %</translation>
    </message>
</context>
<context>
    <name>FontTexts</name>
    <message>
        <source>The font is broken</source>
        <translation>フォントが壊れています</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Choose a job.</source>
        <translation>ジョブを選んでください。</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選ぶ</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>見る</translation>
    </message>
    <message>
        <source>Measure. The set-up is ready.</source>
        <translation>測定してください。設定はできています。</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>測定</translation>
    </message>
    <message>
        <source>Save the report of this run.</source>
        <translation>この測定のレポートを保存してください。</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>The report is saved. Take the next job.</source>
        <translation>レポートを保存しました。次のジョブへ進んでください。</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>ジョブなし</translation>
    </message>
    <message>
        <source>No job is open. Results are saved without one.</source>
        <translation>開いているジョブがありません。結果はジョブなしで保存されます。</translation>
    </message>
    <message>
        <source>People</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次の作業</translation>
    </message>
    <message>
        <source>Results of %1 were not saved.</source>
        <translation>%1 の結果は保存されていません。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>測定設定</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>未適用</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>適用済み</translation>
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
        <source>%1 samples</source>
        <translation>%1 サンプル</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>Nothing to save</source>
        <translation>保存するものなし</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>All that is saved</source>
        <translation>保存したものすべて</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Of the unit</source>
        <translation>本体の設定</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>KIV_PLATFORM is &quot;%1&quot;. Set it to &quot;embedded&quot; or &quot;bus&quot;, or leave it out.</source>
        <translation>KIV_PLATFORM が &quot;%1&quot; です。&quot;embedded&quot; か &quot;bus&quot; に設定するか、指定しないでください。</translation>
    </message>
    <message>
        <source>No service could be loaded from %1. Name a folder with service files, with --services where the program has that option, or with KIV_SERVICES.</source>
        <translation>%1 からサービスを読み込めませんでした。サービスファイルのあるフォルダーを --services (対応するプログラムの場合) または KIV_SERVICES で指定してください。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>Reports have no icons: the folder %1 cannot be created. Check that you may write there.</source>
        <translation>レポートにアイコンがありません: フォルダー %1 を作成できません。書き込み権限を確認してください。</translation>
    </message>
    <message>
        <source>Reports have no icons: those of the library are not installed.</source>
        <translation>レポートにアイコンがありません: ライブラリのアイコンがインストールされていません。</translation>
    </message>
    <message>
        <source>An image of reports is missing. %1</source>
        <translation>レポートの画像がありません。%1</translation>
    </message>
    <message>
        <source>There is no service %1.</source>
        <translation>サービス %1 はありません。</translation>
    </message>
    <message>
        <source>There is no service on the bus yet. Start kivd; its services are shown when they come.</source>
        <translation>バス上にサービスがまだありません。kivd を起動してください。サービスは現れ次第表示されます。</translation>
    </message>
    <message>
        <source>Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may write there.</source>
        <translation>保存したレポートを表示できません: PDF ビューアーへのリンク %1 を作成できません。書き込み権限を確認してください。</translation>
    </message>
    <message>
        <source>KIV_SIMULATION is &quot;%1&quot;. Set it to &quot;on&quot; or &quot;off&quot;, or leave it out.</source>
        <translation>KIV_SIMULATION が &quot;%1&quot; です。&quot;on&quot; か &quot;off&quot; に設定するか、指定しないでください。</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Passing</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Failing</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>The service has come</source>
        <translation>サービスが現れました</translation>
    </message>
    <message>
        <source>The service has gone</source>
        <translation>サービスがなくなりました</translation>
    </message>
    <message>
        <source>The item has come</source>
        <translation>項目が現れました</translation>
    </message>
    <message>
        <source>The item has gone</source>
        <translation>項目がなくなりました</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>準備未完了</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>適用可能</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>適用外</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>準備状態</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Applicability</source>
        <translation>適用可否</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Rejected by hand</source>
        <translation>手動で拒否されました</translation>
    </message>
    <message>
        <source>The service does not live here.</source>
        <translation>このサービスはここでは動いていません。</translation>
    </message>
    <message>
        <source>The item cannot have this value.</source>
        <translation>この項目はこの値を持てません。</translation>
    </message>
    <message>
        <source>The item cannot have these limits.</source>
        <translation>この項目はこの範囲を持てません。</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>利用できません</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n 要素</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>%n メンバー</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 changes in %3 s</source>
        <translation>%1: %3 秒間に %2 件の変更</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
</context>
<context>
    <name>Instrument</name>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>測定設定</translation>
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
    <name>InstrumentBar</name>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>ジョブなし</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>USB メモリー</translation>
    </message>
    <message>
        <source>No USB drive</source>
        <translation>USB メモリーなし</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>%1 G</source>
        <translation>%1 G</translation>
    </message>
    <message>
        <source>%1 M</source>
        <translation>%1 M</translation>
    </message>
    <message>
        <source>Battery, charging</source>
        <translation>バッテリー、充電中</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
</context>
<context>
    <name>ItemDetails</name>
    <message>
        <source>No item chosen</source>
        <translation>項目が選ばれていません</translation>
    </message>
    <message>
        <source>Choose one in the list.</source>
        <translation>一覧から選んでください。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>ItemFace</name>
    <message>
        <source>The entry was rejected.</source>
        <translation>入力が拒否されました。</translation>
    </message>
</context>
<context>
    <name>ItemHands</name>
    <message>
        <source>By hand</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>What a service reports can be set by hand where the service lives in this process. This one lives in another.</source>
        <translation>サービスが報告する内容は、サービスがこのプロセスで動いている場合に手動で設定できます。このサービスは別のプロセスで動いています。</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>適用可能</translation>
    </message>
    <message>
        <source>The service decides by an expression.</source>
        <translation>サービスが式で決めます。</translation>
    </message>
    <message>
        <source>Value that the service reports</source>
        <translation>サービスが報告する値</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>最短</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>最長</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
</context>
<context>
    <name>ItemHistory</name>
    <message>
        <source>No values yet</source>
        <translation>まだ値がありません</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>%1 の履歴</translation>
    </message>
</context>
<context>
    <name>ItemStepper</name>
    <message>
        <source>Less: %1</source>
        <translation>減らす: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>増やす: %1</translation>
    </message>
</context>
<context>
    <name>ItemsPage</name>
    <message>
        <source>Search items</source>
        <translation>項目を検索</translation>
    </message>
    <message>
        <source>Favourites only</source>
        <translation>お気に入りのみ</translation>
    </message>
    <message>
        <source>%1 of %2 items</source>
        <translation>%2 項目中 %1</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Remove %1 from the favourites</source>
        <translation>%1 をお気に入りから外す</translation>
    </message>
    <message>
        <source>Add %1 to the favourites</source>
        <translation>%1 をお気に入りに追加</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>項目がありません</translation>
    </message>
    <message>
        <source>The items are shown when their services come.</source>
        <translation>サービスが現れると項目が表示されます。</translation>
    </message>
    <message>
        <source>No item matches the search.</source>
        <translation>検索に一致する項目がありません。</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Planned</source>
        <translation>予定</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>作業中</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Apply or revert the set-up first: it would be applied with the job.</source>
        <translation>先に測定設定を適用するか元に戻してください。ジョブと一緒に適用されてしまいます。</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>ジョブ</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>ジョブ %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>People</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Job, customer or circuit</source>
        <translation>ジョブ、顧客、回線</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>未完了</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>No job is found</source>
        <translation>ジョブが見つかりません</translation>
    </message>
    <message>
        <source>There are no jobs</source>
        <translation>ジョブがありません</translation>
    </message>
    <message>
        <source>Other words, or all jobs, may find one.</source>
        <translation>別の語、またはすべてのジョブで見つかるかもしれません。</translation>
    </message>
    <message>
        <source>The services of jobs and of the unit are not published.</source>
        <translation>ジョブと本体のサービスが公開されていません。</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>KivAggregateData</name>
    <message>
        <source>%1 has no member %2.</source>
        <translation>%1 に要素 %2 はありません。</translation>
    </message>
</context>
<context>
    <name>KivData</name>
    <message>
        <source>%1 max chars</source>
        <translation>最大 %1 文字</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 文字</translation>
    </message>
    <message>
        <source>%1 - %2 chars</source>
        <translation>%1 ～ %2 文字</translation>
    </message>
    <message>
        <source>%1 max digits</source>
        <translation>最大 %1 桁</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 桁</translation>
    </message>
    <message>
        <source>%1 - %2 digits</source>
        <translation>%1 ～ %2 桁</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>%1 のみ</translation>
    </message>
    <message>
        <source>Please enter IP address</source>
        <translation>IP アドレスを入力してください</translation>
    </message>
    <message>
        <source>Please enter IPv6 address</source>
        <translation>IPv6 アドレスを入力してください</translation>
    </message>
    <message>
        <source>Please enter URL</source>
        <translation>URL を入力してください</translation>
    </message>
    <message>
        <source>Please enter DNS name</source>
        <translation>DNS 名を入力してください</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>No native speaker has checked this translation.</source>
        <translation>この翻訳は、母語話者による確認を受けていません。</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in that language.</extracomment>
        <translation>日本語</translation>
    </message>
</context>
<context>
    <name>ListEntry</name>
    <message>
        <source>New element of %1</source>
        <translation>%1 の新しい要素</translation>
    </message>
    <message>
        <source>Element %1 of %2</source>
        <translation>%2 の要素 %1</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>chars</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Remove element %1 of %2</source>
        <translation>%2 の要素 %1 を削除</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>%1 に追加</translation>
    </message>
</context>
<context>
    <name>LivePlot</name>
    <message>
        <source>%1: no data</source>
        <translation>%1: データなし</translation>
    </message>
    <message>
        <source>%1: %2 to %3, from %4 to %5</source>
        <translation>%1: %2 ～ %3、%4 から %5 まで</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>境界</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>At the cursor: %1.</source>
        <translation>カーソル位置: %1。</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Go on</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>No changes yet</source>
        <translation>まだ変更がありません</translation>
    </message>
    <message>
        <source>What services report is shown as it comes.</source>
        <translation>サービスの報告はすぐに表示されます。</translation>
    </message>
    <message>
        <source>Changes: %L1</source>
        <translation>変更: %L1</translation>
    </message>
    <message>
        <source>fallen out: %L1</source>
        <translation>破棄: %L1</translation>
    </message>
    <message>
        <source>missed while paused: %L1</source>
        <translation>停止中の変更: %L1</translation>
    </message>
    <message>
        <source>Save as recording</source>
        <translation>記録として保存</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>TCP loopback test</source>
        <translation>TCP ループバック試験</translation>
    </message>
    <message>
        <source>The file is damaged. What could be read of it is shown; something may be missing.</source>
        <translation>ファイルが壊れています。読み取れた部分を表示します。欠けている部分があるかもしれません。</translation>
    </message>
    <message>
        <source>Opening the file …</source>
        <translation>ファイルを開いています …</translation>
    </message>
</context>
<context>
    <name>MomentEntry</name>
    <message>
        <source>Not before %1</source>
        <translation>%1 以降にしてください</translation>
    </message>
    <message>
        <source>Not after %1</source>
        <translation>%1 以前にしてください</translation>
    </message>
    <message>
        <source>This is not a date, such as %1</source>
        <translation>日付ではありません (例: %1)</translation>
    </message>
    <message>
        <source>This is not a time, such as %1</source>
        <translation>時刻ではありません (例: %1)</translation>
    </message>
    <message>
        <source>This is not a date and time, such as %1</source>
        <translation>日時ではありません (例: %1)</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>選択: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>例: %1</translation>
    </message>
</context>
<context>
    <name>MomentPicker</name>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
</context>
<context>
    <name>NotificationDialog</name>
    <message>
        <source>%1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NotificationMark</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>質問</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
</context>
<context>
    <name>NotificationTray</name>
    <message>
        <source>Notifications (%1)</source>
        <translation>通知 (%1)</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>すべて消去</translation>
    </message>
    <message>
        <source>Dismiss %1</source>
        <translation>%1 を消去</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>通知はありません</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
</context>
<context>
    <name>NumberEntry</name>
    <message>
        <source>Use &quot;%1&quot; as the decimal separator</source>
        <translation>小数点には &quot;%1&quot; を使用してください</translation>
    </message>
    <message>
        <source>This is not a number</source>
        <translation>数値ではありません</translation>
    </message>
    <message>
        <source>A whole number is required</source>
        <translation>整数を入力してください</translation>
    </message>
    <message>
        <source>Decimals: at most %1</source>
        <translation>小数点以下は %1 桁まで</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>符号を切り替え</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>e, exponent of ten</source>
        <translation>e、10 の指数</translation>
    </message>
</context>
<context>
    <name>Overlays</name>
    <message>
        <source>Desk</source>
        <translation>実験台</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 がインストールされていません</translation>
    </message>
</context>
<context>
    <name>PDFFile</name>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>The path contains a NUL character</source>
        <translation>パスに NUL 文字が含まれています</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>It has more than 64 MiB</source>
        <translation>64 MiB を超えています</translation>
    </message>
    <message>
        <source>Reading the file takes too long</source>
        <translation>ファイルの読み取りに時間がかかりすぎます</translation>
    </message>
    <message>
        <source>The file cannot be tried first: %1</source>
        <translation>ファイルを事前に検査できません: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>The file is not safe to read</source>
        <translation>ファイルを安全に読み取れません</translation>
    </message>
    <message>
        <source>%1 gives no answer</source>
        <translation>%1 が応答しません</translation>
    </message>
    <message>
        <source>The file is encrypted, and writing it would damage it</source>
        <translation>ファイルは暗号化されており、書き込むと壊れます</translation>
    </message>
    <message>
        <source>The file does not begin like a PDF file</source>
        <translation>ファイルの先頭が PDF ではありません</translation>
    </message>
    <message>
        <source>The PDF file has no end</source>
        <translation>PDF ファイルの終わりがありません</translation>
    </message>
    <message>
        <source>The PDF file has no table of its objects</source>
        <translation>PDF ファイルにオブジェクトの表がありません</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>Paths</name>
    <message>
        <source>UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the instrument&apos;s files are read or written. Name another folder.</source>
        <translation>UIUTILS_ROOT が示すフォルダーは、ファイル名の文字コードで書かれていません (%1)。測定器のファイルは読み書きされません。別のフォルダーを指定してください。</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>上記の理由で画面を読み込めませんでした。QML モジュール QtQuick、QtQuick.Controls、QtQuick.Layouts、QtQuick.Window がインストールされているか確認してください。</translation>
    </message>
    <message>
        <source>There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws on this screen, such as eglfs or linuxfb.</source>
        <translation>%1 を表示する画面がありません。DISPLAY または WAYLAND_DISPLAY を設定するか、QT_QPA_PLATFORM にこの画面の描画方式 (eglfs、linuxfb など) を設定してください。</translation>
    </message>
    <message>
        <source>Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.

Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.</source>
        <translation>PDF ファイル (圧縮された .pdf.gz も可) をタッチ画面またはウィンドウに表示します。

終了コード: 0 正常、1 ファイルを表示できなかった、2 コマンドラインの誤り。</translation>
    </message>
    <message>
        <source>The PDF file to show.</source>
        <translation>表示する PDF ファイル。</translation>
    </message>
    <message>
        <source>The screen has &lt;number&gt; dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural size there.</source>
        <translation>画面の密度 &lt;number&gt; dpi、1 ～ %1 (既定値: %2)。100 % でページが実寸になります。</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Fill the screen, without a frame. Under a window system that arranges windows itself, the window is one among others.</source>
        <translation>枠なしで画面全体に表示します。ウィンドウを自動配置するシステムでは、他と同じウィンドウになります。</translation>
    </message>
    <message>
        <source>Call the window &lt;title&gt; (default: the file&apos;s name).</source>
        <translation>ウィンドウの名前を &lt;title&gt; にします (既定値: ファイル名)。</translation>
    </message>
    <message>
        <source>title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Use the input plug-in &lt;name:device&gt;; may be given more than once. Has no effect if a window system provides the input or the device does not exist.</source>
        <translation>入力プラグイン &lt;name:device&gt; を使用します。複数回指定できます。ウィンドウシステムが入力を提供する場合や、デバイスがない場合は無効です。</translation>
    </message>
    <message>
        <source>name:device</source>
        <translation>name:device</translation>
    </message>
    <message>
        <source>Name one PDF file to show.</source>
        <translation>表示する PDF ファイルを 1 つ指定してください。</translation>
    </message>
    <message>
        <source>--dpy needs a number from 1 to %1.</source>
        <translation>--dpy には 1 ～ %1 の数値が必要です。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>ファイルを読み取れません。</translation>
    </message>
    <message>
        <source>The file holds more than %1 MiB, which is more than this unit can show.</source>
        <translation>ファイルが %1 MiB を超えているため、この測定器では表示できません。</translation>
    </message>
    <message>
        <source>This is not a PDF file.</source>
        <translation>PDF ファイルではありません。</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>ファイルが壊れているか、不完全です。</translation>
    </message>
    <message>
        <source>The file is encrypted and can only be opened with a password.</source>
        <translation>ファイルは暗号化されており、パスワードがないと開けません。</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>ファイルにページがありません。</translation>
    </message>
    <message>
        <source>The file has more than %1 pages, which is more than this unit can show.</source>
        <translation>ファイルが %1 ページを超えているため、この測定器では表示できません。</translation>
    </message>
    <message>
        <source>It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or save the report again.</source>
        <translation>削除または移動されたか、USB メモリーが取り外された可能性があります。別のファイルを選ぶか、レポートをもう一度保存してください。</translation>
    </message>
    <message>
        <source>Check that the drive is in place and that you may read the file.</source>
        <translation>ドライブが接続されているか、読み取り権限があるか確認してください。</translation>
    </message>
    <message>
        <source>Copy it to a computer and open it there.</source>
        <translation>コンピューターにコピーして開いてください。</translation>
    </message>
    <message>
        <source>Choose a file that was saved as PDF.</source>
        <translation>PDF として保存されたファイルを選んでください。</translation>
    </message>
    <message>
        <source>Save the report again, or copy the file again from where it came.</source>
        <translation>レポートをもう一度保存するか、元の場所からファイルをコピーし直してください。</translation>
    </message>
    <message>
        <source>Open it on a computer, or ask whoever made it for a file without a password.</source>
        <translation>コンピューターで開くか、作成者にパスワードなしのファイルを依頼してください。</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;.</source>
        <translation>言語「%1」はありません。</translation>
    </message>
    <message>
        <source>Speak the language of that code, such as &quot;de&quot; (default: that of the environment).</source>
        <translation>このコードの言語を使います。例: &quot;de&quot; (既定: 環境の言語)。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
</context>
<context>
    <name>PendingChangeRow</name>
    <message>
        <source>Changed meanwhile</source>
        <translation>その間に変更されました</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>現在: %1</translation>
    </message>
    <message>
        <source>You have set: %1</source>
        <translation>設定した値: %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Set again</source>
        <translation>再設定</translation>
    </message>
</context>
<context>
    <name>PendingChangesView</name>
    <message>
        <source>Nothing waits</source>
        <translation>保留中の変更はありません</translation>
    </message>
    <message>
        <source>Settings that you change are listed here until they are applied.</source>
        <translation>変更した設定は、適用されるまでここに表示されます。</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>保留中の変更</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>People</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Technician</source>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>Known customers</source>
        <translation>登録済みの顧客</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Name, address or circuit</source>
        <translation>名前、住所、回線</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>ジョブ %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>PlotImage</name>
    <message>
        <source>at least %1 %2</source>
        <translation>%1 %2 以上</translation>
    </message>
    <message>
        <source>at most %1 %2</source>
        <translation>%1 %2 以下</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>データなし</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>限度値を超過</translation>
    </message>
    <message>
        <source>beyond a warning level</source>
        <translation>警告レベルを超過</translation>
    </message>
</context>
<context>
    <name>PlovJsonDocument</name>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1: 通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: 開けません: %2</translation>
    </message>
    <message>
        <source>%1: larger than the %2 MiB that a document may have</source>
        <translation>%1: ドキュメントの上限 %2 MiB を超えています</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: 読み取れません: %2</translation>
    </message>
    <message>
        <source>%1: holds more than the %2 objects and lists that a document may have</source>
        <translation>%1: ドキュメントの上限 %2 個を超えるオブジェクトとリストが含まれています</translation>
    </message>
    <message>
        <source>%1:1:1: the root of the document is not an object</source>
        <translation>%1:1:1: ドキュメントのルートがオブジェクトではありません</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <source>The pages are being made</source>
        <translation>ページを作成しています</translation>
    </message>
    <message>
        <source>There are no pages</source>
        <translation>ページがありません</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>PreviewPages</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>%1 ページ</translation>
    </message>
</context>
<context>
    <name>QuantityCard</name>
    <message>
        <source>%1, median: %2</source>
        <translation>%1、中央値: %2</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>サンプルがまだありません</translation>
    </message>
    <message>
        <source>%1 to %2, jitter %3</source>
        <translation>%1 ～ %2、ジッター %3</translation>
    </message>
</context>
<context>
    <name>RadixEntry</name>
    <message>
        <source>Only the digits %1 can be used here</source>
        <translation>%1 だけを使用できます</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 はファイルではありません。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>%1 has no service that can be replayed.</source>
        <translation>%1 には再生できるサービスがありません。</translation>
    </message>
    <message>
        <source>broken lines: %1</source>
        <translation>壊れた行: %1</translation>
    </message>
    <message>
        <source>lines whose time goes backwards: %1</source>
        <translation>時刻が逆行する行: %1</translation>
    </message>
    <message>
        <source>lines about items or services that are not there: %1</source>
        <translation>存在しない項目またはサービスの行: %1</translation>
    </message>
    <message>
        <source>lines that do not fit their item: %1</source>
        <translation>項目に合わない行: %1</translation>
    </message>
    <message>
        <source>lines beyond the limits: %1</source>
        <translation>上限を超える行: %1</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>途中で終わっています</translation>
    </message>
    <message>
        <source>The recording is not sound and was played as far as it can be: %1.</source>
        <translation>記録に問題があるため、可能な範囲で再生しました: %1。</translation>
    </message>
    <message>
        <source>%1 exists. Name another file, or remove that one.</source>
        <translation>%1 は既に存在します。別のファイルを指定するか、そのファイルを削除してください。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>%1 is written too slowly. The recording ends here.</source>
        <translation>%1 への書き込みが遅すぎます。記録はここで終了します。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The recording ends here.</source>
        <translation>%1 に書き込めません: %2。記録はここで終了します。</translation>
    </message>
    <message>
        <source>%1 is not a recording of services.</source>
        <translation>%1 はサービスの記録ではありません。</translation>
    </message>
    <message>
        <source>%1 was recorded by a newer program, which writes another form. Use that one.</source>
        <translation>%1 は、別の形式で書き込む新しいプログラムで記録されました。そのプログラムを使用してください。</translation>
    </message>
    <message>
        <source>This is a recording: nothing can be started or stopped in it.</source>
        <translation>これは記録です。開始や停止はできません。</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>ID: </source>
        <translation>ID: </translation>
    </message>
    <message>
        <source>Tech: </source>
        <translation>担当: </translation>
    </message>
    <message>
        <source>BAN: </source>
        <translation>BAN: </translation>
    </message>
    <message>
        <source>The schema %1 cannot be used: %2</source>
        <translation>スキーマ %1 を使用できません: %2</translation>
    </message>
    <message>
        <source>The report does not match the job schema: %1</source>
        <translation>レポートがジョブのスキーマに合いません: %1</translation>
    </message>
    <message>
        <source>There is no active job</source>
        <translation>作業中のジョブがありません</translation>
    </message>
    <message>
        <source>The job has rejected the report: %1</source>
        <translation>ジョブがレポートを拒否しました: %1</translation>
    </message>
    <message>
        <source>The list of reports that are not synced was not changed.</source>
        <translation>同期しないレポートの一覧は変更されませんでした。</translation>
    </message>
    <message>
        <source>The data of the job is not complete: it has no ID</source>
        <translation>ジョブのデータが不完全です: ID がありません</translation>
    </message>
    <message>
        <source>Job Manager</source>
        <translation>ジョブマネージャー</translation>
    </message>
    <message>
        <source>View Report</source>
        <translation>レポートの表示</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Sync with Meridex</source>
        <translation>Meridex と同期</translation>
    </message>
    <message>
        <source>Report Copied</source>
        <translation>レポートをコピーしました</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>the USB drive is not there</source>
        <translation>USB メモリーがありません</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>it has more than 1 MiB</source>
        <translation>1 MiB を超えています</translation>
    </message>
    <message>
        <source>it would have more than 1 MiB</source>
        <translation>1 MiB を超えてしまいます</translation>
    </message>
    <message>
        <source>Cannot lock %1: %2</source>
        <translation>%1 をロックできません: %2</translation>
    </message>
    <message>
        <source>%1 contains a line feed</source>
        <translation>%1 に改行が含まれています</translation>
    </message>
    <message>
        <source>Cannot compress %1: %2</source>
        <translation>%1 を圧縮できません: %2</translation>
    </message>
    <message>
        <source>gzip is missing or has failed</source>
        <translation>gzip がないか、失敗しました</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>%1 is still on the list of reports that are not synced.</source>
        <translation>%1 は同期しないレポートの一覧に残っています。</translation>
    </message>
    <message>
        <source>The cloud may take %1, although it is not to be synced.</source>
        <translation>%1 は同期対象ではありませんが、クラウドに取り込まれる可能性があります。</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>レポートを保存しました</translation>
    </message>
    <message>
        <source>Report %1 saved
Folder: %2</source>
        <translation>レポート %1 を保存しました
フォルダー: %2</translation>
    </message>
    <message>
        <source>No format is chosen to save the report in.</source>
        <translation>レポートの保存形式が選択されていません。</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot; to save the report in.</source>
        <translation>&quot;%1&quot; というレポートの保存形式はありません。</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>書き込みエラー</translation>
    </message>
    <message>
        <source>There is not enough space to save the report.</source>
        <translation>レポートを保存するための空き容量がありません。</translation>
    </message>
    <message>
        <source>The results are too large to be kept before they are saved</source>
        <translation>結果が大きすぎるため、保存前に保持できません</translation>
    </message>
    <message>
        <source>There is not enough space to keep the results until they are saved</source>
        <translation>保存するまで結果を保持するための空き容量がありません</translation>
    </message>
    <message>
        <source>The results cannot be kept until they are saved: the disk does not take them</source>
        <translation>保存するまで結果を保持できません: ディスクに書き込めません</translation>
    </message>
    <message>
        <source>%1 files would be overwritten:</source>
        <translation>%1 個のファイルが上書きされます:</translation>
    </message>
    <message>
        <source>The name does not have the required form</source>
        <translation>名前の形式が正しくありません</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>NUL 文字</translation>
    </message>
</context>
<context>
    <name>ReportBuilder</name>
    <message>
        <source>Loopback TCP</source>
        <translation>ループバック TCP</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>%1, median</source>
        <translation>%1、中央値</translation>
    </message>
    <message>
        <source>%1, minimum</source>
        <translation>%1、最小</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>%1、最大</translation>
    </message>
    <message>
        <source>%1, jitter</source>
        <translation>%1、ジッター</translation>
    </message>
    <message>
        <source>%1, limit</source>
        <translation>%1、限度値</translation>
    </message>
    <message>
        <source>%1 of each sample</source>
        <translation>サンプルごとの%1</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>サンプル %1</translation>
    </message>
</context>
<context>
    <name>ReportPDF</name>
    <message>
        <source>there is not enough memory for its pages</source>
        <translation>ページのためのメモリーが足りません</translation>
    </message>
    <message>
        <source>Unit ID: %1</source>
        <translation>ユニット ID: %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>図</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>Cannot print %1: %2</source>
        <translation>%1 を印刷できません: %2</translation>
    </message>
    <message>
        <source>another file is being printed</source>
        <translation>別のファイルを印刷中です</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>プログラムが QGuiApplication ではないため、フォントがありません</translation>
    </message>
    <message>
        <source>Solvant Report</source>
        <translation>Solvant レポート</translation>
    </message>
    <message>
        <source>%1 - Continued</source>
        <translation>%1 (続き)</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>ロゴ</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>%1 に保存しました</translation>
    </message>
    <message>
        <source>Will be saved in %1</source>
        <translation>%1 に保存します</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>There is no USB drive: files stay on the unit.</source>
        <translation>USB メモリーがないため、ファイルは本体に残ります。</translation>
    </message>
    <message>
        <source>On the report</source>
        <translation>レポートの内容</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>ジョブなし</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>Median %1, limit %2</source>
        <translation>中央値 %1、%2</translation>
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
        <source>Sample %1</source>
        <translation>サンプル %1</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>サンプルがまだありません</translation>
    </message>
    <message>
        <source>Nothing failed</source>
        <translation>不合格はありません</translation>
    </message>
    <message>
        <source>All samples meet the limit.</source>
        <translation>すべてのサンプルが限度値を満たしています。</translation>
    </message>
    <message>
        <source>Go to Run</source>
        <translation>測定へ</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>測定順</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>小さい順</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>大きい順</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>All of it is applied together, or nothing.</source>
        <translation>すべてをまとめて適用します。一部だけの適用はありません。</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>すべて元に戻す</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>Run</source>
        <translation>測定</translation>
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
        <source>%1, server at %2</source>
        <translation>%1、サーバー: %2</translation>
    </message>
</context>
<context>
    <name>SaveProgress</name>
    <message>
        <source>Cancelling the save</source>
        <translation>保存をキャンセルしています</translation>
    </message>
    <message>
        <source>Saving the report</source>
        <translation>レポートを保存しています</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SchemaValidator</name>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>%1 is not a file in the folder of the schema</source>
        <translation>%1 はスキーマのフォルダーにあるファイルではありません</translation>
    </message>
    <message>
        <source>document type declarations are not accepted</source>
        <translation>文書型宣言は使用できません</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 を読み取れません</translation>
    </message>
    <message>
        <source>%1 is not an XML schema</source>
        <translation>%1 は XML スキーマではありません</translation>
    </message>
    <message>
        <source>there is no schema to check against</source>
        <translation>検証に使うスキーマがありません</translation>
    </message>
    <message>
        <source>the text cannot be read as XML</source>
        <translation>テキストを XML として読み取れません</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
</context>
<context>
    <name>ServiceBanner</name>
    <message>
        <source>&quot;%1&quot; does not answer. What is shown may be old; the page goes on by itself when the service is back.</source>
        <translation>&quot;%1&quot; が応答しません。表示が古い可能性があります。サービスが戻ると自動で再開します。</translation>
    </message>
</context>
<context>
    <name>ServiceBus</name>
    <message>
        <source>The service %1 is run by another user and is not used.</source>
        <translation>サービス %1 は別のユーザーが実行しているため、使用しません。</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>サービス %1 に接続できません。起動してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>There is no object %1.</source>
        <translation>オブジェクト %1 はありません。</translation>
    </message>
    <message>
        <source>The name of the service %1 is too long for a bus.</source>
        <translation>サービス名 %1 はバスには長すぎます。</translation>
    </message>
    <message>
        <source>A service %1 is published already.</source>
        <translation>サービス %1 は既に公開されています。</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>接続が閉じられました</translation>
    </message>
    <message>
        <source>it does not take the connection</source>
        <translation>接続を受け付けません</translation>
    </message>
    <message>
        <source>The system bus cannot be reached: %1.</source>
        <translation>システムバスに接続できません: %1。</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1.</source>
        <translation>セッションバスに接続できません: %1。</translation>
    </message>
    <message>
        <source>The service %1 does not say which version of the interface it has: %2</source>
        <translation>サービス %1 がインターフェースのバージョンを示していません: %2</translation>
    </message>
    <message>
        <source>The service %1 has version %2 of the interface, and this program knows version %3. Use programs of one release.</source>
        <translation>サービス %1 のインターフェースはバージョン %2、このプログラムはバージョン %3 です。同じリリースのプログラムを使用してください。</translation>
    </message>
    <message>
        <source>The service %1 takes no more clients: %2</source>
        <translation>サービス %1 はこれ以上クライアントを受け付けません: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: %2</source>
        <translation>サービス %1 の項目を読み取れません: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: they are not what the interface says.</source>
        <translation>サービス %1 の項目を読み取れません: インターフェースの定義に合いません。</translation>
    </message>
    <message>
        <source>%1 cannot be set: the value is too large, or a text of it holds a NUL.</source>
        <translation>%1 を設定できません: 値が大きすぎるか、テキストに NUL が含まれています。</translation>
    </message>
    <message>
        <source>%1 was not sent: its argument is too large, or holds a NUL.</source>
        <translation>%1 を送信しませんでした: 引数が大きすぎるか、NUL が含まれています。</translation>
    </message>
    <message>
        <source>The service %1 has not answered an earlier request yet. Try again when it does.</source>
        <translation>サービス %1 は前の要求にまだ応答していません。応答後にもう一度お試しください。</translation>
    </message>
    <message>
        <source>The service %1 ended before it answered. Try again when it runs.</source>
        <translation>サービス %1 は応答する前に終了しました。起動してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>サービス %1 は %2 ms 以内に応答しませんでした。要求は後で実行される可能性があります。</translation>
    </message>
    <message>
        <source>There are no properties of %1.</source>
        <translation>%1 にプロパティはありません。</translation>
    </message>
    <message>
        <source>There is no property %1.</source>
        <translation>プロパティ %1 はありません。</translation>
    </message>
    <message>
        <source>The properties of a service are read-only.</source>
        <translation>サービスのプロパティは読み取り専用です。</translation>
    </message>
    <message>
        <source>There is no method %1.%2.</source>
        <translation>メソッド %1.%2 はありません。</translation>
    </message>
    <message>
        <source>%1 takes arguments of the signature &quot;%2&quot;, not &quot;%3&quot;.</source>
        <translation>%1 の引数のシグネチャは &quot;%3&quot; ではなく &quot;%2&quot; です。</translation>
    </message>
    <message>
        <source>The items of the service are too large for a message.</source>
        <translation>サービスの項目がメッセージには大きすぎます。</translation>
    </message>
    <message>
        <source>The service has as many clients as it can serve.</source>
        <translation>サービスのクライアント数が上限に達しています。</translation>
    </message>
    <message>
        <source>The value cannot be read.</source>
        <translation>値を読み取れません。</translation>
    </message>
    <message>
        <source>The service has too much to do. Try again later.</source>
        <translation>サービスが混み合っています。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The service %1 was withdrawn before it could answer.</source>
        <translation>サービス %1 は応答する前に取り下げられました。</translation>
    </message>
    <message>
        <source>The service %1 answered something that the interface does not know.</source>
        <translation>サービス %1 が、インターフェイスにない応答を返しました。</translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>接続できません</translation>
    </message>
    <message>
        <source>answers slowly</source>
        <translation>応答が遅い</translation>
    </message>
    <message>
        <source>rejects every change</source>
        <translation>すべての変更を拒否</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>受け入れ</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>復帰</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>消失</translation>
    </message>
    <message>
        <source>The service lives in another process. It can be watched and edited, not disturbed.</source>
        <translation>このサービスは別のプロセスで動いています。監視と編集はできますが、妨害はできません。</translation>
    </message>
    <message>
        <source>A transaction runs</source>
        <translation>トランザクション実行中</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>未送信</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>現在: %1</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>まだ何も変更されていません。</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>保留中の変更</translation>
    </message>
</context>
<context>
    <name>ServiceFile</name>
    <message>
        <source>the id %1 stands twice</source>
        <translation>ID %1 が重複しています</translation>
    </message>
    <message>
        <source>the id %1 lacks its category or the colon at its end, or has more than %2 characters</source>
        <translation>ID %1 に種別または末尾のコロンがないか、%2 文字を超えています</translation>
    </message>
    <message>
        <source>the type %1 of %2 is unknown</source>
        <translation>%2 の型 %1 は不明です</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an array</source>
        <translation>型 %1 と ID %2 で、配列かどうかが一致しません</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an action</source>
        <translation>型 %1 と ID %2 で、アクションかどうかが一致しません</translation>
    </message>
    <message>
        <source>an aggregate or table without members</source>
        <translation>要素のない集合または表</translation>
    </message>
    <message>
        <source>the type %1 has no members</source>
        <translation>型 %1 に要素はありません</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is empty or appears twice</source>
        <translation>名前 &quot;%1&quot; が空か、重複しています</translation>
    </message>
    <message>
        <source>a member cannot have the type %1</source>
        <translation>要素の型を %1 にはできません</translation>
    </message>
    <message>
        <source>the type %1 has no choices</source>
        <translation>型 %1 に選択肢はありません</translation>
    </message>
    <message>
        <source>only an action can have &quot;does&quot;, not the type %1</source>
        <translation>&quot;does&quot; を持てるのはアクションだけで、型 %1 は持てません</translation>
    </message>
    <message>
        <source>a negative delay</source>
        <translation>遅延が負の値です</translation>
    </message>
    <message>
        <source>only a text that is a result can be clearable</source>
        <translation>消去可能にできるのは結果のテキストだけです</translation>
    </message>
    <message>
        <source>a precision outside 0 to %1</source>
        <translation>精度が 0 ～ %1 の範囲外です</translation>
    </message>
    <message>
        <source>/does/set: there is no item %1</source>
        <translation>/does/set: 項目 %1 はありません</translation>
    </message>
    <message>
        <source>/does/set: the value of %1: %2</source>
        <translation>/does/set: %1 の値: %2</translation>
    </message>
    <message>
        <source>a mount point begins with a slash</source>
        <translation>マウントポイントはスラッシュで始まります</translation>
    </message>
    <message>
        <source>/service: a name has 1 to %1 characters</source>
        <translation>/service: 名前は 1 ～ %1 文字です</translation>
    </message>
    <message>
        <source>the id %1 appears twice</source>
        <translation>ID %1 が重複しています</translation>
    </message>
    <message>
        <source>the value %1 appears twice or is negative</source>
        <translation>値 %1 が重複しているか、負の値です</translation>
    </message>
    <message>
        <source>a value of this type has no limits</source>
        <translation>この型の値に限度はありません</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>数値ではありません</translation>
    </message>
    <message>
        <source>the minimum is above the maximum</source>
        <translation>最小値が最大値を超えています</translation>
    </message>
    <message>
        <source>%1: not a folder of service files, or not readable</source>
        <translation>%1: サービスファイルのフォルダーではないか、読み取れません</translation>
    </message>
    <message>
        <source>the program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>/service: &quot;%1&quot; is published already by %2</source>
        <translation>/service: &quot;%1&quot; は %2 が既に公開しています</translation>
    </message>
    <message>
        <source>the service %1 has an item %2 already</source>
        <translation>サービス %1 には項目 %2 が既にあります</translation>
    </message>
    <message>
        <source>not of the type %1</source>
        <translation>型 %1 ではありません</translation>
    </message>
    <message>
        <source>a service file may not say this here; uiutils-check tells what it may</source>
        <translation>サービスファイルのこの場所には書けない内容です。書ける内容は uiutils-check で確認できます</translation>
    </message>
</context>
<context>
    <name>ServiceItem</name>
    <message>
        <source>Account ID</source>
        <translation>アカウント ID</translation>
    </message>
    <message>
        <source>Active Work Order</source>
        <translation>作業中の作業指示</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>住所</translation>
    </message>
    <message>
        <source>Attach Report</source>
        <translation>レポートを添付</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Backscatter</source>
        <translation>後方散乱</translation>
    </message>
    <message>
        <source>Base Unit</source>
        <translation>本体</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>ケーブル</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>校正値</translation>
    </message>
    <message>
        <source>Circuit ID</source>
        <translation>回線 ID</translation>
    </message>
    <message>
        <source>Collector</source>
        <translation>コレクター</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>構成要素</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Customer Fields in Reports</source>
        <translation>レポートの顧客欄</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>顧客名</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>測定時間</translation>
    </message>
    <message>
        <source>Ethernet Module</source>
        <translation>Ethernet モジュール</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>Internal and USB</source>
        <translation>内蔵と USB</translation>
    </message>
    <message>
        <source>Job Active</source>
        <translation>作業中のジョブ</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>ジョブの BAN</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ジョブ ID</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>ジョブの担当者</translation>
    </message>
    <message>
        <source>Keep Report Name</source>
        <translation>レポート名を保持</translation>
    </message>
    <message>
        <source>Laser Power</source>
        <translation>レーザー出力</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>Link Loss</source>
        <translation>リンク損失</translation>
    </message>
    <message>
        <source>Manifest</source>
        <translation>マニフェスト</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Maximum Round-Trip Time</source>
        <translation>最大往復時間</translation>
    </message>
    <message>
        <source>Message Size</source>
        <translation>メッセージサイズ</translation>
    </message>
    <message>
        <source>Minimum Throughput</source>
        <translation>最小スループット</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>オフセット</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話番号</translation>
    </message>
    <message>
        <source>Proposed Report Name</source>
        <translation>レポート名の候補</translation>
    </message>
    <message>
        <source>Pulse Width</source>
        <translation>パルス幅</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>距離範囲</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>リアルタイム</translation>
    </message>
    <message>
        <source>Reports Not Synced</source>
        <translation>同期しないレポート</translation>
    </message>
    <message>
        <source>Return Loss</source>
        <translation>反射減衰量</translation>
    </message>
    <message>
        <source>Round-Trip Samples</source>
        <translation>往復時間のサンプル数</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>往復時間</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>Save Location</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Splitter Stages</source>
        <translation>スプリッターの段数</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Store Traces</source>
        <translation>波形を保存</translation>
    </message>
    <message>
        <source>Tech ID</source>
        <translation>担当者 ID</translation>
    </message>
    <message>
        <source>Technician Fields in Reports</source>
        <translation>レポートの担当者欄</translation>
    </message>
    <message>
        <source>Test Label</source>
        <translation>試験ラベル</translation>
    </message>
    <message>
        <source>Test Type</source>
        <translation>試験の種類</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>スループット</translation>
    </message>
    <message>
        <source>Throughput Samples</source>
        <translation>スループットのサンプル数</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>USB Attached</source>
        <translation>USB 接続</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>波長</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>ワークフロー</translation>
    </message>
    <message>
        <source>Worst Event</source>
        <translation>最悪のイベント</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <source>Close Job</source>
        <translation>ジョブを閉じる</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Link Speed</source>
        <translation>リンク速度</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>ジョブを開く</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音</translation>
    </message>
    <message>
        <source>Sunlight</source>
        <translation>屋外</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Received Power</source>
        <translation>受信パワー</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Mbit/s</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>The calibration can only be set at the factory.</source>
        <translation>校正は工場でのみ設定できます。</translation>
    </message>
    <message>
        <source>The calibration needs a reference fiber. Connect one and try again.</source>
        <translation>校正には基準ファイバーが必要です。接続してからもう一度試してください。</translation>
    </message>
    <message>
        <source>There is no light on the fiber. Check the connector, and start again.</source>
        <translation>ファイバーに光がありません。コネクタを確認して、もう一度開始してください。</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
    <message>
        <source>ns</source>
        <translation>ns</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>Nothing was set. %1</source>
        <translation>何も設定されませんでした。%1</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>オブジェクトではありません</translation>
    </message>
    <message>
        <source>The settings for the service %1 are not a JSON object of values by name: %2.</source>
        <translation>サービス %1 の設定が、名前と値の JSON オブジェクトではありません: %2。</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;.</source>
        <translation>設定 &quot;%1&quot; はありません。</translation>
    </message>
    <message>
        <source>%1 is named twice.</source>
        <translation>%1 が 2 回指定されています。</translation>
    </message>
    <message>
        <source>Settings applied: %1.</source>
        <translation>適用した設定: %1。</translation>
    </message>
    <message>
        <source>The configuration of %1 was not saved: it needs a name, as in &quot;My settings,1&quot;.</source>
        <translation>%1 の構成を保存しませんでした: &quot;My settings,1&quot; のような名前が必要です。</translation>
    </message>
    <message>
        <source>The configuration &quot;%1&quot; was not saved: there is no folder to store it in.</source>
        <translation>構成 &quot;%1&quot; を保存しませんでした: 保存先のフォルダーがありません。</translation>
    </message>
    <message>
        <source>The configuration was saved as &quot;%1&quot;.</source>
        <translation>構成を &quot;%1&quot; として保存しました。</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>サービス %1 に接続できません。起動してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 cannot be set to %2: %3. Allowed: %4.</source>
        <translation>%1 を %2 に設定できません: %3。設定可能: %4。</translation>
    </message>
    <message>
        <source>%1 cannot be set now: it is not ready. Try again later.</source>
        <translation>%1 は今は設定できません: 準備ができていません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>今は使用できません</translation>
    </message>
    <message>
        <source>The service %1 has no item %2 any more.</source>
        <translation>サービス %1 に項目 %2 はもうありません。</translation>
    </message>
    <message>
        <source>The action failed.</source>
        <translation>アクションが失敗しました。</translation>
    </message>
    <message>
        <source>%1 cannot be set: it is not a setting.</source>
        <translation>%1 は設定できません: 設定項目ではありません。</translation>
    </message>
    <message>
        <source>%1 cannot be set: it can only be emptied.</source>
        <translation>%1 は設定できません: 空にすることだけができます。</translation>
    </message>
    <message>
        <source>The service %1 has no item %2.</source>
        <translation>サービス %1 に項目 %2 はありません。</translation>
    </message>
    <message>
        <source>%1 cannot be carried out: the service %2 has no handler for it.</source>
        <translation>%1 を実行できません: サービス %2 に処理がありません。</translation>
    </message>
    <message>
        <source>The service %1 has no action %2.</source>
        <translation>サービス %1 にアクション %2 はありません。</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>サービス %1 は %2 ms 以内に応答しませんでした。要求は後で実行される可能性があります。</translation>
    </message>
</context>
<context>
    <name>ServiceState</name>
    <message>
        <source>It could not be renamed, so changed settings will be lost when the program ends.</source>
        <translation>ファイル名を変更できなかったため、変更した設定はプログラムの終了時に失われます。</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings are those of the service file.</source>
        <translation>ファイル名を %1 に変更しました。設定はサービスファイルのものになります。</translation>
    </message>
    <message>
        <source>%1: /values: the object with the values by item id is missing.</source>
        <translation>%1: /values: 項目 ID ごとの値のオブジェクトがありません。</translation>
    </message>
    <message>
        <source>The settings of %1 could not be stored in %2: %3.</source>
        <translation>%1 の設定を %2 に保存できませんでした: %3。</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>the service %1 has no such setting</source>
        <translation>サービス %1 にその設定はありません</translation>
    </message>
    <message>
        <source>%1: %2: %3. The value stays in the file.</source>
        <translation>%1: %2: %3。値はファイルに残ります。</translation>
    </message>
    <message>
        <source>this is not a setting</source>
        <translation>設定項目ではありません</translation>
    </message>
    <message>
        <source>%1 is %2, allowed: %3</source>
        <translation>%1: %2 (設定可能: %3)</translation>
    </message>
</context>
<context>
    <name>ServiceValue</name>
    <message>
        <source>%1 or more</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>%1 or less</source>
        <translation>%1 以下</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 文字</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>任意の数値</translation>
    </message>
    <message>
        <source>the members %1</source>
        <translation>要素 %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>an aggregate</source>
        <translation>集合</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真または偽</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>数値ではありません</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>有限の数値ではありません</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>整数ではありません</translation>
    </message>
    <message>
        <source>out of range</source>
        <translation>範囲外です</translation>
    </message>
    <message>
        <source>neither true nor false</source>
        <translation>真でも偽でもありません</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>テキストではありません</translation>
    </message>
    <message>
        <source>not a value that an item of this type can have</source>
        <translation>この型の項目が取れない値です</translation>
    </message>
    <message>
        <source>not a list</source>
        <translation>リストではありません</translation>
    </message>
    <message>
        <source>not an aggregate</source>
        <translation>集合ではありません</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; is missing</source>
        <translation>要素 &quot;%1&quot; がありません</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>要素 &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>要素 &quot;%1&quot; はありません</translation>
    </message>
    <message>
        <source>not a list of aggregates</source>
        <translation>集合のリストではありません</translation>
    </message>
    <message>
        <source>element %1: %2</source>
        <translation>%1 番目: %2</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>短すぎます</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>長すぎます</translation>
    </message>
    <message>
        <source>not of the expected form</source>
        <translation>形式が正しくありません</translation>
    </message>
    <message>
        <source>not one of the choices</source>
        <translation>選択肢にありません</translation>
    </message>
</context>
<context>
    <name>ServicesPage</name>
    <message>
        <source>No services yet</source>
        <translation>まだサービスがありません</translation>
    </message>
    <message>
        <source>They are shown when they come.</source>
        <translation>現れると表示されます。</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Gallery of the kit</source>
        <translation>部品ギャラリー</translation>
    </message>
    <message>
        <source>Everything that pages are made of</source>
        <translation>ページを構成するすべての部品</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>本体</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>測定設定</translation>
    </message>
    <message>
        <source>Everything is applied.</source>
        <translation>すべて適用されています。</translation>
    </message>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>%n 件の変更が適用されていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>There is no set-up</source>
        <translation>測定設定がありません</translation>
    </message>
    <message>
        <source>The service loopback is not published.</source>
        <translation>サービス loopback が公開されていません。</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>What passes, and what fails.</source>
        <translation>合格と不合格の基準です。</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>測定</translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>その間に %n 件の設定が変更されました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Page %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn. The file may be damaged.</source>
        <translation>%1 ページを描画できません。ファイルが壊れている可能性があります。</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>%1 is running already. Stop it, or wait until it is done.</source>
        <translation>%1 は実行中です。停止するか、終わるまで待ってください。</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>%1 の値: %2</translation>
    </message>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1: 通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: 開けません: %2</translation>
    </message>
    <message>
        <source>%1: larger than %2 MiB</source>
        <translation>%1: %2&#xa0;MiB を超えています</translation>
    </message>
    <message>
        <source>%1: the first line names no column &quot;%2&quot;</source>
        <translation>%1: 最初の行に列 &quot;%2&quot; がありません</translation>
    </message>
    <message>
        <source>%1: no line has a value of the item&apos;s type in the column</source>
        <translation>%1: この列に項目の型の値を持つ行がありません</translation>
    </message>
    <message>
        <source>only a result can move: settings are set by clients</source>
        <translation>変動できるのは結果だけです: 設定はクライアントが行います</translation>
    </message>
    <message>
        <source>an item of the type %1 cannot move as &quot;%2&quot;</source>
        <translation>型 %1 の項目は &quot;%2&quot; として変動できません</translation>
    </message>
    <message>
        <source>has no meaning for &quot;%1&quot;</source>
        <translation>&quot;%1&quot; では意味がありません</translation>
    </message>
    <message>
        <source>must be greater than &quot;from&quot;</source>
        <translation>&quot;from&quot; より大きくしてください</translation>
    </message>
    <message>
        <source>only numbers have &quot;noise&quot;, &quot;from&quot; and &quot;to&quot;</source>
        <translation>&quot;noise&quot;、&quot;from&quot;、&quot;to&quot; は数値にしか使えません</translation>
    </message>
    <message>
        <source>%1. The item %2 stands still.</source>
        <translation>%1。項目 %2 は変動しません。</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines have no value for %4 and are left out.</source>
        <translation>%1: %3 行中 %2 行に %4 の値がないため、除外しました。</translation>
    </message>
    <message>
        <source>only numbers and Booleans can be judged by their value</source>
        <translation>値で判定できるのは数値と真偽値だけです</translation>
    </message>
    <message>
        <source>&quot;to&quot; is less than &quot;from&quot;</source>
        <translation>&quot;to&quot; が &quot;from&quot; より小さくなっています</translation>
    </message>
    <message>
        <source>there is no item %1 that is a number</source>
        <translation>数値の項目 %1 がありません</translation>
    </message>
    <message>
        <source>there is no item %1 that has a value</source>
        <translation>値を持つ項目 %1 がありません</translation>
    </message>
    <message>
        <source>a value of %1 is drawn from the numbers between &quot;from&quot; and &quot;to&quot;</source>
        <translation>%1 の値は &quot;from&quot; から &quot;to&quot; までの数から選ばれます</translation>
    </message>
    <message>
        <source>must be greater than &quot;for&quot;</source>
        <translation>&quot;for&quot; より大きくしてください</translation>
    </message>
    <message>
        <source>no id begins with &quot;%1&quot;</source>
        <translation>&quot;%1&quot; で始まる ID がありません</translation>
    </message>
    <message>
        <source>there is no action %1 that &quot;runs&quot;</source>
        <translation>&quot;runs&quot; を持つアクション %1 がありません</translation>
    </message>
    <message>
        <source>nothing happens: say what, such as &quot;vanish&quot;: true</source>
        <translation>何も起こりません: &quot;vanish&quot;: true のように、何が起こるかを書いてください</translation>
    </message>
    <message>
        <source>%1 The item %2 stands still.</source>
        <translation>%1 項目 %2 は変化しません。</translation>
    </message>
    <message>
        <source>%1: lines that cannot be read are left out: %2</source>
        <translation>%1: 読み取れないため省いた行: %2</translation>
    </message>
    <message>
        <source>%1: the recording has no value of %2.</source>
        <translation>%1: 記録に %2 の値がありません。</translation>
    </message>
</context>
<context>
    <name>SwitchEntry</name>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>TemplateToHtmlWriter</name>
    <message>
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>境界</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ジョブ ID</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>ジョブの BAN</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>ジョブの担当者</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>上限</translation>
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
        <source>Timestamp</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>総合判定</translation>
    </message>
    <message>
        <source>Assembly</source>
        <translation>アセンブリー</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>ハードウェア</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>セクション</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>%1 unit</source>
        <translation>%1 の単位</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>判定</translation>
    </message>
    <message>
        <source>%1 status</source>
        <translation>%1 の判定</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>Legend of the plot</source>
        <translation>グラフの凡例</translation>
    </message>
    <message>
        <source>Test Information</source>
        <translation>試験情報</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Solvant System Information</source>
        <translation>Solvant システム情報</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 ～ %3</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>There are no curves.</source>
        <translation>曲線はありません。</translation>
    </message>
    <message>
        <source>Job Manager Information</source>
        <translation>ジョブ情報</translation>
    </message>
    <message>
        <source>Customer Information</source>
        <translation>顧客情報</translation>
    </message>
    <message>
        <source>Technician Information</source>
        <translation>担当者情報</translation>
    </message>
    <message>
        <source>Software Revisions</source>
        <translation>ソフトウェアのバージョン</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Configuration Values</source>
        <translation>構成値</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>未完了</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>The curves are drawn in the HTML and PDF reports.</source>
        <translation>曲線は HTML と PDF のレポートに描かれます。</translation>
    </message>
</context>
<context>
    <name>TextEntry</name>
    <message>
        <source>&quot;%1&quot; cannot be used here</source>
        <translation>&quot;%1&quot; は使用できません</translation>
    </message>
</context>
<context>
    <name>TouchTab</name>
    <message>
        <source>Needs attention</source>
        <translation>要確認</translation>
    </message>
</context>
<context>
    <name>TouchTabs</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>TurnLine</name>
    <message>
        <source>%1 before</source>
        <translation>%1を減らす</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1を増やす</translation>
    </message>
</context>
<context>
    <name>UiData</name>
    <message>
        <source>False</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>True</source>
        <translation>はい</translation>
    </message>
</context>
<context>
    <name>ViewerBar</name>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom %1</source>
        <translation>倍率 %1</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Fit the width</source>
        <translation>幅に合わせる</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Fit the page</source>
        <translation>ページに合わせる</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>Four numbers separated by points, such as 192.0.2.1</source>
        <translation>点で区切った 4 つの数値 (例: 192.0.2.1)</translation>
    </message>
    <message>
        <source>Each part is a number from 0 to 255</source>
        <translation>各部分は 0 ～ 255 の数値です</translation>
    </message>
    <message>
        <source>No part can begin with 0</source>
        <translation>各部分は 0 で始められません</translation>
    </message>
    <message>
        <source>Up to eight groups separated by colons, such as 2001:db8::1</source>
        <translation>コロンで区切った最大 8 つのグループ (例: 2001:db8::1)</translation>
    </message>
    <message>
        <source>&quot;::&quot; can appear only once</source>
        <translation>&quot;::&quot; は 1 回だけ使用できます</translation>
    </message>
    <message>
        <source>Each group is one to four hexadecimal digits</source>
        <translation>各グループは 1 ～ 4 桁の 16 進数です</translation>
    </message>
    <message>
        <source>Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E</source>
        <translation>16 進数 2 桁の組を 6 つ (例: 00:1A:2B:3C:4D:5E)</translation>
    </message>
    <message>
        <source>A URL cannot contain blanks</source>
        <translation>URL に空白は使用できません</translation>
    </message>
    <message>
        <source>Scheme and host, such as https://host/path</source>
        <translation>スキームとホスト (例: https://host/path)</translation>
    </message>
    <message>
        <source>At most %1 characters; this text has %2</source>
        <translation>最大 %1 文字です。このテキストは %2 文字です</translation>
    </message>
    <message>
        <source>Digits, + at the beginning, blanks and ( ) / - * #</source>
        <translation>数字、先頭の +、空白、( ) / - * #</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>%1 以下</translation>
    </message>
    <message>
        <source>At least %1 characters; this text has %2</source>
        <translation>最小 %1 文字です。このテキストは %2 文字です</translation>
    </message>
</context>
<context>
    <name>uiutils::PendingChanges</name>
    <message>
        <source>The service %1 cannot be reached. The change waits until it returns.</source>
        <translation>サービス %1 に接続できません。変更は、サービスが復帰するまで保留されます。</translation>
    </message>
    <message>
        <source>The entry was rejected.</source>
        <translation>入力は拒否されました。</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportDraft</name>
    <message>
        <source>Another page or program keeps results of this kind</source>
        <translation>別のページまたはプログラムがこの種類の結果を保持しています</translation>
    </message>
    <message>
        <source>There is no folder to keep the results in until they are saved</source>
        <translation>保存するまで結果を保持するフォルダーがありません</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportPaper</name>
    <message>
        <source>the printer takes no further page</source>
        <translation>プリンターがこれ以上ページを受け付けません</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>プログラムが QGuiApplication ではないため、フォントがありません</translation>
    </message>
    <message>
        <source>the report has no page %1, only %2</source>
        <translation>レポートに %1 ページはありません (全 %2 ページ)</translation>
    </message>
    <message>
        <source>the printer cannot be used</source>
        <translation>プリンターを使用できません</translation>
    </message>
    <message>
        <source>another report is being printed</source>
        <translation>別のレポートを印刷中です</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Follower</name>
    <message>
        <source>Following the user&apos;s name, &quot;%1&quot;.</source>
        <translation>ユーザー名 &quot;%1&quot; を監視しています。</translation>
    </message>
    <message>
        <source>There is no setting %1 to follow. Start kivd with the service that has it.</source>
        <translation>監視する設定 %1 がありません。その設定を持つサービスで kivd を起動してください。</translation>
    </message>
    <message>
        <source>Another application has changed it to &quot;%1&quot;.</source>
        <translation>別のアプリケーションが &quot;%1&quot; に変更しました。</translation>
    </message>
    <message>
        <source>The services have ended; it stays &quot;%1&quot;.</source>
        <translation>サービスが終了しました。&quot;%1&quot; のままです。</translation>
    </message>
    <message>
        <source>The services have returned, and nothing is lost.</source>
        <translation>サービスが戻りました。何も失われていません。</translation>
    </message>
    <message>
        <source>The services have returned with &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>サービスが &quot;%2&quot; ではなく &quot;%1&quot; で戻りました。</translation>
    </message>
    <message>
        <source>The window gives no picture.</source>
        <translation>ウィンドウの画像を取得できません。</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 に書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackMeasurement</name>
    <message>
        <source>Ready to measure</source>
        <translation>測定できます</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>サーバーに接続しています</translation>
    </message>
    <message>
        <source>Measuring round-trip time</source>
        <translation>往復時間を測定しています</translation>
    </message>
    <message>
        <source>Measuring throughput</source>
        <translation>スループットを測定しています</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗しました</translation>
    </message>
    <message>
        <source>Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one exchange of each kind before the first sample is not counted. Jitter is the mean difference between neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is marginal when it meets it with less, and fails when it does not meet it; the overall status is that of the worse median.</source>
        <translation>この測定器のループバックインターフェースを通し、本プログラムの TCP クライアントと TCP サーバーで測定しました。往復時間: %1 サンプル。それぞれ %2 バイトのメッセージを送信してから、そのエコーがすべて届くまでの時間です。スループット: %6 サンプル。それぞれ %3 MiB を送信し、サーバーが最後のバイトを確認するまでの時間です。1 Mbit/s は毎秒 1,000,000 ビットです。サンプルの間には %4 ms の休止があり、最初のサンプルの前に行う各 1 回のやり取りは数えません。ジッターは隣り合うサンプルの差の平均です。値が %5 % 以上の余裕をもって限度値を満たせば合格、余裕がそれより小さければ境界、満たさなければ不合格です。総合判定は悪い方の中央値によります。</translation>
    </message>
    <message>
        <source>A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the nearest permitted one.</source>
        <translation>1 回の測定は各 %1 ～ %2 サンプル、メッセージは %3 B 以上です。それ以外の値は最も近い許容値に変更されます。</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackProbe</name>
    <message>
        <source>No server could be opened on the loopback address (%1). Check that the loopback interface is up, then start again.</source>
        <translation>ループバックアドレスでサーバーを開けませんでした (%1)。ループバックインターフェースが有効か確認し、もう一度開始してください。</translation>
    </message>
    <message>
        <source>The server at %1 sent an answer that does not match the request while %2. Another program may be listening there; start again.</source>
        <translation>サーバー %1 が要求に合わない応答を返しました (%2)。別のプログラムが待ち受けている可能性があります。もう一度開始してください。</translation>
    </message>
    <message>
        <source>The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>サーバー %1 との接続が切れました (%2、%3)。ループバックインターフェースが有効で、ファイアウォールに遮断されていないか確認し、もう一度開始してください。</translation>
    </message>
    <message>
        <source>The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>サーバー %1 から %2 秒間応答がありません (%3)。ループバックインターフェースが有効で、ファイアウォールに遮断されていないか確認し、もう一度開始してください。</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>measuring round-trip time, sample %1 of %2</source>
        <translation>往復時間の測定中、サンプル %1 / %2</translation>
    </message>
    <message>
        <source>measuring throughput, sample %1 of %2</source>
        <translation>スループットの測定中、サンプル %1 / %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackReport</name>
    <message>
        <source>Title on the report</source>
        <translation>レポートのタイトル</translation>
    </message>
    <message>
        <source>TCP loopback test</source>
        <translation>TCP ループバック試験</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Finish a measurement on the Measure page first.</source>
        <translation>先に測定を完了してください。</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::SampleModel</name>
    <message>
        <source>at most %1</source>
        <translation>%1 以下</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>境界</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>往復時間</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>スループット</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::ScreenCamera</name>
    <message>
        <source>Screenshot Saved</source>
        <translation>スクリーンショットを保存しました</translation>
    </message>
    <message>
        <source>No picture of the window could be taken.</source>
        <translation>ウィンドウの画像を取得できませんでした。</translation>
    </message>
    <message>
        <source>The window was not drawn for %1 s.</source>
        <translation>ウィンドウが %1 秒間描画されませんでした。</translation>
    </message>
    <message>
        <source>The picture of the window is empty.</source>
        <translation>ウィンドウの画像が空です。</translation>
    </message>
    <message>
        <source>There is not enough space for the picture.</source>
        <translation>画像のための空き容量がありません。</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Tour</name>
    <message>
        <source>The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and WAYLAND_DISPLAY unset.</source>
        <translation>%1 のウィンドウの画像が空です。DISPLAY と WAYLAND_DISPLAY を設定せず、画面なしでデモを実行してください。</translation>
    </message>
    <message>
        <source>Check the free space and that you may write there, or name another folder with --root.</source>
        <translation>空き容量と書き込み権限を確認するか、--root で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.</source>
        <translation>ツアーは %1 秒待ちましたが、次の状態になりませんでした: %2。ウィンドウを見える状態にし、触らないでください。</translation>
    </message>
    <message>
        <source>the job is open</source>
        <translation>ジョブが開いている</translation>
    </message>
    <message>
        <source>half of the run</source>
        <translation>測定の半分</translation>
    </message>
    <message>
        <source>the end of the run</source>
        <translation>測定の終わり</translation>
    </message>
    <message>
        <source>the format of all files</source>
        <translation>すべてのファイルの形式</translation>
    </message>
    <message>
        <source>the report is saved</source>
        <translation>レポートが保存されている</translation>
    </message>
    <message>
        <source>a question before files are overwritten</source>
        <translation>ファイルを上書きする前の確認</translation>
    </message>
    <message>
        <source>the answer</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>the screenshot</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be pressed</source>
        <translation>&quot;%1&quot; を押せる</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is typed</source>
        <translation>&quot;%1&quot; が入力されている</translation>
    </message>
    <message>
        <source>a picture of the window can be taken</source>
        <translation>ウィンドウの画像を取得できる</translation>
    </message>
    <message>
        <source>the picture %1</source>
        <translation>画像 %1</translation>
    </message>
    <message>
        <source>the pages of the preview</source>
        <translation>プレビューのページ</translation>
    </message>
    <message>
        <source>the drawer of the desk</source>
        <translation>実験台の引き出し</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::UsbStick</name>
    <message>
        <source>The files in %1 cannot be moved to %2: %3.</source>
        <translation>%1 のファイルを %2 に移動できません: %3。</translation>
    </message>
    <message>
        <source>No service of this instrument knows of USB drives.</source>
        <translation>この測定器には USB メモリーを扱うサービスがありません。</translation>
    </message>
    <message>
        <source>USB Drive</source>
        <translation>USB メモリー</translation>
    </message>
</context>
</TS>
