<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>암호 관리자, 입력기, 보안 및 기기 관리 에이전트, VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>설정을 읽을 수 없어 제외 규칙을 확인하지 못했습니다. 아무것도 정리하지 않았습니다.</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>설정에서 제외 규칙이 사라졌습니다. 아무것도 정리하지 않았습니다.</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>파일 1개</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>파일 %1개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1(%2)를 %3으로 이동했습니다</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · 사용 중인 %1개 건너뜀</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>파일 %Ln개를 복원했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>설정을 읽을 수 없어 제외 규칙을 확인하지 못했습니다. 아무것도 이동하지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>임시 파일</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>앱과 시스템이 작업하면서 만드는 임시 파일입니다. 앱을 닫으면 더 이상 필요하지 않습니다.</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>앱 캐시</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>앱이 더 빨리 로드되도록 보관하는 데이터입니다. 다음에 필요할 때 앱이 자동으로 다시 만듭니다.</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>브라우저 캐시</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>캐시된 이미지, 스크립트, 페이지입니다. 로그인 정보, 방문 기록, 책갈피, 암호는 절대 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>로그 및 충돌 보고서</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>진단 로그와 충돌 보고서입니다. 최근에 생긴 문제를 해결할 때만 유용합니다.</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>파일의 미리보기 이미지입니다. 다음에 폴더를 열 때 다시 만들어집니다.</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>오래된 설치 프로그램</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>개발자 캐시</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>패키지 관리자 캐시와 빌드 결과물입니다. 제거해도 안전하지만 다음 빌드나 설치가 느려집니다.</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>휴지통</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>이미 삭제한 항목입니다. 비우면 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>훑어보기 캐시</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>썸네일 캐시</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>‘다운로드’ 폴더에 있는 디스크 이미지와 설치 패키지입니다. 아직 필요한 설치 프로그램이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>‘다운로드’ 폴더에 있는 소프트웨어 패키지와 디스크 이미지입니다. 아직 필요한 것이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>안전</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>확인 필요</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>영구 삭제</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>썸네일</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>훑어보기 썸네일</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>시뮬레이터 캐시</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>휴지통</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>영구 삭제</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>홈 폴더의 소유자가 다른 사용자입니다. 아무것도 정리하지 않았습니다.</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>다른 정리 작업이 이미 진행 중입니다.</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>다른 정리 작업이 진행 중인지 확인할 수 없습니다. 아무것도 정리하지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>안전하게 정리 가능</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>정리 전 확인 필요</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>되돌릴 수 없음</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>세부사항 표시 중</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>전체 선택</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>항목 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1 앱 실행 중</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>더 이상 정리할 항목이 없습니다. 언제든지 다시 스캔할 수 있습니다.</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>가장 큰 항목</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>%1에서 보기</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>%1개 더 보기</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>그 외 항목 %1개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>사용 중이거나 보호되어 있어 &lt;b&gt;파일 %Ln개를 건너뛰었습니다&lt;/b&gt;. 제거하려면 해당 파일을 사용하는 앱을 종료하고 다시 스캔하십시오.</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>예: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;실행 중인 앱의 캐시는 그대로 두었습니다.&lt;/b&gt; 해당 앱: %1. 포함하려면 앱을 종료하고 다시 정리하십시오.</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>정리 완료</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>정리 전 여유 공간</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>현재 여유 공간</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>로그 보기</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>완료</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>%1으로 이동했습니다. 아직 모두 복원할 수 있습니다.</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>항목을 영구 삭제했습니다.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>관리자로 다시 시작</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>일부 폴더에는 전체 디스크 접근 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>일부 폴더에는 전체 디스크 접근 권한이 필요할 수 있습니다.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>시스템 설정 열기</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>시스템에 속한 일부 파일은 그대로 두었습니다.</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>이 파일에는 관리자 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;일부 파일에는 관리자 권한이 필요합니다.&lt;/b&gt; 제거하려면 Tarnwick을 관리자로 다시 시작한 후 다시 정리하십시오.</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>이 폴더 중 일부를 읽을 권한이 없습니다.</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 앱이 열려 있습니다. 종료하면 캐시도 포함됩니다.</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>다음 앱이 열려 있습니다: %1. 종료하면 캐시도 포함됩니다.</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>아직 스캔하지 않음</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>캐시, 임시 파일, 남은 파일을 찾습니다.</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>스마트 스캔 시작</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>정리</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>정리 중</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>진행 중</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>전체 %1 중</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>추천 항목 선택</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>다시 스캔</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>선택 항목</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>규칙 보기</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>%1를 정리할 수 있습니다</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; 선택됨%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · 일부는 관리자 권한 필요</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>%1으로 이동합니다</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>영구 삭제합니다</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>%1 정리</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;설정에서 제외 규칙이 사라졌습니다.&lt;/b&gt; 규칙을 확인할 때까지 아무것도 정리하지 않습니다.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;설정을 읽을 수 없습니다.&lt;/b&gt; 제외 규칙을 확인할 때까지 아무것도 정리하지 않습니다.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>스캔 중</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>확인한 항목</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>경과 시간</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>남은 시간</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>찾음</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>전체 디스크 접근 권한 필요</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>읽기 권한 없음</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>정리할 수 있는 용량을 측정합니다. 아무것도 변경하지 않습니다.</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>스캔하여 정리할 항목을 보여 주고, 확인을 받은 후 정리합니다.</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>홈 폴더에서 큰 파일을 검색합니다. 아무것도 변경하지 않습니다.</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>시스템이 차지하는 디스크 공간의 내역을 측정합니다. 아무것도 변경하지 않습니다.</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>이 카테고리만 확인합니다. 정리할 때는 따로 지정하지 않으면 절대 정리하지 않는 카테고리까지 모두 정리합니다</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>설정의 규칙에 더해, 이 규칙에 해당하는 항목은 절대 건드리지 않습니다. 여러 번 지정할 수 있습니다</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>설정과 관계없이 영구 삭제합니다</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>아무것도 건드리지 않고, 정리될 항목과 남을 항목을 이유와 함께 표시합니다</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>묻지 않습니다</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>설정과 관계없이, 디스크에서 지정한 메가바이트 이상을 차지하는 파일을 찾습니다</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>표준 출력에 JSON 객체 하나를 출력합니다</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>이 도움말을 표시합니다</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>버전을 표시합니다</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>명령:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>각 명령에 대해 알아보려면 &quot;%1&quot; 명령을 실행하십시오.</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>카테고리: %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>%1 옵션이 없습니다</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>%1 명령이 없습니다. 사용할 수 있는 명령: %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>불필요한 인수: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>&quot;%1&quot; 명령에는 --%2 옵션을 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete와 --trash는 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only에는 카테고리 ID를 지정해야 합니다: %1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>%1 카테고리가 없습니다. 사용할 수 있는 카테고리: %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude에는 규칙을 지정해야 합니다</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>규칙 %1에 해당하는 항목이 있을 수 없습니다. 경로는 / 또는 ~/로 시작하고 / 아래에 있어야 하며, 이름에는 슬래시를 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb에는 메가바이트 수를 지정해야 합니다(%1 사용 불가)</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>아무것도 정리하지 않았습니다.</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Tarnwick 설정에서 규칙을 확인하거나, %1 파일을 고치거나, %2 파일과 함께 제거하십시오.</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>스캔이 취소되었으며 아무것도 정리하지 않았습니다</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>확인을 받을 터미널이 없으므로 --yes 없이는 아무것도 정리하지 않습니다</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>검색이 취소되었습니다</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>출력을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>스캔 중</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>파일 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>정리 중</translation>
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
            <numerusform>파일 %1 / %2개</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>검색 중</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>스캔이 취소되었습니다</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>취소하는 중…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>이 항목을 마친 후 중단합니다…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>파일 1개</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1밀리초</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1초</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>일부를 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>측정이 취소되었습니다</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>크기</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>파일 수</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>등급</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>위치</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>합계</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>이 중 %1는 안전하게 정리할 수 있습니다: tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 앱이 실행 중이므로 해당 데이터 중 %2는 남습니다.</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>지정하지 않으면 그대로 두는 항목: %1. 정리하려면: --only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>영구 삭제</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>건너뛴 파일(총 %1개, 이유는 로그 참조):</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>실행 중이어서 그대로 둔 앱: %1.</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>%1 동안 스캔했습니다. 아무것도 변경하지 않았습니다.</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>정리할 항목이 없습니다.</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>%1를 영구 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>시험 실행이었으며 아무것도 건드리지 않았습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>%1를 확보하고 %2를 제거했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>시스템에 속한 일부 파일은 그대로 두었습니다.</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>로그: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>종류</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>마지막 사용</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>파일</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>파일 %2개 중 가장 큰 %1개를 표시합니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>홈 폴더에 %1 이상인 파일이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>%2 동안 %1를 검색했습니다. 아무것도 변경하지 않았습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>%1 이상</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>전체 디스크 접근 권한 필요</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>읽기 권한 없음</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>가장 큰 폴더: %1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>확보할 수 있는 공간</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>macOS에서 관리</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>시스템에서 관리</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>이 중 %1를 확보할 수 있습니다.</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>%1 동안 측정했습니다. 아무것도 변경하지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>설정과 관계없이 %1으로 이동합니다</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>이 중 %1는 %2이 없는 볼륨에 있으므로, --delete를 지정하지 않으면 남습니다.</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>%1으로 이동</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>%1으로 이동한 항목은 %1을 비울 때까지 공간을 차지합니다.</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>%2를 %3으로 이동하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>%1를 영구 삭제하고 %2를 %3으로 이동하시겠습니까?</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>y 예 네</translation>
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
        <translation>%1 정리 가능</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>%1 사용됨</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>%1 사용됨</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>사용됨</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>디스크 이미지</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>미완료 다운로드</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>아카이브</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>설치 프로그램</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>백업</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>파일</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>선택</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>오름차순</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>내림차순</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>공간 지도</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>다시 스캔</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>공간을 차지하는 파일 찾기</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>홈 폴더에 있는 큰 파일입니다. 무엇을 지울지는 직접 결정합니다.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>큰 파일 찾기</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>홈 폴더 · %1 초과</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>전체</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>미사용</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>%1에서 보기</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>%1으로 이동</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>보기</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>파일 검색</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>가장 큰 파일</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1개월 이상 미사용</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>%3 중 &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; 선택됨 · 파일 %4개</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>큰 파일을 찾는 중…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>큰 파일</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>지금까지 가장 큰 파일</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>정렬 기준</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 파일은 Tarnwick에서 만든 것이 아니어서 그대로 두었습니다. 로그인할 때 Tarnwick을 열려면 이 파일을 제거하십시오.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>%1 파일에 쓸 수 없어 로그인할 때 Tarnwick이 열리지 않습니다.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>%1 파일을 제거할 수 없어 로그인할 때 Tarnwick이 계속 열립니다.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick이 %1 버전으로 업데이트되었습니다.</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>%1에 남은 공간이 거의 없습니다. 스마트 스캔을 실행하여 공간을 확보하십시오.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Tarnwick 웹사이트</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>Tarnwick에 관하여</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick 종료</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>스마트 스캔</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>큰 파일 찾기</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>창 닫기</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>전체 선택</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>정리</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>공간 지도</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>시스템 데이터</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>사이드바 가리기</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>전체 화면 시작</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>모두 앞으로 가져오기</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>가이드</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>자주 묻는 질문</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>로그 폴더 열기</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>메뉴 열기</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>키보드 단축키</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>파일</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>창</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>사이드바 보기</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>전체 화면 종료</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>업데이트 확인</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 Tarnwick 제작자</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>선택 기억하기</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>Tarnwick을 계속 실행하시겠습니까?</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>창을 닫아도 Tarnwick이 시스템 트레이에 남아 예약 스캔과 공간 부족 알림이 계속 작동할 수 있습니다. 트레이 아이콘에서 다시 열 수 있습니다.</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>설정에서 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>트레이에 유지</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>종료</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>영구 삭제가 켜져 있습니다. 이 파일은 복구할 수 없습니다.</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>%1 비우기는 되돌릴 수 없습니다. 나머지는 모두 %1으로 이동합니다.</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>모두 %1으로 이동하므로 나중에 복원할 수 있습니다.</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>정리하고 삭제</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>정리</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>%1를 정리하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>이 중 %1는 해당 볼륨에 %2이 없어 남습니다.</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>이 중 %1는 다음 앱이 열려 있는 동안 남습니다: %2.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>키보드 단축키</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>%1 버전을 사용할 수 있습니다. 현재 버전은 %2입니다.</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>업데이트를 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>업데이트를 다운로드하는 중…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>열리는 창에서 Tarnwick을 ‘응용 프로그램’으로 드래그하면 이 버전이 대치됩니다.</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>다운로드한 패키지가 있는 폴더가 파일 관리자에서 열립니다. 평소 패키지를 설치하는 방법으로 설치하십시오.</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Tarnwick이 최신 상태입니다</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>%1 버전이 최신 버전입니다.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>업데이트를 확인할 수 없습니다</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>인터넷 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>업데이트를 설치하는 중…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>업데이트를 확인하는 중…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>%1 버전이 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>지금 업데이트</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>새로운 기능</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>나중에</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>마지막 스캔: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>끔</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>매주</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>매월</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>스마트 스캔</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>개요</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>다시 스캔</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>디스크 상태</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>시스템 파일 보호됨</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>최근 %1개월 동안 확보한 공간</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>모두 보기</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>예약 스캔</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>%1 중 사용 가능</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>검토</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>스캔</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1를 정리할 수 있습니다</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>시동 디스크가 거의 꽉 찼습니다</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>디스크를 늘 쾌적하게</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 제거 가능</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>앱, 문서 및 시스템</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>확보 가능</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>사용 가능</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>스캔한 적 없음</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>마지막 스캔</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>이번 달에 확보한 공간</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>주요 추천 항목</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>스마트 스캔 대상</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>시스템 디스크</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>휴지통</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>‘파일’</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>휴지통</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>전체 선택</translation>
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
        <translation>잠김</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>관리자 권한</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick이 관리자로 실행 중이며 Windows Update 파일을 정리할 수 있습니다.</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>허용됨</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Windows Update에서 남은 파일을 정리할 때만 필요합니다.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>관리자로 다시 시작</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>전체 디스크 접근 권한</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Safari 캐시와 휴지통을 정리하는 데 필요합니다.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>시스템 기본값(%1)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>정리</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>자동화</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>제외 항목</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>정보</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>권한 및 정보</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>항목을 %1으로 이동</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>추천합니다. 끄면 파일을 영구 삭제합니다.</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>큰 파일 기준 크기</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>이보다 큰 파일이 공간 지도에 표시됩니다.</translation>
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
        <translation>오래된 파일로 보는 기간</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>‘미사용’ 필터에 사용됩니다.</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3개월</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6개월</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12개월</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24개월</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>예약 스캔</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>마지막 스캔 후 이 기간이 지났으면 Tarnwick을 시작할 때 스캔합니다. 절대 스스로 정리하지 않습니다.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>끔</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>매주</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>매월</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>공간 부족 알림</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>여유 공간이 10% 아래로 떨어지면 알립니다.</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>로그인 시 열기</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Windows 시작 시 실행</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>예약 스캔을 실행할 수 있도록 Tarnwick을 백그라운드에서 시작합니다.</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>시스템 트레이에 Tarnwick 표시</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>메뉴 막대에 Tarnwick 표시</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>창을 닫아도 Tarnwick이 그곳에서 계속 실행되므로 예약 스캔과 공간 부족 알림이 계속 작동합니다.</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>매번 묻기</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>트레이에서 계속 실행</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick 종료</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>창을 닫을 때</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>트레이에서 Tarnwick이 계속 실행되므로 예약 스캔과 공간 부족 알림이 계속 작동합니다.</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>테마</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>시스템 설정을 따르거나 항상 라이트 또는 다크를 사용합니다.</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>라이트</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>다크</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>지금 다시 시작</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>언어를 바꾸려면 Tarnwick을 다시 시작해야 합니다.</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>보호된 시스템 위치</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation> — 항상 건너뜁니다.</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>보호된 앱</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation> — 이 앱의 데이터는 절대 정리하지 않습니다. 실행 중인 앱의 캐시와 열려 있는 파일도 건너뜁니다.</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>로그 열기</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>정리할 때마다 확인할 수 있는 로그를 남깁니다. Tarnwick은 시작할 때 업데이트를 확인합니다.</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>정리할 때마다 확인할 수 있는 로그를 남깁니다.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;설정에서 규칙이 사라졌습니다.&lt;/b&gt; 규칙이 모두 있는지 확인하고 빠진 것을 다시 추가하십시오. 그때까지 아무것도 정리하지 않습니다.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;설정을 읽을 수 없습니다.&lt;/b&gt; 규칙이 모두 있는지 확인하고 빠진 것을 다시 추가하십시오. 그때까지 아무것도 정리하지 않으며 손상된 파일은 그대로 둡니다.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>절대 건드리지 않을 항목</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Tarnwick이 항상 건너뛰는 폴더와 패턴입니다.</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>이 규칙이 맞습니다</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>제거</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>제외할 폴더 선택</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>규칙을 저장했습니다. 손상된 설정 파일은 새 파일 옆에 남아 있습니다.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>설정을 쓸 수 없어 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>%1 규칙 제거</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%2 중 %1 사용 가능</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>%1 사용 가능</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>사이드바 펼치기</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>스마트 스캔</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>정리</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>공간 지도</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>시스템 데이터</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>정리하기</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>사이드바 접기</translation>
    </message>
</context>
<context>
    <name>StackBar</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Said by a screen reader; %1: what takes space; %2: its share, such as “62%”</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StepBar</name>
    <message>
        <source>Waiting</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>진행 중</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Finder에서 검토</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>‘파일’에서 보기</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>휴지통으로 이동</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>스냅샷 제거</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>사용 불가 기기 삭제</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>‘정리’에서 정리</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Xcode 열기</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>열 수 없음: %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>항목 1개</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>항목 %1개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>%1를 휴지통으로 이동했고 %2개는 이동하지 못했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>이동할 항목이 없습니다</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>%1를 휴지통으로 이동했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>제거할 로컬 스냅샷이 없습니다</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>스냅샷이 제거되지 않았습니다</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>스냅샷 %2개 중 %1개를 제거했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>시뮬레이터를 정리하지 못했습니다: %1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>사용할 수 없는 시뮬레이터 기기가 없습니다 — 삭제할 항목 없음</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>사용할 수 없는 시뮬레이터 기기 1개를 삭제했습니다</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>사용할 수 없는 시뮬레이터 기기 %1개를 삭제했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>Xcode가 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>내 앱 캐시</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>앱이 캐시 폴더에 보관하는 캐시입니다. 안전한 캐시는 ‘정리’에서 정리할 수 있습니다.</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>홈 폴더의 숨겨진 폴더</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>개발자 도구와 앱이 .npm, .cargo, .nvm 등의 숨겨진 폴더에 보관하는 캐시, 설정, 설치 파일입니다. 캐시는 지워도 안전하지만 설치된 도구는 남겨 두십시오.</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Flatpak 앱 데이터</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>Flatpak 앱이 각각 따로 보관하는 설정, 파일, 캐시입니다. “flatpak uninstall --delete-data”로 이미 없어진 앱의 데이터를 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>내 Flatpak 앱 및 런타임</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpak이 현재 사용자만을 위해 설치한 앱과 그 앱에 필요한 런타임입니다. “flatpak uninstall --user --unused”로 더 이상 필요한 앱이 없는 런타임을 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>컨테이너 및 이미지</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Docker와 Podman이 보관하는 이미지, 컨테이너, 볼륨입니다. “docker system prune”과 “podman system prune”으로 어떤 컨테이너도 사용하지 않는 항목을 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>가상 머신</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>가상 머신의 디스크 이미지로, 만든 프로그램에서 보관합니다. 가상 머신은 해당 프로그램에서 삭제하거나 “virsh undefine --remove-all-storage”로 삭제하십시오.</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>게임 라이브러리</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Steam 등의 런처에서 보관하는 게임입니다. 게임은 해당 런처에서 삭제하십시오.</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>앱 데이터</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>앱이 보관하는 데이터베이스와 파일, 그리고 휴지통입니다. 앱의 데이터는 앱 안에서 지우거나 앱을 삭제한 후에 지우십시오.</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>앱 설정</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>앱이 보관하는 설정입니다. 프로필과 캐시를 함께 보관하는 앱도 있습니다. 설정이 없어진 앱은 처음 상태로 시작합니다.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>시스템 저널</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>시스템과 서비스의 로그로, journald가 제한된 크기로 유지합니다. “journalctl --vacuum-size=200M”으로 바로 줄일 수 있습니다.</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>시스템 로그</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>서비스와 패키지 관리자의 로그 파일입니다. 오래된 파일은 logrotate가 압축하고 삭제합니다.</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>충돌 덤프</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>충돌한 프로그램의 메모리 내용으로, 보고를 위해 보관됩니다. 오래된 것은 시스템이 삭제합니다. “coredumpctl”로 목록을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>다운로드한 패키지</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>패키지 관리자가 다운로드하여 이미 설치한 패키지입니다. “apt-get clean”, “dnf clean packages”, “pacman -Sc”, “zypper clean” 중 하나로 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Snap 패키지 및 이전 리비전</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Snap 패키지와, 되돌릴 수 있도록 snapd가 보관하는 이전 리비전입니다. “snap set system refresh.retain=2”로 보관하는 수를 줄일 수 있습니다.</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>시스템의 Flatpak 앱 및 런타임</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Flatpak이 모든 사용자를 위해 설치한 앱과 그 앱에 필요한 런타임입니다. “flatpak uninstall --unused”로 더 이상 필요한 앱이 없는 런타임을 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>커널 및 모듈</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>시스템을 시동할 수 있는 커널과 드라이버입니다. 최신 커널은 패키지 관리자가 유지하며, 이전 커널은 “apt-get autoremove”로 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>스왑 및 최대 절전 파일</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>메모리에 들어가지 않는 내용과 최대 절전 중의 메모리 내용을 위한 디스크 공간입니다. 크기는 시스템 설정에서 정해지며 “swapon --show”로 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>시스템 스냅샷</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>Timeshift나 Snapper가 보관하는 시스템의 이전 상태입니다. 변경되지 않은 부분을 공유하므로 개별 크기가 없습니다. “timeshift --delete”나 “snapper delete”로 하나씩 제거할 수 있습니다.</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Time Machine 로컬 스냅샷</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Time Machine이 백업 드라이브에 연결할 수 있을 때까지 macOS가 이 디스크에 매시간 보관하는 스냅샷입니다. 공간이 부족해지면 macOS가 비웁니다. 지금 제거해도 안전하지만 해당 시점으로는 복원할 수 없게 됩니다.</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>iPhone 및 iPad 백업</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Finder에서 만든 기기 백업입니다. 더 새로운 백업이나 iCloud 백업이 있으면 Finder(일반 → 백업 관리)에서 오래된 백업을 삭제하십시오.</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Xcode 기기 지원</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>연결한 모든 iOS, watchOS, tvOS 버전에서 Xcode가 복사하는 디버그 심볼입니다. 다음에 해당 기기를 연결하면 Xcode가 다시 복사합니다.</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>iOS 시뮬레이터 기기</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>시뮬레이터 기기와 해당 앱 데이터입니다. 사용할 수 없는 기기(런타임이 더 이상 없는 기기)는 제거해도 안전합니다.</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>시뮬레이터 런타임 및 캐시</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Xcode가 다운로드한 iOS, watchOS, visionOS 시뮬레이터 런타임과 공유 캐시입니다. 사용하지 않는 런타임은 Xcode › Settings › Components에서 제거하십시오.</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>앱이 ‘라이브러리’ 폴더에 보관하는 캐시입니다. 안전한 캐시는 ‘정리’에서 정리할 수 있습니다.</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>개발자 도구와 앱이 .cache, .npm, .nvm 등의 숨겨진 폴더에 보관하는 캐시, 설정, 설치 파일입니다. 캐시는 지워도 안전하지만 설치된 도구는 남겨 두십시오.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Xcode 아카이브</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>배포용으로 아카이브한 빌드입니다. 충돌 보고서를 기호화할 때 필요할 수 있는 빌드는 남겨 두십시오.</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Docker 디스크 이미지</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>Docker 이미지와 컨테이너가 들어 있는 가상 디스크입니다. “docker system prune”이나 Docker Desktop 설정으로 줄일 수 있습니다.</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>Mail 첨부 파일</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>첨부 파일을 연 후 Mail이 저장한 파일입니다. 원본은 메일상자에 남아 있습니다.</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>메시지 첨부 파일</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>대화에서 주고받은 사진, 비디오, 파일입니다. 대화 내용이 어긋나지 않도록 큰 파일은 메시지 앱(설정 → 일반 → 저장 공간)에서 제거하십시오.</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>시스템 캐시</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>모든 사용자와 시스템 서비스가 공유하는 캐시입니다. macOS가 스스로 정리합니다.</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>시스템 로그 및 진단</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>통합 로그와 진단 보고서입니다. macOS가 자동으로 교체하고 삭제합니다.</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>가상 메모리 및 잠자기 이미지</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>스왑 파일과 최대 절전 이미지입니다. 메모리 사용량에 따라 늘거나 줄며, 재시동하면 초기화됩니다.</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>macOS 에셋 및 업데이트</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>다운로드한 시스템 에셋(서체, 사전, 언어 및 AI 모델)과 설치 대기 중인 소프트웨어 업데이트입니다.</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>기타 라이브러리 데이터</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>‘라이브러리’ 폴더의 나머지 데이터입니다. 환경설정, 키체인, 로그, 시스템 서비스 데이터가 포함됩니다.</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>시스템 데이터베이스 및 임시 파일</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>macOS 서비스에서 사용하는 데이터베이스와 앱별 임시 폴더입니다. macOS에서 관리합니다.</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>앱 데이터 및 컨테이너</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>앱이 보관하는 설정, 데이터베이스, 파일입니다. 앱의 데이터를 지우려면 앱을 삭제하거나 앱 안에서 지우십시오.</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>스냅샷 1개</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>스냅샷 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>읽기 권한 없음</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>최소 %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>기기 1개</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>기기 %1개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>시스템 데이터</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>다시 스캔</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>시스템 데이터의 내용 보기</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>스냅샷, 백업, 개발자 파일, 캐시 등이 있습니다.</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>시스템 데이터 스캔</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>시스템 데이터 측정됨 · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; 확보 가능</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>처리 중…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>업데이트 중…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>확보할 수 있는 공간</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>시스템 데이터를 측정하는 중…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>측정됨</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS가 이 디스크에 있는 로컬 Time Machine 스냅샷을 제거합니다. 다른 드라이브에 있는 Time Machine 백업에는 영향이 없습니다. macOS에서 관리자 암호를 요청합니다.</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>iOS 런타임이 더 이상 설치되어 있지 않은 시뮬레이터 기기를 앱 및 데이터와 함께 삭제합니다.</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>%1를 휴지통으로 이동합니다. 기기를 다시 연결하면 Xcode가 다시 만듭니다.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>전체 디스크 접근 권한 필요</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>읽기 권한 없음</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>%1 이상</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>가장 큰 폴더: %1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>macOS에서 관리</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>시스템에서 관리</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>읽을 권한이 있는 항목만 계산합니다. 시스템이나 다른 사용자가 소유한 폴더는 제외하며, 여러 행에서 공유하는 폴더는 한 번만 계산합니다.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;저장 공간 설정에 더 큰 숫자가 표시되는 이유&lt;/b&gt;&lt;br&gt;macOS는 앱, 문서, 사진 및 기타 카테고리를 제외하고 디스크에 남은 모든 것을 시스템 데이터로 계산합니다. 여기에는 Spotlight 색인, APFS 스냅샷, 제거 가능한 공간, 루트 전용 시스템 파일처럼 앱이 측정할 수 없는 항목도 포함됩니다. 또한 전체 디스크 접근 권한이 없으면 Tarnwick이 보호된 폴더를 볼 수 없으므로 합계가 macOS에서 표시하는 것보다 작습니다.</translation>
    </message>
    <message>
        <source>%1?</source>
        <extracomment>A question made of what a button says, such as “Remove snapshots”</extracomment>
        <translation>%1?</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <extracomment>Button with the program’s menu</extracomment>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Tarnwick 열기</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>스마트 스캔</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>큰 파일 찾기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick 종료</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · %2 사용 가능</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>업데이트를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>서버가 응답하는 데 시간이 너무 오래 걸렸습니다.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>업데이트 정보를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>서버가 안전하지 않은 주소로 리디렉션했습니다.</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>리디렉션이 너무 많습니다.</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>업데이트가 Tarnwick 서버에 있지 않습니다.</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>업데이트의 크기가 예상과 다릅니다.</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>업데이트를 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>업데이트를 다운로드할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>업데이트를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>업데이트가 공개된 체크섬과 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>업데이트에 %1의 서명이 없습니다.</translation>
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
        <translation>오늘</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n일 전</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n주 전</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n개월 전</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n년 전</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Stands between the things of a list: names, or a name and what there is to say of it</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A share; %1: a figure. With a no-break space before the sign where the language has one</extracomment>
        <translation>%1%</translation>
    </message>
</context>
</TS>
