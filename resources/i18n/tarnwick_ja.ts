<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>パスワードマネージャ、入力メソッド、セキュリティやデバイス管理のエージェント、VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>設定を読み込めないため、除外ルールを確認できません。何もクリーンアップしていません。</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>設定から除外ルールが失われています。何もクリーンアップしていません。</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1個のファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1個のファイル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1（%2）を%3に入れました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · 使用中の%1個をスキップ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>%Ln個のファイルを元に戻しました</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>設定を読み込めないため、除外ルールを確認できません。何も移動していません。</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>アプリやシステムが作業中に作る一時的なファイルです。アプリを閉じた後は不要です。</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>アプリキャッシュ</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>アプリが読み込みを速くするために保存しているデータです。次に必要になったときにアプリが自動で作り直します。</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>ブラウザキャッシュ</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>キャッシュされた画像、スクリプト、ページです。ログイン状態、履歴、ブックマーク、パスワードには一切触れません。</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>ログとクラッシュレポート</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>診断用のログとクラッシュレポートです。最近起きた問題を調べるときにだけ役立ちます。</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>ファイルのプレビュー画像です。次にフォルダを開いたときに作り直されます。</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>古いインストーラ</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>開発用キャッシュ</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>パッケージマネージャのキャッシュとビルドの生成物です。削除しても安全ですが、次回のビルドやインストールに時間がかかります。</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ゴミ箱</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>すでに削除した項目です。空にする操作は取り消せません。</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>クイックルックキャッシュ</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>サムネイルキャッシュ</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>「ダウンロード」フォルダにあるディスクイメージとインストーラパッケージです。まだ必要なインストーラがないか確認してください。</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>「ダウンロード」フォルダにあるソフトウェアパッケージとディスクイメージです。まだ必要なものがないか確認してください。</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>安全</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>完全に削除</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>サムネイル</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>クイックルックサムネイル</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>シミュレータキャッシュ</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>ゴミ箱</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>完全に削除</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>ホームフォルダの所有者が別のユーザです。何もクリーンアップしていません。</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>別のクリーンアップがすでに実行中です。</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>別のクリーンアップが実行中かどうかを確認できません。何もクリーンアップしていません。</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>安全にクリーンアップ可能</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>クリーンアップ前に確認</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>取り消し不可</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>詳細を表示中</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべてを選択</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1項目</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1が実行中</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>クリーンアップする項目はもうありません。いつでも再スキャンできます。</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>サイズの大きい項目</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>%1に表示</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>さらに%1項目を表示</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>ほか%1項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>使用中であるか保護されているため、&lt;b&gt;%Ln個のファイルをスキップしました&lt;/b&gt;。削除するには、それらを使用しているアプリを終了してから再スキャンしてください。</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>例：%1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;実行中のアプリのキャッシュはそのまま残しました：&lt;/b&gt;%1。含めるには、アプリを終了してからもう一度クリーンアップしてください。</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>クリーンアップ完了</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>実行前の空き容量</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>現在の空き容量</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>ログを表示</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>%1に入れました。どの項目もまだ元に戻せます。</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>項目を完全に削除しました。</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>管理者として再起動</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>一部のフォルダにはフルディスクアクセスが必要です。</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>一部のフォルダにはフルディスクアクセスが必要な場合があります。</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>システム設定を開く</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>システムに属する一部のファイルはそのまま残しました。</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>これらのファイルには管理者権限が必要です。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;一部のファイルには管理者権限が必要です。&lt;/b&gt;削除するには、Tarnwickを管理者として再起動してからもう一度クリーンアップしてください。</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>これらのフォルダの一部を読み取る権限がありません。</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1が開いています。終了すると、そのキャッシュも対象になります。</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>次のアプリが開いています：%1。終了すると、それらのキャッシュも対象になります。</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>まだスキャンしていません</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>キャッシュ、一時ファイル、残存ファイルを見つけます。</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>スマートスキャンを開始</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>クリーンアップ中</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>実行中</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>全%1中</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>推奨項目を選択</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>選択項目</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>ルールを表示</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>%1をクリーンアップ可能</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;を選択中%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · 一部は管理者権限が必要</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>%1に入れます</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>完全に削除します</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>%1をクリーンアップ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;設定から除外ルールが失われています。&lt;/b&gt;ルールを確認するまで、何もクリーンアップされません。</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;設定を読み込めません。&lt;/b&gt;除外ルールを確認するまで、何もクリーンアップされません。</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>スキャン中</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>確認した項目</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>検出済み</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>フルディスクアクセスが必要</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>読み取り権限なし</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>クリーンアップできる容量を計測します。何も変更しません。</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>スキャンして対象を表示し、確認を求めてからクリーンアップします。</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>ホームフォルダから大きなファイルを検索します。何も変更しません。</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>ディスク上でシステムが占める容量の内訳を計測します。何も変更しません。</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>これらのカテゴリだけを調べます。クリーンアップでは、指定しない限り決して対象にならないカテゴリも含め、そのすべてが対象になります</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>設定のルールに加え、このルールに一致するものには一切触れません。繰り返し指定できます</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>設定にかかわらず、完全に削除します</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>何にも触れず、クリーンアップされるものと残るものを理由とともに一覧表示します</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>確認を求めません</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>設定にかかわらず、ディスク上で指定したメガバイト数以上を占めるファイルを検索します</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>標準出力に1つのJSONオブジェクトを出力します</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>このヘルプを表示します</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>バージョンを表示します</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>使い方：%1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>コマンド：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション：</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>各コマンドの説明を見るには「%1」を実行してください。</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>カテゴリ：%1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>%1 というオプションはありません</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>%1 というコマンドはありません。使えるコマンド：%2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>%1 は余分な引数です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>「%1」では --%2 は使えません</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete と --trash は同時に指定できません</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only にはカテゴリのIDを指定してください：%1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>%1 というカテゴリはありません。使えるカテゴリ：%2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude にはルールを指定してください</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>ルール %1 はどれにも一致しません。パスは / または ~/ で始まり、/ より下を指す必要があります。名前にスラッシュは使えません</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb にはメガバイト数を指定してください（%1 は使えません）</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>何もクリーンアップしていません。</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Tarnwickの設定でルールを確認するか、%1 を修復するか、%2 と一緒に削除してください。</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>スキャンはキャンセルされました。何もクリーンアップしていません</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>確認を求める端末がないため、--yes を付けない限り何もクリーンアップしません</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>検索はキャンセルされました</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>出力を書き込めませんでした：%1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>スキャン中</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>クリーンアップ中</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 / %2個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>検索中</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>スキャンはキャンセルされました</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>この項目が終わりしだい停止します…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1個のファイル</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1ミリ秒</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>一部を読み取れませんでした：%1。</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>計測はキャンセルされました</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>ファイル数</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>評価</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>場所</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>うち%1は安全にクリーンアップできます：tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1が実行中のため、そのデータのうち%2は残ります。</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>指定しない限り対象外：%1。クリーンアップするには：--only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>完全に削除</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>スキップしたファイル（計%1個、理由はログを参照）：</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>実行中のため、そのまま残したアプリ：%1。</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>%1でスキャンしました。何も変更していません。</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>クリーンアップする項目はありません。</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>%1を完全に削除しますか？</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>試行のため、何にも触れていません。</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>%1を解放し、%2を取り除きました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>システムに属する一部のファイルはそのまま残しました。</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>ログ：%1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>最後に使った日</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>ファイル</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%2個のファイルのうち、大きい順に%1個を表示しています。</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>ホームフォルダに%1以上のファイルはありません。</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>%2で%1を検索しました。何も変更していません。</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>%1以上</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>フルディスクアクセスが必要</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>読み取り権限なし</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>大きい順：%1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>解放できる領域</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>macOSが管理</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>システムが管理</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>うち%1は解放できます。</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>%1で計測しました。何も変更していません。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>設定にかかわらず、%1に入れます</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>うち%1は%2のないボリュームにあるため、--delete を指定しない限り残ります。</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>%1に入れる</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>%1に入れた項目は、%1を空にするまで容量を占めます。</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>%2を%3に入れますか？</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>%1を完全に削除し、%2を%3に入れますか？</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>y はい</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)</extracomment>
        <translation>[y/N]</translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation>%1をクリーンアップできます</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>%1使用済み</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>%1使用済み</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>使用済み</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>未完了のダウンロード</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>インストーラ</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>画像</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>書類</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>選択</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>昇順</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>降順</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>容量マップ</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>容量を占めているものを見つける</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>ホームフォルダにある大きなファイルです。何を削除するかは自分で決められます。</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>大きなファイルを検索</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>ホームフォルダ · %1超</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>%1に表示</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>%1に入れる</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>表示</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>ファイルを検索</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>サイズの大きいファイル</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1か月以上未使用</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>%3のうち&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;を選択中 · %4個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>大きなファイルを検索中…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>大きなファイル</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>これまでで最大のファイル</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>並べ替え</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 はTarnwickが作成したものではないため、そのまま残しました。ログイン時にTarnwickを開くには、これを削除してください。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>%1 に書き込めないため、ログイン時にTarnwickは開きません。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>%1 を削除できないため、ログイン時にTarnwickが引き続き開きます。</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwickをバージョン%1にアップデートしました。</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>%1の空き容量が残りわずかです。スマートスキャンを実行して空き容量を増やしてください。</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Tarnwickのウェブサイト</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>Tarnwickについて</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwickを終了</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>スマートスキャン</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>大きなファイルを検索</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウインドウを閉じる</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>容量マップ</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>システムデータ</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>サイドバーを非表示</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>フルスクリーンにする</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>拡大/縮小</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>すべてを手前に移動</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>ガイド</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>よくある質問</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>ログフォルダを開く</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>メニューを開く</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>サイドバーを表示</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>フルスクリーンを解除</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン%1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 Tarnwickの作者</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>この選択を記憶する</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>Tarnwickを実行したままにしますか？</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>ウインドウを閉じてもTarnwickをシステムトレイに残しておけるので、定期スキャンと空き容量不足の通知が引き続き働きます。トレイのアイコンからいつでも開けます。</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>この選択は設定で変更できます。</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>トレイに残す</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>完全に削除する設定になっています。これらのファイルは復元できません。</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>%1を空にする操作は取り消せません。それ以外はすべて%1に入ります。</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>すべて%1に入るので、後から元に戻せます。</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>クリーンアップして削除</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>%1をクリーンアップしますか？</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>うち%1は、保存先のボリュームに%2がないため残ります。</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>うち%1は、次のアプリが開いている間は残ります：%2。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>バージョン%1を利用できます。現在のバージョンは%2です。</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>アップデートをダウンロード中…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>開いたウインドウでTarnwickを「アプリケーション」にドラッグすると、このバージョンが置き換わります。</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>ダウンロードしたパッケージのあるフォルダがファイルマネージャで開きます。いつもの方法でインストールしてください。</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Tarnwickは最新です</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>バージョン%1は最新バージョンです。</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>インターネット接続を確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>アップデートをインストール中…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>バージョン%1がインストールされています。</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>今すぐアップデート</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>後で</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>前回のスキャン：%1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>スマートスキャン</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>概要</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>ディスクの状態</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>システムファイルを保護</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>過去%1か月に解放した容量</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>すべて見る</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>定期スキャン</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>%1中の空き</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>確認</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1をクリーンアップできます</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>起動ディスクの空き容量が残りわずかです</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>ディスクをいつも良い状態に</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1はパージ可能</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>アプリ、書類、システム</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>解放可能</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>空き</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>スキャン履歴なし</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>前回のスキャン</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>今月解放した容量</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>主な推奨項目</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>スマートスキャンの対象</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>システムディスク</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>ゴミ箱</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>「ファイル」</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>ゴミ箱</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>カット(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>ペースト(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>A key</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>A key</extracomment>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Meta</source>
        <extracomment>A key</extracomment>
        <translation>Meta</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Locked</source>
        <extracomment>Beside a rule that can not be changed</extracomment>
        <translation>変更不可</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>管理者権限</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwickは管理者として実行中で、Windows Updateのファイルをクリーンアップできます。</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>許可済み</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Windows Updateの残存ファイルをクリーンアップするときにだけ必要です。</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>管理者として再起動</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>フルディスクアクセス</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Safariのキャッシュとゴミ箱のクリーンアップに必要です。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>システムのデフォルト（%1）</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>自動化</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>除外</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>情報</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>アクセス権と情報</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>項目を%1に入れる</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>推奨。オフにするとファイルを完全に削除します。</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>大きなファイルのサイズ</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>このサイズより大きいファイルが容量マップに表示されます。</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation>100 MB</translation>
    </message>
    <message>
        <source>250 MB</source>
        <translation>250 MB</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation>500 MB</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1 GB</translation>
    </message>
    <message>
        <source>Consider files old after</source>
        <translation>古いファイルとみなす期間</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>「未使用」フィルタで使われます。</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3か月</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6か月</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12か月</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24か月</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>定期スキャン</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>前回のスキャンからこの期間が過ぎていれば、Tarnwickの起動時にスキャンします。自動でクリーンアップすることは決してありません。</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>空き容量不足の通知</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>空き容量が10%を下回ると通知します。</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>ログイン時に開く</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Windowsの起動時に開始</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>Tarnwickをバックグラウンドで起動し、定期スキャンを実行できるようにします。</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>システムトレイにTarnwickを表示</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>メニューバーにTarnwickを表示</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>ウインドウを閉じてもTarnwickはそこで実行を続けるので、定期スキャンと空き容量不足の通知が引き続き働きます。</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>毎回確認</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>トレイで実行を続ける</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwickを終了</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>ウインドウを閉じるとき</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>トレイではTarnwickが実行を続けるので、定期スキャンと空き容量不足の通知が引き続き働きます。</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>システムに合わせるか、常にライトまたはダークを使います。</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>システム</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>今すぐ再起動</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>言語の切り替えにはTarnwickの再起動が必要です。</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>保護されたシステムの場所</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation> — 常にスキップします。</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>保護されたアプリ</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation> — これらのデータは決してクリーンアップしません。実行中のアプリのキャッシュと開いているファイルもスキップします。</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>ログを開く</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>クリーンアップのたびに、後で確認できるログを残します。Tarnwickは起動時にアップデートを確認します。</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>クリーンアップのたびに、後で確認できるログを残します。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;設定からルールが失われています。&lt;/b&gt;ルールがすべて揃っているか確認し、足りないものを追加し直してください。それまでは何もクリーンアップされません。</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;設定を読み込めません。&lt;/b&gt;ルールがすべて揃っているか確認し、足りないものを追加し直してください。それまでは何もクリーンアップされず、破損したファイルもそのまま残ります。</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダを追加</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>一切触れない項目</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Tarnwickが常にスキップするフォルダとパターンです。</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>このルールで確定</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>除外するフォルダを選択</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>ルールを保存しました。破損した設定ファイルは新しいファイルの隣に残ります。</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>設定を書き込めないため、元のままになります。</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>%1を削除</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%2中%1が空き</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>サイドバーを展開</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>スマートスキャン</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>容量マップ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>システムデータ</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>クリーン</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>サイドバーを折りたたむ</translation>
    </message>
</context>
<context>
    <name>StackBar</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Said by a screen reader; %1: what takes space; %2: its share, such as “62%”</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>StepBar</name>
    <message>
        <source>Waiting</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>待機中</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Finderで確認</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>「ファイル」に表示</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>スナップショットを削除</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>使用不可のものを削除</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>「クリーンアップ」で処理</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Xcodeを開く</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 を開けませんでした</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1項目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>%1をゴミ箱に入れました。%2項目は移動できませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>移動する項目はありません</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>%1をゴミ箱に入れました</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>削除するローカルスナップショットはありません</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>スナップショットは削除されませんでした</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>スナップショット%2個中%1個を削除しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>シミュレータのクリーンアップに失敗しました：%1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>使用できないシミュレータデバイスはありません — 削除するものはありません</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>使用できないシミュレータデバイスを1台削除しました</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>使用できないシミュレータデバイスを%1台削除しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>Xcodeがインストールされていません</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>ユーザのアプリキャッシュ</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>アプリがキャッシュフォルダに保存しているキャッシュです。安全なものは「クリーンアップ」で処理できます。</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>ホームフォルダ内の隠しフォルダ</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>開発ツールやアプリが .npm、.cargo、.nvm などの隠しフォルダに保存しているキャッシュ、設定、インストール済みファイルです。キャッシュは消去しても安全ですが、インストール済みのツールは残してください。</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Flatpakアプリのデータ</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>各Flatpakアプリが個別に保存している設定、ファイル、キャッシュです。「flatpak uninstall --delete-data」で、アンインストール済みのアプリのデータを削除できます。</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>ユーザのFlatpakアプリとランタイム</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpakが現在のユーザだけにインストールしたアプリと、それらに必要なランタイムです。「flatpak uninstall --user --unused」で、どのアプリにも使われなくなったランタイムを削除できます。</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>コンテナとイメージ</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>DockerとPodmanが保存しているイメージ、コンテナ、ボリュームです。「docker system prune」と「podman system prune」で、どのコンテナにも使われていないものを削除できます。</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>仮想マシン</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>仮想マシンのディスクイメージで、作成したプログラムが管理しています。マシンの削除はそのプログラムか、「virsh undefine --remove-all-storage」で行います。</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>ゲームライブラリ</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Steamなどのランチャーが管理しているゲームです。アンインストールは各ランチャーで行います。</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>アプリのデータ</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>アプリが保存しているデータベースやファイルと、ゴミ箱です。アプリのデータは、そのアプリの中から、またはアンインストールした後に削除してください。</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>アプリの設定</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>アプリが保存している設定です。プロファイルやキャッシュを一緒に保存するアプリもあります。設定を失ったアプリは初期状態で起動します。</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>システムジャーナル</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>システムとサービスのログで、journaldが上限内に保っています。「journalctl --vacuum-size=200M」ですぐに縮小できます。</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>システムログ</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>サービスとパッケージマネージャのログファイルです。古いものはlogrotateが圧縮・削除します。</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>クラッシュダンプ</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>クラッシュしたプログラムのメモリの内容で、レポート用に保存されています。古いものはシステムが削除します。「coredumpctl」で一覧を表示できます。</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>ダウンロード済みパッケージ</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>パッケージマネージャがダウンロードし、すでにインストールしたパッケージです。「apt-get clean」「dnf clean packages」「pacman -Sc」「zypper clean」のいずれかで削除できます。</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Snapパッケージと古いリビジョン</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Snapパッケージと、元に戻せるようにsnapdが残している以前のリビジョンです。「snap set system refresh.retain=2」で残す数を減らせます。</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>システムのFlatpakアプリとランタイム</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpakがすべてのユーザ用にインストールしたアプリと、それらに必要なランタイムです。「flatpak uninstall --unused」で、どのアプリにも使われなくなったランタイムを削除できます。</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>カーネルとモジュール</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>システムの起動に使えるカーネルとそのドライバです。最新のものはパッケージマネージャが残します。古いものは「apt-get autoremove」で削除できます。</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>スワップファイルと休止状態ファイル</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>メモリに収まらないデータと、休止状態の間のメモリの内容を置くためのディスク領域です。サイズはシステムの設定で決まります。「swapon --show」で一覧を表示できます。</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>システムのスナップショット</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>TimeshiftやSnapperが保存している、システムの以前の状態です。変更のない部分を共有しているため、個別のサイズはありません。「timeshift --delete」または「snapper delete」で1つずつ削除できます。</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Time Machineのローカルスナップショット</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Time Machineがバックアップドライブに接続できるまで、macOSがこのディスクに1時間ごとに保存するスナップショットです。空き容量が減るとmacOSが解放します。今削除しても安全ですが、その時点には復元できなくなります。</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>iPhoneとiPadのバックアップ</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Finderで作成したデバイスのバックアップです。より新しいバックアップかiCloudバックアップができたら、古いものはFinder（「一般」→「バックアップを管理」）で削除してください。</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Xcodeのデバイスサポート</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>接続したデバイスのiOS、watchOS、tvOSの各バージョンからXcodeがコピーするデバッグシンボルです。次にそのデバイスを接続したときにXcodeが再びコピーします。</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>iOSシミュレータのデバイス</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>シミュレータデバイスとそのアプリデータです。使用できないデバイス（ランタイムがすでにないもの）は安全に削除できます。</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>シミュレータのランタイムとキャッシュ</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>XcodeがダウンロードしたiOS、watchOS、visionOSのシミュレータランタイムと、その共有キャッシュです。使わないランタイムはXcode › Settings › Componentsで削除してください。</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>アプリが「ライブラリ」フォルダに保存しているキャッシュです。安全なものは「クリーンアップ」で処理できます。</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>開発ツールやアプリが .cache、.npm、.nvm などの隠しフォルダに保存しているキャッシュ、設定、インストール済みファイルです。キャッシュは消去しても安全ですが、インストール済みのツールは残してください。</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Xcodeのアーカイブ</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>配布用にアーカイブしたビルドです。クラッシュレポートのシンボル化に必要になりそうなものは残してください。</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Dockerのディスクイメージ</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>Dockerのイメージとコンテナを収めた仮想ディスクです。「docker system prune」またはDocker Desktopの設定で縮小できます。</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>メールの添付ファイル</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>開いた後に「メール」が保存した添付ファイルです。元のファイルはメールボックスに残ります。</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>メッセージの添付ファイル</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>チャットでやり取りした写真、ビデオ、ファイルです。チャットとの整合性を保つため、大きなものは「メッセージ」（「設定」→「一般」→「ストレージ」）で削除してください。</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>システムキャッシュ</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>すべてのユーザとシステムサービスが共有するキャッシュです。macOSが自動的に整理します。</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>システムログと診断情報</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>統合ログと診断レポートです。macOSが自動的に入れ替え、削除します。</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>仮想メモリとスリープイメージ</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>スワップファイルと休止状態のイメージです。メモリの使用量に応じて増減し、再起動するとリセットされます。</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>macOSのアセットとアップデート</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>ダウンロードされたシステムアセット（フォント、辞書、言語モデル、AIモデル）と、準備済みのソフトウェアアップデートです。</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>その他のライブラリデータ</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>「ライブラリ」フォルダのその他のデータです。環境設定、キーチェーン、ログ、システムサービスのデータが含まれます。</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>システムのデータベースと一時ファイル</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>macOSのサービスが使うデータベースと、アプリごとの一時フォルダです。macOSが管理しています。</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>アプリのデータとコンテナ</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>アプリが保存している設定、データベース、ファイルです。アプリのデータは、アプリをアンインストールするか、アプリの中から削除してください。</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1個のスナップショット</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1個のスナップショット</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>読み取り権限なし</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>少なくとも%1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1台のデバイス</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1台のデバイス</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>システムデータ</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>システムデータの中身を見る</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>スナップショット、バックアップ、開発用ファイル、キャッシュなど。</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>システムデータをスキャン</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>のシステムデータを計測 · うち&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;は解放可能</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>処理中…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>更新中…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>解放できる領域</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>システムデータを計測中…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>計測済み</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOSがこのディスクにあるTime Machineのローカルスナップショットを削除します。ほかのドライブにあるTime Machineバックアップには影響しません。macOSから管理者パスワードの入力を求められます。</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>iOSランタイムがもうインストールされていないシミュレータデバイスを、アプリとデータごと削除します。</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>%1をゴミ箱に入れます。デバイスを再び接続すると、Xcodeが作り直します。</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>フルディスクアクセスが必要</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>読み取り権限なし</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>%1以上</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>大きい順：%1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>macOSが管理</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>システムが管理</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>読み取り権限のあるものだけを集計しています。システムやほかのユーザが所有するフォルダは含まず、複数の行で共有されるフォルダは1回だけ集計します。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;「ストレージ」設定の数値のほうが大きい理由&lt;/b&gt;&lt;br&gt;macOSは、アプリケーション、書類、写真などのカテゴリを除いたディスクの残りをシステムデータとして計算します。この残りには、アプリでは計測できないもの、つまりSpotlightの索引、APFSスナップショット、パージ可能な領域、rootだけがアクセスできるシステムファイルも含まれます。さらに、フルディスクアクセスがないとTarnwickは保護されたフォルダを確認できないため、合計はmacOSの表示より小さくなります。</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>%1？</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Tarnwickを開く</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>スマートスキャン</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>大きなファイルを検索</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwickを終了</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · 空き %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>アップデートを開けませんでした。</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>サーバの応答に時間がかかりすぎました。</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>アップデート情報を読み取れませんでした。</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>サーバが安全でないアドレスに転送しました。</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>転送の回数が多すぎます。</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>アップデートがTarnwickのサーバにありません。</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>アップデートのサイズが想定と異なります。</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>アップデートを保存できませんでした：%1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>アップデートをダウンロードできませんでした：%1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>アップデートを読み取れませんでした。</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>アップデートが公開されているチェックサムと一致しません。</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>アップデートに%1の署名がありません。</translation>
    </message>
</context>
<context>
    <name>fmt</name>
    <message>
        <source>TB</source>
        <extracomment>A terabyte</extracomment>
        <translation>TB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A size; %1: a number; %2: a unit such as “GB”</extracomment>
        <translation>%1&#xa0;%2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>When something was done or opened last</extracomment>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n日前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n週間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%nか月前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n年前</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Stands between the things of a list: names, or a name and what there is to say of it</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A share; %1: a figure. With a no-break space before the sign where the language has one</extracomment>
        <translation>%1%</translation>
    </message>
</context>
</TS>
