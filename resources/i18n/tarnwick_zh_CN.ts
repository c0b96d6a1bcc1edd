<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>密码管理器、输入法、安全与设备管理程序、VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>无法读取设置，因此不清楚有哪些排除规则。未清理任何内容。</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>设置中有排除规则丢失。未清理任何内容。</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 个文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>已将 %1（%2）移到%3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 个正在使用，已跳过</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>已恢复 %Ln 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>无法读取设置，因此不清楚有哪些排除规则。未移动任何内容。</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>临时文件</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>应用和系统在运行过程中产生的临时文件。应用关闭后便不再需要。</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>应用缓存</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>应用为加快加载速度而保留的数据。下次需要时，应用会自动重新生成。</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>浏览器缓存</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>缓存的图像、脚本和网页。绝不会改动登录状态、历史记录、书签和密码。</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>日志与崩溃报告</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>诊断日志和崩溃报告。仅在排查近期问题时有用。</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>文件的预览图像。下次打开文件夹时会重新生成。</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>旧安装包</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>开发者缓存</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>软件包管理器的缓存和构建产物。可以安全移除，但下次构建或安装会变慢。</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>废纸篓</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>你已删除的项目。清空后无法撤销。</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>“快速查看”缓存</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>缩略图缓存</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>“下载”文件夹中的磁盘映像和安装包。请先检查，其中可能有你还需要的安装包。</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>“下载”文件夹中的软件包和光盘映像。请先检查，其中可能有你还需要的文件。</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>安全</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>需检查</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>永久删除</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>“快速查看”缩略图</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>模拟器缓存</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>回收站</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>永久删除</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>个人文件夹属于其他用户。未清理任何内容。</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>已有另一项清理正在进行。</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>无法确定是否有另一项清理正在进行。未清理任何内容。</translation>
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
        <translation>清理前请检查</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>无法撤销</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>已显示详细信息</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 项</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1 正在运行</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>没有可清理的内容了。可随时重新扫描。</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>最大的项目</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>在“%1”中显示</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>再显示 %1 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>还有 %1 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;已跳过 %Ln 个文件&lt;/b&gt;，因为文件正在使用或受到保护。如需移除，请退出正在使用这些文件的应用，然后重新扫描。</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;未清理正在运行的应用的缓存：&lt;/b&gt;%1。如需一并清理，请退出这些应用，然后再次清理。</translation>
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
        <translation>现在可用</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>查看日志</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>已移到%1。所有项目仍可恢复。</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>项目已永久删除。</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>以管理员身份重启</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>部分文件夹需要“完全磁盘访问权限”。</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>部分文件夹可能需要“完全磁盘访问权限”。</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>打开系统设置</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>部分文件属于系统，未作改动。</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>清理这些文件需要管理员权限。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;部分文件需要管理员权限。&lt;/b&gt;如需移除，请以管理员身份重启 Tarnwick，然后再次清理。</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>你没有权限读取其中部分文件夹。</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 已打开。如需一并清理其缓存，请退出该应用。</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>%1 已打开。如需一并清理其缓存，请退出这些应用。</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>尚未扫描</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>查找缓存、临时文件和残留文件。</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>开始智能扫描</translation>
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
        <translation>进行中</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>共 %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>选择推荐项目</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>所选内容</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>显示规则</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>可清理 %1</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>已选择 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · 部分需要管理员权限</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>移到%1</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>永久删除</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>清理 %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;设置中有排除规则丢失。&lt;/b&gt;在你检查规则之前，不会清理任何内容。</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;无法读取设置。&lt;/b&gt;在你检查排除规则之前，不会清理任何内容。</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>正在扫描</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>已检查项目</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>已用时间</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>剩余时间</translation>
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
        <translation>需要完全磁盘访问权限</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>没有读取权限</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>计算可清理的内容，不作任何更改。</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>扫描并列出将清理的内容，询问后再清理。</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>在个人文件夹中查找大文件，不作任何更改。</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>计算系统所占磁盘空间的构成，不作任何更改。</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>仅检查这些类别；清理时会全部清理，包括未经指定绝不清理的类别</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>除设置中的规则外，也绝不改动此规则所指的内容；可重复使用</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>永久删除，无论设置如何</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>不作任何改动；列出将移除和将保留的内容及其原因</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>不询问</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>查找占用磁盘至少 N MB 的文件，无论设置如何</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>向标准输出写入一个 JSON 对象</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>使用“%1”了解某个命令。</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>类别：%1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>没有选项 %1</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>没有命令 %1，只有 %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>多出了一个参数 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>“%1”不接受 --%2</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete 和 --trash 不能同时使用</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only 需要类别的 ID：%1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>没有类别 %1，只有 %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude 需要一条规则</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>规则 %1 不匹配任何内容：路径须以 / 或 ~/ 开头并位于 / 之下，名称不能含有斜杠</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb 需要以 MB 为单位的数字，而不是 %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>未清理任何内容。</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>请在 Tarnwick 的设置中检查规则；或者修复 %1，或者将其连同 %2 一并移除。</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>扫描已取消，未清理任何内容</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>没有可供询问的终端，因此不加 --yes 就不会清理任何内容</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>查找已取消</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>无法写入输出：%1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在扫描</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 个文件</numerusform>
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
            <numerusform>%1 / %2 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在查找</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>扫描已取消</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>正在完成当前项目，然后停止…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 个文件</translation>
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
        <translation>部分内容无法读取：%1。</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>计算已取消</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>文件数</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>评级</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>位置</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>其中 %1 可安全清理：tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 正在运行，因此其数据中有 %2 将会保留。</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>除非指定，否则不清理：%1。如需清理：--only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>永久删除</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>共跳过 %1 项，原因见日志：</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>因正在运行而未清理：%1。</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>扫描用时 %1。未作任何更改。</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>没有可清理的内容。</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>要永久删除 %1 吗？</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>这是试运行：未作任何改动。</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>已释放 %1，移除 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>部分文件属于系统，未作改动。</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>日志：%1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>种类</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>文件</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>仅列出 %2 个文件中最大的 %1 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>个人文件夹中没有占用 %1 或更多空间的文件。</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>已检查 %1，用时 %2。未作任何更改。</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>需要完全磁盘访问权限</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>没有读取权限</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>最大：%1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>可释放的空间</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>由 macOS 管理</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>由系统管理</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>其中 %1 可由你处理。</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>计算用时 %1。未作任何更改。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>移到%1，无论设置如何</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>其中 %1 位于没有%2的卷上，除非使用 --delete，否则将会保留。</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>移到%1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>在清空%1之前，移到其中的内容仍会占用空间。</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>要将 %2 移到%3吗？</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>要永久删除 %1，并将 %2 移到%3吗？</translation>
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
        <translation>已用 %1</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>已用 %1</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>已用</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>磁盘映像</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>未完成的下载</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>压缩文件</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>安装包</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>图像</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>已选择</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>升序</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>降序</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>空间地图</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>找出占用空间的文件</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>个人文件夹中的大文件。去留由你决定。</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>查找大文件</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>个人文件夹 · 超过 %1</translation>
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
        <translation>在“%1”中显示</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>移到%1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>显示</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>搜索文件</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>最大的文件</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1 个月以上未使用</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>已选择 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;，共 %3 · %4 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>正在查找大文件…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>大文件</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>目前最大的文件</translation>
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
        <translation>%1 不是由 Tarnwick 创建的，因此未作改动。如需在登录时打开 Tarnwick，请将其移除。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>无法写入 %1，因此 Tarnwick 不会在登录时打开。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>无法移除 %1，因此 Tarnwick 仍会在登录时打开。</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick 已更新到版本 %1。</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>“%1”几乎已满。运行智能扫描即可释放空间。</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Tarnwick 网站</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>关于 Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>退出 Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智能扫描</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>查找大文件</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>空间地图</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>系统数据</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>隐藏边栏</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>进入全屏幕</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>前置全部窗口</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>使用指南</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>常见问题</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>打开日志文件夹</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>打开菜单</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>View</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>显示边栏</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>退出全屏幕</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>记住我的选择</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>要让 Tarnwick 继续运行吗？</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>关闭窗口后，Tarnwick 可以留在系统托盘中，让定时扫描和空间不足提醒继续有效。你可以通过托盘图标再次打开它。</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>你可以在设置中更改此选项。</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>留在托盘中</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>退出</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>已打开永久删除。这些文件将无法恢复。</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>清空%1的操作无法撤销。其他内容会移到%1。</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>所有内容都会移到%1，以后仍可恢复。</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>清理并删除</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>要清理 %1 吗？</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>其中 %1 将会保留：所在的卷上没有%2。</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>其中 %1 在这些应用打开期间将会保留：%2。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>版本 %1 现已推出。你当前的版本是 %2。</translation>
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
        <translation>正在下载更新…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>在打开的窗口中将 Tarnwick 拖到“应用程序”，即可替换此版本。</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>文件管理器会打开已下载软件包所在的文件夹。请按你平时安装软件包的方式安装。</translation>
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
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>请检查互联网连接，然后重试。</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>正在安装更新…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>已安装版本 %1。</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>重试</translation>
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
        <translation>以后</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>上次扫描：%1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>每周</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智能扫描</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>概览</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>磁盘状况</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>系统文件受保护</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>最近 %1 个月释放的空间</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>查看全部</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>定时扫描</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>可用，共 %1</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>查看</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 可以清理</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>启动磁盘几乎已满</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>让磁盘保持最佳状态</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 可清除</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>应用、文档与系统</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>可释放</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>可用</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>从未扫描</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>上次扫描</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>本月已释放</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>首要建议</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>智能扫描的检查范围</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>系统磁盘</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>废纸篓</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>访达</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>回收站</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>拷贝(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
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
        <translation>已锁定</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>管理员权限</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick 正以管理员身份运行，可以清理 Windows 更新文件。</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>已授予</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>仅在清理 Windows 更新残留文件时需要。</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>以管理员身份重启</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>完全磁盘访问权限</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>清理 Safari 浏览器的缓存和废纸篓时需要。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>系统默认（%1）</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>自动化</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>排除项</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>关于</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>权限与关于</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>将项目移到%1</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>推荐打开。关闭后，文件将被永久删除。</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>大文件标准</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>大于此值的文件会显示在“空间地图”中。</translation>
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
        <translation>超过多久视为旧文件</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>用于“未使用”筛选条件。</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 个月</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 个月</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 个月</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 个月</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>定时扫描</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>如果距上次扫描已超过此间隔，Tarnwick 会在启动时扫描。绝不会自行清理。</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>空间不足提醒</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>可用空间低于 10% 时发出提醒。</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>随 Windows 启动</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>在后台启动 Tarnwick，以便运行定时扫描。</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>在系统托盘中显示 Tarnwick</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>在菜单栏中显示 Tarnwick</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>关闭窗口后，Tarnwick 会在那里继续运行，让定时扫描和空间不足提醒继续有效。</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>每次询问</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>在托盘中继续运行</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>退出 Tarnwick</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>关闭窗口时</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>Tarnwick 会在托盘中继续运行，让定时扫描和空间不足提醒继续有效。</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>主题</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>跟随系统，或始终使用浅色或深色。</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>深色</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>立即重启</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>Tarnwick 会重启以切换语言。</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>受保护的系统位置</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation>——始终跳过。</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>受保护的应用</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation>——绝不清理其数据。正在运行的应用的缓存和打开的文件也会跳过。</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>打开日志</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>每次清理都会写入日志供你查看。Tarnwick 启动时会检查更新。</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>每次清理都会写入日志供你查看。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;设置中有规则丢失。&lt;/b&gt;请检查这里是否包含你的全部规则，并补上缺少的规则。在此之前不会清理任何内容。</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;无法读取设置。&lt;/b&gt;请检查这里是否包含你的全部规则，并补上缺少的规则。在此之前不会清理任何内容，损坏的文件也会保留。</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>绝不改动的内容</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Tarnwick 始终跳过的文件夹和匹配模式。</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>这些是我的规则</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>选择要排除的文件夹</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>规则已保存。损坏的设置文件仍保留在新文件旁。</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>无法写入设置，因此设置保持不变。</translation>
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
        <translation>展开边栏</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智能扫描</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>清理</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>空间地图</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>系统数据</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>清理工具</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>折叠边栏</translation>
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
        <translation>进行中</translation>
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
        <translation>在“访达”中查看</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>在“文件”中显示</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到废纸篓</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>移除快照</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>删除不可用的设备</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>前往“清理”页面</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>打开 Xcode</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>无法打开 %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 个项目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>已将 %1移到废纸篓，另有 %2 个无法移动</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>没有可移动的内容</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>已将 %1移到废纸篓</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>没有可移除的本地快照</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>未移除快照</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>已移除 %2 个快照中的 %1 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>清理模拟器失败：%1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>没有不可用的模拟器设备，无需删除</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>已删除 1 个不可用的模拟器设备</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>已删除 %1 个不可用的模拟器设备</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>未安装 Xcode</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>你的应用缓存</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>应用保存在缓存文件夹中的缓存。其中安全的部分可在“清理”页面中清理。</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>个人文件夹中的隐藏文件夹</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>开发者工具和应用保存在 .npm、.cargo 和 .nvm 等隐藏文件夹中的缓存、设置和已安装的工具。缓存可以安全清除；请保留已安装的工具。</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Flatpak 应用数据</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>各个 Flatpak 应用分别保存的设置、文件和缓存。“flatpak uninstall --delete-data”可移除已卸载应用的数据。</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>你的 Flatpak 应用和运行时</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpak 仅为你安装的应用，以及它们所需的运行时。“flatpak uninstall --user --unused”可移除不再有应用需要的运行时。</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>容器和镜像</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Docker 和 Podman 保存的镜像、容器和卷。“docker system prune”和“podman system prune”可移除没有容器使用的内容。</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>虚拟机</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>虚拟机的磁盘映像，由创建它们的程序管理。请在该程序中删除虚拟机，或使用“virsh undefine --remove-all-storage”。</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>游戏库</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>由 Steam 和其他启动器管理的游戏。请在相应的启动器中卸载游戏。</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>应用数据</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>应用为你保存的数据库和文件，以及你的回收站。请在应用内移除其数据，或在卸载应用后移除。</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>应用的设置</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>应用为你保存的设置；有些应用还会同时保存个人资料和缓存。应用失去设置后会回到初始状态。</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>系统日志（journal）</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>系统及其服务的日志，由 journald 控制在限额之内。“journalctl --vacuum-size=200M”可立即缩减其大小。</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>系统日志文件</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>服务和软件包管理器的日志文件。logrotate 会压缩并删除旧文件。</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>崩溃转储</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>程序崩溃时内存中的内容，保留供报告使用。系统会删除旧的转储；“coredumpctl”可将其列出。</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>已下载的软件包</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>软件包管理器下载且已安装的软件包。“apt-get clean”、“dnf clean packages”、“pacman -Sc”或“zypper clean”可将其移除。</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Snap 软件包和旧修订版</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Snap 软件包，以及 snapd 为便于回退而保留的旧修订版。“snap set system refresh.retain=2”可减少保留的数量。</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>系统的 Flatpak 应用和运行时</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpak 为所有用户安装的应用，以及它们所需的运行时。“flatpak uninstall --unused”可移除不再有应用需要的运行时。</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>内核及其模块</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>系统可以启动的内核及其驱动程序。软件包管理器会保留最新的内核；“apt-get autoremove”可移除旧内核。</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>交换文件和休眠文件</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>磁盘上的空间，用于存放内存容纳不下的数据，并在休眠时存放内存内容。其大小由系统设置决定；“swapon --show”可将其列出。</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>系统快照</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>由 Timeshift 或 Snapper 保存的系统先前状态。快照共享未更改的内容，因此没有单独的大小；“timeshift --delete”或“snapper delete”可移除一个快照。</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>“时间机器”本地快照</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>macOS 每小时在此磁盘上保存的快照，直到“时间机器”可以访问其备份磁盘。空间不足时，macOS 会释放这些快照；现在移除是安全的，但你会失去这些恢复点。</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>iPhone 和 iPad 备份</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>由“访达”创建的设备备份。有了较新的备份或 iCloud 备份后，可在“访达”中删除旧备份（“通用”→“管理备份”）。</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Xcode 设备支持文件</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Xcode 从你连接过的每个 iOS、watchOS 和 tvOS 版本中拷贝的调试符号。下次连接该设备时，Xcode 会再次拷贝。</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>iOS 模拟器设备</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>模拟器设备及其应用数据。移除不可用的设备（其运行时已不存在）是安全的。</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>模拟器运行时与缓存</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Xcode 下载的 iOS、watchOS 和 visionOS 模拟器运行时及其共享缓存。不使用的运行时可在 Xcode › Settings › Components 中移除。</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>应用保存在“资源库”文件夹中的缓存。其中安全的部分可在“清理”页面中清理。</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>开发者工具和应用保存在 .cache、.npm 和 .nvm 等隐藏文件夹中的缓存、设置和已安装的工具。缓存可以安全清除；请保留已安装的工具。</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Xcode 归档</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>你为分发而归档的构建版本。如果可能需要为其符号化崩溃报告，请予以保留。</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Docker 磁盘映像</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>存放 Docker 镜像和容器的虚拟磁盘。可使用“docker system prune”或在 Docker Desktop 的设置中缩减其大小。</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>“邮件”附件</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>你打开后由“邮件”保存的附件。原始附件仍保留在你的邮箱中。</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>“信息”附件</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>对话中的照片、视频和文件。请通过“信息”移除较大的附件（“设置”→“通用”→“储存空间”），以保持对话一致。</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>系统缓存</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>所有用户和系统服务共享的缓存。macOS 会自行缩减。</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>系统日志与诊断</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>统一日志和诊断报告。macOS 会自动轮替和删除。</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>虚拟内存与睡眠映像</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>交换文件和休眠映像。其大小随内存使用情况增减，并在重新启动时重置。</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>macOS 资源与更新</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>已下载的系统资源（字体、词典、语言模型和 AI 模型）以及准备安装的软件更新。</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>其他“资源库”数据</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>“资源库”文件夹中的其他所有内容：偏好设置、钥匙串、日志和系统服务的数据。</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>系统数据库与临时文件</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>macOS 服务使用的数据库和各应用的临时文件夹。由 macOS 管理。</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>应用数据与容器</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>应用为你保存的设置、数据库和文件。如需移除应用的数据，请卸载该应用或在应用内移除。</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 个快照</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 个快照</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>没有读取权限</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 个设备</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 个设备</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>系统数据</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>了解系统数据的构成</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>快照、备份、开发者文件、缓存等。</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>扫描系统数据</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>已计算的系统数据 · 其中 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; 可由你处理</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>正在处理…</translation>
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
        <translation>可释放的空间</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>正在计算系统数据…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>已计算</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS 将移除此磁盘上的“时间机器”本地快照。其他磁盘上的“时间机器”备份不受影响。macOS 会要求你输入管理员密码。</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>iOS 运行时已不再安装的模拟器设备将连同其应用和数据一并删除。</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>%1 的数据将移到废纸篓。再次连接设备时，Xcode 会重新创建这些数据。</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>需要完全磁盘访问权限</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>没有读取权限</translation>
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
        <translation>由系统管理</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>仅计入你有权读取的内容。属于系统或其他用户的文件夹不计入，多行共有的文件夹只计算一次。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;为什么“储存空间”设置显示的数字更大&lt;/b&gt;&lt;br&gt;macOS 将磁盘上除“应用程序”、“文稿”、“照片”和其他类别之外的剩余部分都算作“系统数据”。其中还包括任何应用都无法计算的内容：“聚焦”索引、APFS 快照、可清除空间，以及仅 root 用户可访问的系统文件。如果没有“完全磁盘访问权限”，Tarnwick 也无法看到受保护的文件夹，因此其总计低于 macOS 报告的数字。</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>要%1吗？</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>菜单</translation>
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
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>打开 Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智能扫描</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>查找大文件</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>退出 Tarnwick</translation>
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
        <translation>无法打开更新。</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>服务器响应时间过长。</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>无法读取更新信息。</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>服务器重定向到了不安全的地址。</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>重定向次数过多。</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>该更新不在 Tarnwick 的服务器上。</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>更新的大小不符合预期。</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>无法保存更新：%1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>无法下载更新：%1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>无法读取更新。</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>更新与已发布的校验和不一致。</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>更新并非由“%1”签名。</translation>
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
            <numerusform>%n 周前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n 个月前</numerusform>
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
