<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>密碼管理程式、輸入法、安全防護與裝置管理程式、VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>無法讀取設定，因此不清楚有哪些排除規則。未清理任何項目。</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>設定中有排除規則遺失。未清理任何項目。</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 個檔案</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 個檔案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>已將 %1（%2）移到%3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 個正在使用，已略過</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>已還原 %Ln 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>無法讀取設定，因此不清楚有哪些排除規則。未移動任何項目。</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>暫存檔</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>應用程式和系統在運作時產生的暫存檔。應用程式關閉後便不再需要。</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>應用程式快取</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>應用程式為加快載入速度而保留的資料。下次需要時，應用程式會自動重新產生。</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>瀏覽器快取</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>快取的影像、指令碼和網頁。絕不會更動登入狀態、瀏覽記錄、書籤和密碼。</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>記錄檔與當機報告</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>診斷記錄檔和當機報告。只有在排解近期問題時才有用。</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>檔案的預覽影像。下次開啟資料夾時會重新產生。</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>舊安裝檔</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>開發者快取</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>套件管理程式的快取和建置產物。可以安全移除，但下次建置或安裝會比較慢。</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>垃圾桶</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>您已刪除的項目。清空後無法還原。</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>「快速查看」快取</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>縮圖快取</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>「下載項目」資料夾中的磁碟映像檔和安裝套件。請先檢查，其中可能有您還需要的安裝檔。</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>「下載」資料夾中的軟體套件和光碟映像檔。請先檢查，其中可能有您還需要的檔案。</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>安全</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>需檢查</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>永久刪除</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>縮圖</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>「快速查看」縮圖</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>模擬器快取</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>垃圾桶</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>永久刪除</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>個人資料夾屬於其他使用者。未清理任何項目。</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>已有另一項清理正在進行。</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>無法確定是否有另一項清理正在進行。未清理任何項目。</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>可安全清理</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>清理前請檢查</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>無法還原</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>已顯示詳細資訊</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 項</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1 正在執行</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>沒有可清理的項目了。可隨時重新掃描。</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>最大的項目</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>在「%1」中顯示</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>再顯示 %1 項</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>還有 %1 項</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;已略過 %Ln 個檔案&lt;/b&gt;，因為檔案正在使用或受到保護。如要移除，請結束正在使用這些檔案的應用程式，然後重新掃描。</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;未清理正在執行的應用程式的快取：&lt;/b&gt;%1。如要一併清理，請結束這些應用程式，然後再次清理。</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>清理完成</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>清理前可用</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>目前可用</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>檢視記錄檔</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>已移到%1。所有項目仍可還原。</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>項目已永久刪除。</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>以管理者身分重新啟動</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>部分資料夾需要「完全取用磁碟」權限。</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>部分資料夾可能需要「完全取用磁碟」權限。</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>開啟系統設定</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>部分檔案屬於系統，未予更動。</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>清理這些檔案需要管理者權限。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;部分檔案需要管理者權限。&lt;/b&gt;如要移除，請以管理者身分重新啟動 Tarnwick，然後再次清理。</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>您沒有權限讀取其中部分資料夾。</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 已開啟。如要一併清理其快取，請結束該應用程式。</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>%1 已開啟。如要一併清理其快取，請結束這些應用程式。</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>尚未掃描</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>尋找快取、暫存檔和殘留檔案。</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>開始智慧掃描</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>正在清理</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>進行中</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>共 %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>選取建議項目</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>重新掃描</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>選取項目</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>顯示規則</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>可清理 %1</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>已選取 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · 部分需要管理者權限</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>移到%1</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>永久刪除</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>清理 %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;設定中有排除規則遺失。&lt;/b&gt;在您檢查規則之前，不會清理任何項目。</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;無法讀取設定。&lt;/b&gt;在您檢查排除規則之前，不會清理任何項目。</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>正在掃描</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>已檢查項目</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>已用時間</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>剩餘時間</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>已找到</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>需要「完全取用磁碟」權限</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>沒有讀取權限</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>計算可清理的項目，不做任何更動。</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>掃描並列出將清理的項目，詢問後再清理。</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>在個人資料夾中尋找大型檔案，不做任何更動。</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>計算系統所佔磁碟空間的組成，不做任何更動。</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>僅檢查這些類別；清理時會全部清理，包括未經指定絕不清理的類別</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>除設定中的規則外，也絕不更動此規則所指的項目；可重複使用</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>永久刪除，不論設定為何</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>不做任何更動；列出將移除和將保留的項目及其原因</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>不詢問</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>尋找佔用磁碟至少 N MB 的檔案，不論設定為何</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>將一個 JSON 物件寫入標準輸出</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>顯示此說明</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>顯示版本</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>指令：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>選項：</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>使用「%1」了解某個指令。</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>類別：%1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>沒有選項 %1</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>沒有指令 %1，只有 %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>多出了一個引數 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>「%1」不接受 --%2</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete 和 --trash 不能同時使用</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only 需要類別的 ID：%1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>沒有類別 %1，只有 %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude 需要一條規則</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>規則 %1 不符合任何項目：路徑須以 / 或 ~/ 開頭並位於 / 之下，名稱不能含有斜線</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb 需要以 MB 為單位的數字，而不是 %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>未清理任何項目。</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>請在 Tarnwick 的設定中檢查規則；或者修復 %1，或者將其連同 %2 一併移除。</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>掃描已取消，未清理任何項目</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>沒有可供詢問的終端機，因此不加 --yes 就不會清理任何項目</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>搜尋已取消</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>無法寫入輸出：%1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在掃描</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在清理</translation>
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
            <numerusform>%1 / %2 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在搜尋</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>掃描已取消</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>正在完成目前項目，然後停止…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 個檔案</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>部分項目無法讀取：%1。</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>計算已取消</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>類別</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>檔案數</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>評級</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>位置</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>總計</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>其中 %1 可安全清理：tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 正在執行，因此其資料中有 %2 將會保留。</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>除非指定，否則不清理：%1。如要清理：--only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>永久刪除</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>共略過 %1 項，原因請見記錄檔：</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>因正在執行而未清理：%1。</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>掃描耗時 %1。未做任何更動。</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>沒有可清理的項目。</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>要永久刪除 %1 嗎？</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>這是模擬執行：未做任何更動。</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>已釋放 %1，移除 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>部分檔案屬於系統，未予更動。</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>記錄檔：%1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>檔案</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>僅列出 %2 個檔案中最大的 %1 個。</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>個人資料夾中沒有佔用 %1 或更多空間的檔案。</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>已檢查 %1，耗時 %2。未做任何更動。</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>需要「完全取用磁碟」權限</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>沒有讀取權限</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>最大：%1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>可釋放的空間</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>由 macOS 管理</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>由系統管理</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>其中 %1 可由您處理。</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>計算耗時 %1。未做任何更動。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>移到%1，不論設定為何</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>其中 %1 位於沒有%2的磁碟區上，除非使用 --delete，否則將會保留。</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>移到%1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>在清空%1之前，移到其中的項目仍會佔用空間。</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>要將 %2 移到%3嗎？</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>要永久刪除 %1，並將 %2 移到%3嗎？</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>y 是</translation>
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
        <translation>可清理 %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>已使用 %1</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>已使用 %1</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>已使用</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>磁碟映像檔</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>未完成的下載</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>壓縮檔</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>安裝檔</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>影像</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>備份</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>檔案</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>已選取</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>遞增</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>遞減</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>空間地圖</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>重新掃描</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>找出佔用空間的檔案</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>個人資料夾中的大型檔案。去留由您決定。</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>尋找大型檔案</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>個人資料夾 · 超過 %1</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>全部</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>在「%1」中顯示</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>移到%1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>搜尋檔案</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>最大的檔案</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1 個月以上未使用</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>已選取 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;，共 %3 · %4 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>正在尋找大型檔案…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>大型檔案</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>目前最大的檔案</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>排序方式</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 不是由 Tarnwick 建立的，因此未予更動。如要在登入時開啟 Tarnwick，請將其移除。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>無法寫入 %1，因此 Tarnwick 不會在登入時開啟。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>無法移除 %1，因此 Tarnwick 仍會在登入時開啟。</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick 已更新至版本 %1。</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>「%1」幾乎已滿。執行智慧掃描即可釋放空間。</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Tarnwick 網站</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>關於 Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>結束 Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智慧掃描</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>尋找大型檔案</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>關閉視窗</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷貝</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>空間地圖</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>系統資料</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>隱藏側邊欄</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>進入全螢幕</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>縮到最小</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>將所有視窗移至最前</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>使用指南</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>常見問題</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>開啟記錄檔資料夾</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>開啟選單</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>View</source>
        <translation>顯示方式</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>輔助說明</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>顯示側邊欄</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>離開全螢幕</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>檢查更新</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 Tarnwick 作者</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>記住我的選擇</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>要讓 Tarnwick 繼續執行嗎？</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>關閉視窗後，Tarnwick 可以留在系統匣中，讓排程掃描和空間不足提醒繼續運作。您可以透過系統匣圖示再次開啟它。</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>您可以在設定中更改此選項。</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>留在系統匣</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>結束</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>已開啟永久刪除。這些檔案將無法還原。</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>清空%1的動作無法還原。其他項目會移到%1。</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>所有項目都會移到%1，之後仍可還原。</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>清理並刪除</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>要清理 %1 嗎？</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>其中 %1 將會保留：所在的磁碟區上沒有%2。</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>其中 %1 在這些應用程式開啟期間將會保留：%2。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>還原</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>版本 %1 現已推出。您目前的版本是 %2。</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>有可用的更新</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1，共 %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>正在下載更新…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>在開啟的視窗中將 Tarnwick 拖到「應用程式」，即可取代此版本。</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>檔案管理程式會開啟已下載套件所在的資料夾。請依您平時安裝套件的方式安裝。</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Tarnwick 已是最新版本</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>版本 %1 是最新版本。</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>無法檢查更新</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>請檢查網際網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>正在安裝更新…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在檢查更新…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>已安裝版本 %1。</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>重試</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>稍後</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>上次掃描：%1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>每週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智慧掃描</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>概覽</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>重新掃描</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>磁碟狀況</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>系統檔案受保護</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>最近 %1 個月釋放的空間</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>檢視全部</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>排程掃描</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>可用，共 %1</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>檢視</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>掃描</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 可以清理</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>啟動磁碟幾乎已滿</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>讓磁碟保持最佳狀態</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 可清除</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>應用程式、文件與系統</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>可釋放</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>可用</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>從未掃描</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>上次掃描</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>本月已釋放</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>首要建議</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>智慧掃描的檢查範圍</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>系統磁碟</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>垃圾桶</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>垃圾桶</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>還原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>拷貝(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
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
        <translation>已鎖定</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>管理者權限</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick 正以管理者身分執行，可以清理 Windows Update 檔案。</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>已授予</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>只有在清理 Windows Update 殘留檔案時才需要。</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>以管理者身分重新啟動</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>完全取用磁碟</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>清理 Safari 的快取和垃圾桶時需要。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>開啟設定</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>系統預設（%1）</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>自動化</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>排除項目</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>關於</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>權限與關於</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>將項目移到%1</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>建議開啟。關閉後，檔案會永久刪除。</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>大型檔案標準</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>大於此值的檔案會顯示在「空間地圖」中。</translation>
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
        <translation>超過多久視為舊檔案</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>用於「未使用」篩選條件。</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 個月</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 個月</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 個月</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 個月</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>排程掃描</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>如果距離上次掃描已超過此間隔，Tarnwick 會在啟動時掃描。絕不會自行清理。</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>每週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>空間不足提醒</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>可用空間低於 10% 時發出提醒。</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>登入時開啟</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>隨 Windows 啟動</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>在背景啟動 Tarnwick，以便執行排程掃描。</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>在系統匣中顯示 Tarnwick</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>在選單列中顯示 Tarnwick</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>關閉視窗後，Tarnwick 會在那裡繼續執行，讓排程掃描和空間不足提醒繼續運作。</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>每次詢問</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>在系統匣中繼續執行</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>結束 Tarnwick</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>關閉視窗時</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>Tarnwick 會在系統匣中繼續執行，讓排程掃描和空間不足提醒繼續運作。</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>主題</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>跟隨系統，或一律使用淺色或深色。</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>跟隨系統</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>深色</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>立即重新啟動</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>Tarnwick 會重新啟動以切換語言。</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>受保護的系統位置</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation>——一律略過。</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>受保護的應用程式</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation>——絕不清理其資料。正在執行的應用程式的快取和開啟的檔案也會略過。</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>開啟記錄檔</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>每次清理都會寫入記錄檔供您檢視。Tarnwick 啟動時會檢查更新。</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>每次清理都會寫入記錄檔供您檢視。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;設定中有規則遺失。&lt;/b&gt;請檢查這裡是否包含您的全部規則，並補上缺少的規則。在此之前不會清理任何項目。</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;無法讀取設定。&lt;/b&gt;請檢查這裡是否包含您的全部規則，並補上缺少的規則。在此之前不會清理任何項目，損毀的檔案也會保留。</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>加入資料夾</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>絕不更動的項目</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Tarnwick 一律略過的資料夾和比對模式。</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>這些是我的規則</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>選擇要排除的資料夾</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>規則已儲存。損毀的設定檔仍保留在新檔案旁。</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>無法寫入設定，因此設定維持不變。</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>移除 %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%1 可用，共 %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>%1 可用</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>展開側邊欄</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智慧掃描</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>空間地圖</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>系統資料</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>清理工具</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>收合側邊欄</translation>
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
        <translation>等待中</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>進行中</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>已完成</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>在「Finder」中檢視</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>在「檔案」中顯示</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到垃圾桶</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>移除快照</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>刪除無法使用的裝置</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>前往「清理」頁面</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>開啟 Xcode</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>無法開啟 %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 個項目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 個項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>已將 %1移到垃圾桶，另有 %2 個無法移動</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>沒有可移動的項目</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>已將 %1移到垃圾桶</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>沒有可移除的本機快照</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>未移除快照</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>已移除 %2 個快照中的 %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>清理模擬器失敗：%1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>沒有無法使用的模擬器裝置，無須刪除</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>已刪除 1 個無法使用的模擬器裝置</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>已刪除 %1 個無法使用的模擬器裝置</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>未安裝 Xcode</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>您的應用程式快取</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>應用程式保存在快取資料夾中的快取。其中安全的部分可在「清理」頁面中清理。</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>個人資料夾中的隱藏資料夾</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>開發者工具和應用程式保存在 .npm、.cargo 和 .nvm 等隱藏資料夾中的快取、設定和已安裝的工具。快取可以安全清除；請保留已安裝的工具。</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Flatpak 應用程式資料</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>各個 Flatpak 應用程式分別保存的設定、檔案和快取。「flatpak uninstall --delete-data」可移除已解除安裝的應用程式所留下的資料。</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>您的 Flatpak 應用程式和執行環境</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpak 只為您安裝的應用程式，以及它們所需的執行環境。「flatpak uninstall --user --unused」可移除不再有應用程式需要的執行環境。</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>容器和映像檔</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Docker 和 Podman 保存的映像檔、容器和儲存區。「docker system prune」和「podman system prune」可移除沒有容器使用的項目。</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>虛擬機器</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>虛擬機器的磁碟映像檔，由建立它們的程式管理。請在該程式中刪除虛擬機器，或使用「virsh undefine --remove-all-storage」。</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>遊戲庫</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>由 Steam 和其他啟動器管理的遊戲。請在對應的啟動器中解除安裝遊戲。</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>應用程式資料</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>應用程式為您保存的資料庫和檔案，以及您的垃圾桶。請在應用程式內移除其資料，或在解除安裝後移除。</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>應用程式的設定</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>應用程式為您保存的設定；有些應用程式還會同時保存設定檔和快取。應用程式失去設定後會回到初始狀態。</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>系統日誌（journal）</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>系統及其服務的日誌，由 journald 控制在上限之內。「journalctl --vacuum-size=200M」可立即縮減其大小。</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>系統記錄檔</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>服務和套件管理程式的記錄檔。logrotate 會壓縮並刪除舊檔案。</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>當機傾印檔</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>程式當機時記憶體中的內容，保留供報告使用。系統會刪除舊的傾印檔；「coredumpctl」可將其列出。</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>已下載的套件</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>套件管理程式下載且已安裝的套件。「apt-get clean」、「dnf clean packages」、「pacman -Sc」或「zypper clean」可將其移除。</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Snap 套件和舊修訂版</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Snap 套件，以及 snapd 為便於回復而保留的舊修訂版。「snap set system refresh.retain=2」可減少保留的數量。</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>系統的 Flatpak 應用程式和執行環境</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpak 為所有使用者安裝的應用程式，以及它們所需的執行環境。「flatpak uninstall --unused」可移除不再有應用程式需要的執行環境。</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>核心及其模組</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>系統可以啟動的核心及其驅動程式。套件管理程式會保留最新的核心；「apt-get autoremove」可移除舊核心。</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>置換檔和休眠檔</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>磁碟上的空間，用於存放記憶體容納不下的資料，並在休眠時存放記憶體內容。其大小由系統設定決定；「swapon --show」可將其列出。</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>系統快照</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>由 Timeshift 或 Snapper 保存的系統先前狀態。快照共用未變更的內容，因此沒有個別的大小；「timeshift --delete」或「snapper delete」可移除一個快照。</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>「時光機」本機快照</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>macOS 每小時在此磁碟上保存的快照，直到「時光機」可以取用其備份磁碟。空間不足時，macOS 會釋放這些快照；現在移除是安全的，但您會失去這些還原點。</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>iPhone 和 iPad 備份</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>由 Finder 製作的裝置備份。有了較新的備份或 iCloud 備份後，可在 Finder 中刪除舊備份（「一般」→「管理備份」）。</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Xcode 裝置支援檔案</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Xcode 從您連接過的每個 iOS、watchOS 和 tvOS 版本中拷貝的除錯符號。下次連接該裝置時，Xcode 會再次拷貝。</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>iOS 模擬器裝置</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>模擬器裝置及其應用程式資料。移除無法使用的裝置（其執行環境已不存在）是安全的。</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>模擬器執行環境與快取</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Xcode 下載的 iOS、watchOS 和 visionOS 模擬器執行環境及其共用快取。不使用的執行環境可在 Xcode › Settings › Components 中移除。</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>應用程式保存在「資源庫」資料夾中的快取。其中安全的部分可在「清理」頁面中清理。</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>開發者工具和應用程式保存在 .cache、.npm 和 .nvm 等隱藏資料夾中的快取、設定和已安裝的工具。快取可以安全清除；請保留已安裝的工具。</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Xcode 封存</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>您為發佈而封存的建置版本。如果可能需要為其符號化當機報告，請予以保留。</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Docker 磁碟映像檔</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>存放 Docker 映像檔和容器的虛擬磁碟。可使用「docker system prune」或在 Docker Desktop 的設定中縮減其大小。</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>「郵件」附件</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>您開啟後由「郵件」儲存的附件。原始附件仍保留在您的信箱中。</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>「訊息」附件</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>對話中的照片、影片和檔案。請透過「訊息」移除較大的附件（「設定」→「一般」→「儲存空間」），以維持對話一致。</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>系統快取</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>所有使用者和系統服務共用的快取。macOS 會自行縮減。</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>系統記錄與診斷</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>統一記錄和診斷報告。macOS 會自動輪替和刪除。</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>虛擬記憶體與睡眠映像檔</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>置換檔和休眠映像檔。其大小隨記憶體使用情況增減，並在重新開機時重設。</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>macOS 資源與更新</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>已下載的系統資源（字體、辭典、語言模型和 AI 模型）以及準備安裝的軟體更新。</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>其他「資源庫」資料</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>「資源庫」資料夾中的其他所有內容：偏好設定、鑰匙圈、記錄檔和系統服務的資料。</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>系統資料庫與暫存檔</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>macOS 服務使用的資料庫和各應用程式的暫存資料夾。由 macOS 管理。</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>應用程式資料與容器</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>應用程式為您保存的設定、資料庫和檔案。如要移除應用程式的資料，請解除安裝該應用程式或在應用程式內移除。</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 個快照</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 個快照</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>沒有讀取權限</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 個裝置</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 個裝置</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>系統資料</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>重新掃描</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>了解系統資料的組成</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>快照、備份、開發者檔案、快取等。</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>掃描系統資料</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>已計算的系統資料 · 其中 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; 可由您處理</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>正在處理…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>正在更新…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>可釋放的空間</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>正在計算系統資料…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>已計算</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS 將移除此磁碟上的「時光機」本機快照。其他磁碟上的「時光機」備份不受影響。macOS 會要求您輸入管理者密碼。</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>iOS 執行環境已不再安裝的模擬器裝置，將連同其應用程式和資料一併刪除。</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>%1 的資料將移到垃圾桶。再次連接裝置時，Xcode 會重新建立這些資料。</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>需要「完全取用磁碟」權限</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>沒有讀取權限</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>最大：%1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>由 macOS 管理</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>由系統管理</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>只計入您有權讀取的內容。屬於系統或其他使用者的資料夾不計入，多列共有的資料夾只計算一次。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;為何「儲存空間」設定顯示的數字較大&lt;/b&gt;&lt;br&gt;macOS 將磁碟上除「應用程式」、「文件」、「照片」和其他類別之外的剩餘部分都算作「系統資料」。其中還包括任何應用程式都無法計算的項目：Spotlight 索引、APFS 快照、可清除的空間，以及只有 root 使用者可取用的系統檔案。若沒有「完全取用磁碟」權限，Tarnwick 也無法看到受保護的資料夾，因此其總計低於 macOS 回報的數字。</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>要%1嗎？</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>選單</translation>
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
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>開啟 Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智慧掃描</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>尋找大型檔案</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>結束 Tarnwick</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · %2 可用</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>無法開啟更新。</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>伺服器回應時間過久。</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>無法讀取更新資訊。</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>伺服器重新導向到不安全的位址。</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>重新導向次數過多。</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>此更新不在 Tarnwick 的伺服器上。</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>更新的大小不符合預期。</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>無法儲存更新：%1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>無法下載更新：%1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>無法讀取更新。</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>更新與已發佈的總和檢查碼不符。</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>更新並非由「%1」簽署。</translation>
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
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n 天前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n 週前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n 個月前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n 年前</numerusform>
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
