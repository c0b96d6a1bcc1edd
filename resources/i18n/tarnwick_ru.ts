<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>Менеджеры паролей, методы ввода, средства безопасности и управления устройствами, VPN</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>Не удалось прочитать настройки, поэтому исключения неизвестны. Ничего не очищено.</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>Из настроек пропали правила исключений. Ничего не очищено.</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 файл</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 файл</numerusform>
            <numerusform>%1 файла</numerusform>
            <numerusform>%1 файлов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>В %3 перемещён %1 (%2)</numerusform>
            <numerusform>В %3 перемещено %1 (%2)</numerusform>
            <numerusform>В %3 перемещено %1 (%2)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 занят и пропущен</numerusform>
            <numerusform> · %1 заняты и пропущены</numerusform>
            <numerusform> · %1 занято и пропущено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>Восстановлен %Ln файл</numerusform>
            <numerusform>Восстановлено %Ln файла</numerusform>
            <numerusform>Восстановлено %Ln файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>Не удалось прочитать настройки, поэтому исключения неизвестны. Ничего не перемещено.</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>Временные файлы</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>Рабочие файлы, которые создают приложения и система. После закрытия приложения они не нужны.</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>Кэш приложений</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>Данные, которые приложения хранят, чтобы быстрее загружаться. При необходимости приложения создают их заново сами.</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Кэш браузеров</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>Кэшированные изображения, скрипты и страницы. Входы на сайты, история, закладки и пароли никогда не затрагиваются.</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>Журналы и сбои</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>Диагностические журналы и отчёты о сбоях. Нужны только для разбора недавних неполадок.</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>Изображения для предпросмотра файлов. Создаются заново при следующем открытии папки.</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>Установщики</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Кэш разработчика</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>Кэш менеджеров пакетов и результаты сборки. Удалять их безопасно, но следующая сборка или установка займёт больше времени.</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>Объекты, которые вы уже удалили. Очистку Корзины отменить нельзя.</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>Кэш QuickLook</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>Кэш миниатюр</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>Образы дисков и установочные пакеты в папке «Загрузки». Проверьте, не нужен ли вам ещё какой-нибудь установщик.</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>Пакеты программ и образы дисков в папке «Загрузки». Проверьте, не нужен ли вам ещё какой-нибудь из них.</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>Безопасно</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>Безвозвратно</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Миниатюры</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>Миниатюры QuickLook</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>Кэш симуляторов</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>Корзина</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>безвозвратное удаление</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>Домашняя папка принадлежит другому пользователю. Ничего не очищено.</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>Другая очистка уже выполняется.</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>Не удалось узнать, не выполняется ли другая очистка. Ничего не очищено.</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>Безопасно очистить</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>Проверить перед очисткой</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>Нельзя отменить</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>Подробности показаны</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выбрать всё</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 объект</numerusform>
            <numerusform>%1 объекта</numerusform>
            <numerusform>%1 объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>Работает %1</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>Очищать больше нечего. Анализ можно повторить в любой момент.</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>Самые большие</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Показать в %1</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>Показать ещё %1</numerusform>
            <numerusform>Показать ещё %1</numerusform>
            <numerusform>Показать ещё %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>и ещё %1 объект</numerusform>
            <numerusform>и ещё %1 объекта</numerusform>
            <numerusform>и ещё %1 объектов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;Пропущен %Ln файл&lt;/b&gt;: занятые и защищённые файлы не удаляются. Чтобы удалить их, завершите приложения, которые их используют, и повторите анализ.</numerusform>
            <numerusform>&lt;b&gt;Пропущено %Ln файла&lt;/b&gt;: занятые и защищённые файлы не удаляются. Чтобы удалить их, завершите приложения, которые их используют, и повторите анализ.</numerusform>
            <numerusform>&lt;b&gt;Пропущено %Ln файлов&lt;/b&gt;: занятые и защищённые файлы не удаляются. Чтобы удалить их, завершите приложения, которые их используют, и повторите анализ.</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>Например: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;Не тронут кэш работающих приложений:&lt;/b&gt; %1. Чтобы очистить и его, завершите эти приложения и повторите очистку.</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>Очистка завершена</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>Было доступно</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>Доступно сейчас</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>Открыть журнал</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>Перемещено в %1. Любой объект ещё можно восстановить.</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>Объекты удалены безвозвратно.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Перезапустить с правами</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>Для некоторых папок нужен полный доступ к диску.</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>Для некоторых папок может понадобиться полный доступ к диску.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Открыть Системные настройки</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Некоторые файлы принадлежат системе и не тронуты.</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>Для этих файлов нужны права администратора.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;Для некоторых файлов нужны права администратора.&lt;/b&gt; Чтобы удалить их, перезапустите Tarnwick с этими правами и повторите очистку.</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>У вас нет прав на чтение некоторых из этих папок.</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>Сейчас работает %1. Чтобы очистить и кэш этого приложения, завершите его.</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>Сейчас работают: %1. Чтобы очистить и кэш этих приложений, завершите их.</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>Анализа ещё не было</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>Найдите кэш, временные файлы и другие остатки.</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>Начать умный анализ</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>из %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>Выбрать рекомендуемое</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Новый анализ</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>Выбранное</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Показать правила</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>К очистке: %1</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>Выбрано &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · не на всё хватает прав</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>перемещение в %1</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>безвозвратное удаление</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>Очистить %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;Из настроек пропали правила исключений.&lt;/b&gt; Пока вы их не проверите, ничего не очищается.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;Не удалось прочитать настройки.&lt;/b&gt; Пока вы не проверите правила исключений, ничего не очищается.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>Анализ</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Проверено</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>Прошло</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>Осталось</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>найдено</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Нужен доступ к диску</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Нет прав на чтение</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>Подсчитывает, сколько можно очистить, и ничего не меняет.</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>Проводит анализ, показывает, что будет удалено, спрашивает и очищает.</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>Ищет большие файлы в домашней папке и ничего не меняет.</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>Подсчитывает, из чего складывается доля системы на диске, и ничего не меняет.</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>рассматривать только эти категории; тогда очищаются все они, даже те, которые без прямого указания не очищаются</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>никогда не трогать то, что задаёт это правило, в дополнение к правилам из настроек; можно указать несколько раз</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>удалять безвозвратно независимо от настроек</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>ничего не трогать; показать, что было бы удалено, что осталось бы и почему</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>не спрашивать</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>искать файлы, которые занимают на диске не меньше заданного числа мегабайт, независимо от настроек</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>один объект JSON в стандартном выводе</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>показать эту справку</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>показать версию</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>Использование: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Команды:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>Справка по команде: «%1».</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>Категории: %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>нет параметра %1</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>нет команды %1, есть только %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>лишнее слово: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>команда «%1» не принимает --%2</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete и --trash исключают друг друга</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>для --only нужны идентификаторы категорий: %1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>нет категории %1, есть только %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>для --exclude нужно правило</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>правило %1 ничему не соответствует: путь начинается с / или ~/ и лежит ниже /, а в имени нет косой черты</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>для --min-mb нужно число мегабайт, а не %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>Ничего не очищено.</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Проверьте правила в настройках Tarnwick либо исправьте %1 или удалите этот файл вместе с %2.</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>анализ отменён, ничего не очищено</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>нет терминала, чтобы задать вопрос, поэтому без --yes ничего не очищается</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>поиск отменён</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>не удалось записать вывод: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Анализ</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 файл</numerusform>
            <numerusform>%1 файла</numerusform>
            <numerusform>%1 файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 из %2 файла</numerusform>
            <numerusform>%1 из %2 файлов</numerusform>
            <numerusform>%1 из %2 файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>анализ отменён</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>отмена…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>остановка после этого объекта…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 файл</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>Удалось прочитать не всё: %1.</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>подсчёт отменён</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>Оценка</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>Где</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>Из этого можно безопасно очистить %1: tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>Сейчас работает %1, поэтому данные этого приложения останутся (%2).</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>Без прямого указания не очищается: %1. Чтобы очистить: --only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>удаляется безвозвратно</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>Пропущен %1 объект; причины указаны в журнале:</numerusform>
            <numerusform>Пропущено %1 объекта; причины указаны в журнале:</numerusform>
            <numerusform>Пропущено %1 объектов; причины указаны в журнале:</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>Не тронуты, потому что сейчас работают: %1.</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>Анализ занял %1. Ничего не изменено.</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>Очищать нечего.</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>Безвозвратно удалить %1?</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>Это был пробный запуск: ничего не тронуто.</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>Освобождено %1, удалён %2.</numerusform>
            <numerusform>Освобождено %1, удалено %2.</numerusform>
            <numerusform>Освобождено %1, удалено %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Некоторые файлы принадлежат системе и не тронуты.</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Журнал: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Использован</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>Файл</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>Показаны самые большие: %1 из %2 файла.</numerusform>
            <numerusform>Показаны самые большие: %1 из %2 файлов.</numerusform>
            <numerusform>Показаны самые большие: %1 из %2 файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>В домашней папке нет файлов, которые занимают %1 или больше.</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>Просмотрен %1 за %2. Ничего не изменено.</numerusform>
            <numerusform>Просмотрено %1 за %2. Ничего не изменено.</numerusform>
            <numerusform>Просмотрено %1 за %2. Ничего не изменено.</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>минимум %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Нужен доступ к диску</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Нет прав на чтение</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Самые большие: %1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Можно освободить</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Под управлением macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Под управлением системы</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Из этого можно освободить %1.</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>Подсчёт занял %1. Ничего не изменено.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>перемещать в %1 независимо от настроек</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>Из этого %1 лежит на томе, который не поддерживает %2, и без --delete останется.</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>перемещается в %1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Перемещённое в %1 занимает место, пока вы её не очистите.</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>Переместить %2 в %3?</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>Безвозвратно удалить %1 и переместить %2 в %3?</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>д да</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)</extracomment>
        <translation>[д/Н]</translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation>можно очистить %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>занято %1</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>занято %1</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>занято</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>Образ диска</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>Неполная загрузка</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Архив</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>Установщик</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Документ</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Резервная копия</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>Файл</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>Выбрано</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>по возрастанию</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>по убыванию</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>Карта диска</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>Новый поиск</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>Узнайте, что занимает место</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>Большие файлы в вашей домашней папке. Что удалить, решаете вы.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Найти большие файлы</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>Домашняя папка · больше %1</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>Все</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Не открывались</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Показать в %1</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>В %1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>Показывать</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Поиск файлов</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Самые большие файлы</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>Не открывались %1+ мес.</numerusform>
            <numerusform>Не открывались %1+ мес.</numerusform>
            <numerusform>Не открывались %1+ мес.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>Выбрано &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; из %3 · %4 файл</numerusform>
            <numerusform>Выбрано &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; из %3 · %4 файла</numerusform>
            <numerusform>Выбрано &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; из %3 · %4 файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>Поиск больших файлов…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Большие файлы</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>Пока самые большие</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>Сортировка</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>Файл %1 создан не программой Tarnwick и оставлен как есть. Удалите его, чтобы открывать Tarnwick при входе.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>Не удалось записать %1, поэтому Tarnwick не будет открываться при входе.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>Не удалось удалить %1, поэтому Tarnwick по-прежнему будет открываться при входе.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>Tarnwick обновлён до версии %1.</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>Том «%1» почти заполнен. Чтобы освободить место, запустите умный анализ.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Сайт Tarnwick</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>О программе Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Завершить Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Умный анализ</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Большие файлы</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Скопировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выбрать всё</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Карта диска</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Системные данные</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Скрыть боковое меню</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Во весь экран</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>Изменить масштаб</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Все окна&#xa0;— на передний план</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>Вопросы и ответы</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>Открыть папку журналов</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>Открыть меню</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Правка</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>Показать боковое меню</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Выйти из полноэкранного режима</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Проверить обновления</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 авторы Tarnwick</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>Запомнить мой выбор</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>Оставить Tarnwick в фоне?</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>Когда вы закроете окно, Tarnwick может остаться в системном трее, чтобы и дальше выполнять плановый анализ и предупреждать о нехватке места. Снова открыть окно можно через значок в трее.</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>Это можно изменить в настройках.</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>Оставить в трее</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>Включено безвозвратное удаление. Восстановить эти файлы будет нельзя.</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Если очистить %1, отменить это будет нельзя. Всё остальное будет перемещено в %1.</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>Всё будет перемещено в %1, и позже это можно будет восстановить.</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>Очистить и удалить</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>Очистить %1?</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>Из этого объёма останется %1: том с этими файлами не поддерживает %2.</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>Из этого объёма останется %1, пока открыты приложения: %2.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>Доступна версия %1. У вас установлена %2.</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Загрузка обновления…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>В открывшемся окне перетяните Tarnwick в папку «Программы», чтобы заменить эту версию.</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>Файловый менеджер откроет папку с загруженным пакетом. Установите его так, как обычно устанавливаете пакеты.</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>Обновлений для Tarnwick нет</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>Версия %1&#xa0;— последняя.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Не удалось проверить обновления</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Проверьте подключение к интернету и повторите попытку.</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Установка обновления…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>Установлена версия %1.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>Позже</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>Анализ: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>Еженедельно</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Ежемесячно</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Умный анализ</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Новый анализ</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>Состояние диска</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>Система защищена</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>Освобождено за последний %1 месяц</numerusform>
            <numerusform>Освобождено за последние %1 месяца</numerusform>
            <numerusform>Освобождено за последние %1 месяцев</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>Показать всё</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Плановый анализ</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>свободно из %1</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Анализ</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 можно очистить</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>Загрузочный диск почти заполнен</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>Держите диск в&#xa0;порядке</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 очищаемого места</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>Данные и система</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>К очистке</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>Анализа не было</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>Последний анализ</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>Очищено за месяц</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>Главные рекомендации</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>Что проверяет умный анализ</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>Системный диск</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Корзину</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>Файлах</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>Корзину</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Скопировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>В&amp;ставить</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выбрать всё</translation>
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
        <translation>Защищено</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>Права администратора</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>Tarnwick работает с правами администратора и может очищать файлы Центра обновления Windows.</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>Есть</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Нужны только для очистки остатков Центра обновления Windows.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Перезапустить с правами</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Полный доступ к диску</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Нужен, чтобы очищать кэш Safari и Корзину.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Открыть настройки</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>Как в системе (%1)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>Автоматизация</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>Исключения</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>Разрешения и сведения</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Перемещать объекты в %1</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>Рекомендуется. Выключите, чтобы удалять файлы безвозвратно.</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>Размер больших файлов</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>Файлы больше этого размера показываются в списке больших и старых файлов.</translation>
    </message>
    <message>
        <source>100 MB</source>
        <translation>100 МБ</translation>
    </message>
    <message>
        <source>250 MB</source>
        <translation>250 МБ</translation>
    </message>
    <message>
        <source>500 MB</source>
        <translation>500 МБ</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1 ГБ</translation>
    </message>
    <message>
        <source>Consider files old after</source>
        <translation>Считать файлы старыми через</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>Используется фильтром «Не открывались».</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 месяца</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 месяцев</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 месяцев</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 месяца</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Плановый анализ</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>Выполняется при запуске Tarnwick, если с последнего анализа прошло больше выбранного срока. Сам никогда ничего не очищает.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Еженедельно</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Ежемесячно</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>Предупреждения о нехватке места</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>Предупреждать, когда свободно меньше 10&#xa0;%.</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Открывать при входе</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Запускать вместе с Windows</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>Запускает Tarnwick в фоне, чтобы мог выполняться плановый анализ.</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>Показывать Tarnwick в системном трее</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>Показывать Tarnwick в строке меню</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>После закрытия окна Tarnwick остаётся там и по-прежнему выполняет плановый анализ и предупреждает о нехватке места.</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>Спрашивать каждый раз</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>Оставлять в трее</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Завершать Tarnwick</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>При закрытии окна</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>В трее Tarnwick продолжает работать: выполняет плановый анализ и предупреждает о нехватке места.</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>Как в системе, всегда светлая или всегда тёмная.</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>Системная</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Перезапустить</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>Чтобы сменить язык, Tarnwick перезапустится.</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>Защищённые системные папки</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation>&#xa0;— всегда пропускаются.</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>Защищённые приложения</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation>&#xa0;— их данные никогда не очищаются. Кэш работающих приложений и открытые файлы тоже пропускаются.</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>Открыть журналы</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>После каждой очистки остаётся журнал, который можно просмотреть. При запуске Tarnwick проверяет обновления.</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>После каждой очистки остаётся журнал, который можно просмотреть.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;Из настроек пропали правила.&lt;/b&gt; Проверьте, все ли ваши правила здесь, и верните недостающие. До этого ничего не очищается.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;Не удалось прочитать настройки.&lt;/b&gt; Проверьте, все ли ваши правила здесь, и верните недостающие. До этого ничего не очищается, а повреждённый файл сохраняется.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>Никогда не трогать</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Папки и шаблоны, которые Tarnwick всегда пропускает.</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>Это мои правила</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>Выберите папку для исключения</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>Правила сохранены. Повреждённый файл настроек остаётся рядом с новым.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>Не удалось записать настройки, поэтому они остались прежними.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>Удалить %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>Доступно %1 из %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>Свободно %1</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>Развернуть боковое меню</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Умный анализ</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Карта диска</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Системные данные</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>Уход за диском</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>Свернуть боковое меню</translation>
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
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Просмотреть в Finder</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>Показать в Файлах</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Переместить в Корзину</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>Удалить снимки</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>Удалить недоступные</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>Перейти к очистке</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Открыть Xcode</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>Не удалось открыть %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 объект</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 объект</numerusform>
            <numerusform>%1 объекта</numerusform>
            <numerusform>%1 объектов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>В Корзину перемещён %1, не удалось переместить: %2</numerusform>
            <numerusform>В Корзину перемещено %1, не удалось переместить: %2</numerusform>
            <numerusform>В Корзину перемещено %1, не удалось переместить: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>Перемещать нечего</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>В Корзину перемещён %1</numerusform>
            <numerusform>В Корзину перемещено %1</numerusform>
            <numerusform>В Корзину перемещено %1</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>Локальных снимков для удаления нет</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>Снимки не удалены</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>Удалено снимков: %1 из %2</numerusform>
            <numerusform>Удалено снимков: %1 из %2</numerusform>
            <numerusform>Удалено снимков: %1 из %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>Не удалось очистить симуляторы: %1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>Недоступных устройств симулятора нет&#xa0;— удалять нечего</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>Удалено 1 недоступное устройство симулятора</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>Удалено %1 недоступное устройство симулятора</numerusform>
            <numerusform>Удалено %1 недоступных устройства симулятора</numerusform>
            <numerusform>Удалено %1 недоступных устройств симулятора</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>Xcode не установлен</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>Кэш ваших приложений</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Кэш, который приложения хранят в вашей папке кэша. То, что безопасно удалить, можно очистить на странице «Очистка».</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>Скрытые папки в домашней папке</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Кэш, настройки и установленные инструменты, которые средства разработки и приложения хранят в скрытых папках, таких как .npm, .cargo и .nvm. Кэш удалять безопасно, а установленные инструменты следует оставить.</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Flatpak: данные приложений</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>Настройки, файлы и кэш ваших приложений Flatpak: у каждого они свои. Данные уже удалённых приложений убирает «flatpak uninstall --delete-data».</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>Flatpak: ваши приложения и среды</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Приложения, которые Flatpak установил только для вас, и нужные им среды выполнения. Среды, которые больше не нужны ни одному приложению, удаляет «flatpak uninstall --user --unused».</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>Контейнеры и образы</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Образы, контейнеры и тома, которые хранят Docker и Podman. То, что не использует ни один контейнер, удаляют «docker system prune» и «podman system prune».</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>Виртуальные машины</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>Образы дисков виртуальных машин, которые хранит создавшая их программа. Удаляйте машину в ней или командой «virsh undefine --remove-all-storage».</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>Библиотеки игр</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Игры, которые хранят Steam и другие программы запуска. Удаляйте игру там, откуда её запускаете.</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>Данные приложений</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>Базы данных и файлы, которые приложения хранят для вас, и ваша Корзина. Удаляйте данные приложения в нём самом или после его удаления.</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>Настройки ваших приложений</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>Настройки, которые приложения хранят для вас; некоторые держат рядом с ними профили и кэш. Приложение без настроек запускается как в первый раз.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>Журнал systemd</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>Журнал системы и её служб, размер которого ограничивает journald. Сократить его сразу позволяет «journalctl --vacuum-size=200M».</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>Системные журналы</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>Файлы журналов служб и менеджера пакетов. Старые сжимает и удаляет logrotate.</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>Аварийные дампы</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>Содержимое памяти программ в момент сбоя, сохранённое для отчётов. Старые дампы удаляет система; их список выводит «coredumpctl».</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>Загруженные пакеты</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>Пакеты, которые менеджер пакетов загрузил и уже установил. Их удаляет «apt-get clean», «dnf clean packages», «pacman -Sc» или «zypper clean».</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Пакеты Snap и старые ревизии</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Пакеты Snap и их прежние ревизии, которые snapd хранит для отката. Уменьшить их число позволяет «snap set system refresh.retain=2».</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>Flatpak: системные приложения и среды</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Приложения, которые Flatpak установил для всех пользователей, и нужные им среды выполнения. Среды, которые больше не нужны ни одному приложению, удаляет «flatpak uninstall --unused».</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>Ядра и их модули</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>Ядра, которые может запустить система, и их драйверы. Новейшие сохраняет менеджер пакетов; старые удаляет «apt-get autoremove».</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>Файлы подкачки и гибернации</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>Место на диске для того, что не помещается в память, и для самой памяти на время гибернации. Его размер задан настройками системы; посмотреть его можно командой «swapon --show».</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>Снимки системы</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>Прежние состояния системы, которые хранит Timeshift или Snapper. Неизменившиеся данные у них общие, поэтому собственного размера у снимков нет; удалить снимок можно командой «timeshift --delete» или «snapper delete».</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Локальные снимки Time Machine</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Ежечасные снимки, которые macOS хранит на этом диске, пока Time Machine не получит доступ к своему диску резервного копирования. Когда места становится мало, macOS удаляет их сама; удалить их сейчас безопасно, но вернуться к этим точкам восстановления уже не получится.</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>Резервные копии iPhone и iPad</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Резервные копии устройств, созданные Finder. Удаляйте старые в Finder («Основные» → «Управлять резервными копиями»), когда есть более новая копия или копия в iCloud.</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Поддержка устройств Xcode</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Отладочные символы, которые Xcode копирует для каждой версии iOS, watchOS и tvOS на подключённых вами устройствах. При следующем подключении устройства Xcode скопирует их снова.</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>Устройства симулятора iOS</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>Устройства симулятора и данные их приложений. Удалять недоступные устройства (для сред выполнения, которых у вас больше нет) безопасно.</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>Среды и кэш симулятора</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Загруженные Xcode среды выполнения симулятора для iOS, watchOS и visionOS и их общий кэш. Ненужные среды удаляйте в Xcode › Settings › Components.</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Кэш, который приложения хранят в вашей папке «Библиотеки». То, что безопасно удалить, можно очистить на странице «Очистка».</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Кэш, настройки и установленные инструменты, которые средства разработки и приложения хранят в скрытых папках, таких как .cache, .npm и .nvm. Кэш удалять безопасно, а установленные инструменты следует оставить.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Архивы Xcode</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>Сборки, которые вы заархивировали для распространения. Сохраните те, которые могут понадобиться для символизации отчётов о сбоях.</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Образ диска Docker</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>Виртуальный диск с образами и контейнерами Docker. Уменьшить его можно командой «docker system prune» или в настройках Docker Desktop.</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>Вложения «Почты»</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>Вложения, которые приложение «Почта» сохранило, когда вы их открыли. Оригиналы остаются в почтовом ящике.</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>Вложения «Сообщений»</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>Фото, видео и файлы из ваших разговоров. Чтобы не нарушить переписку, удаляйте большие вложения приложения «Сообщения» через «Настройки» → «Основные» → «Хранилище».</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>Системный кэш</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>Кэш, общий для всех пользователей и системных служб. macOS сокращает его сама.</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>Системные журналы и диагностика</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>Единый журнал и диагностические отчёты. macOS сменяет и удаляет их автоматически.</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>Виртуальная память и образ гибернации</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>Файлы подкачки и образ гибернации. Их размер меняется вместе с расходом памяти и сбрасывается при перезагрузке.</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>Ресурсы и обновления macOS</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>Загруженные ресурсы системы (шрифты, словари, языковые модели и модели ИИ) и подготовленные обновления ПО.</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>Другое в папке «Библиотеки»</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>Всё остальное в вашей папке «Библиотеки»: настройки, связки ключей, журналы и данные системных служб.</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>Системные базы данных и временные файлы</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>Базы данных и временные папки приложений, которыми пользуются службы macOS. Ими управляет macOS.</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>Данные и контейнеры приложений</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>Настройки, базы данных и файлы, которые приложения хранят для вас. Удаляйте данные приложения вместе с ним или в нём самом.</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 снимок</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 снимок</numerusform>
            <numerusform>%1 снимка</numerusform>
            <numerusform>%1 снимков</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Нет прав на чтение</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>минимум %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 устройство</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 устройство</numerusform>
            <numerusform>%1 устройства</numerusform>
            <numerusform>%1 устройств</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>Системные данные</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>Новый анализ</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>Узнайте, что входит в системные данные</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>Снимки, резервные копии, файлы разработки, кэш и другое.</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>Начать анализ</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>подсчитано в системных данных · из них &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; можно освободить</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>Выполняется…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Обновление…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Можно освободить</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>Подсчёт системных данных…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>подсчитано</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>macOS удалит свои локальные снимки Time Machine на этом диске. Резервные копии Time Machine на других дисках не затрагиваются. macOS запросит пароль администратора.</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>Устройства симулятора, среда выполнения iOS которых больше не установлена, будут удалены вместе с приложениями и данными.</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>В Корзину будет перемещено %1. При следующем подключении устройства Xcode создаст эти данные заново.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Нужен доступ к диску</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Нет прав на чтение</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>минимум %1</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Самые большие: %1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Под управлением macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Под управлением системы</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>Учитывается только то, что вы вправе читать. Папки системы и других пользователей не входят в сумму, а папки, относящиеся к нескольким строкам, учтены один раз.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;Почему в настройках хранилища число больше&lt;/b&gt;&lt;br&gt;К системным данным macOS относит всё, что остаётся на диске за вычетом приложений, документов, фото и других её категорий. В этот остаток входит и то, что не может измерить ни одно приложение: индекс Spotlight, снимки APFS, очищаемое место и системные файлы, доступные только суперпользователю. Без полного доступа к диску Tarnwick к тому же не видит защищённых папок, поэтому его сумма меньше той, которую сообщает macOS.</translation>
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
        <translation>Меню</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Открыть Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Умный анализ</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Найти большие файлы</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Завершить Tarnwick</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · свободно %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>Не удалось открыть обновление.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>Сервер слишком долго не отвечал.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>Не удалось прочитать сведения об обновлении.</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>Сервер перенаправил запрос на небезопасный адрес.</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>Слишком много перенаправлений.</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>Обновление находится не на сервере Tarnwick.</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>Размер обновления не совпадает с ожидаемым.</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Не удалось сохранить обновление: %1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Не удалось загрузить обновление: %1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>Не удалось прочитать обновление.</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>Контрольная сумма обновления не совпадает с опубликованной.</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>Обновление не подписано издателем «%1».</translation>
    </message>
</context>
<context>
    <name>fmt</name>
    <message>
        <source>TB</source>
        <extracomment>A terabyte</extracomment>
        <translation>ТБ</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A size; %1: a number; %2: a unit such as “GB”</extracomment>
        <translation>%1&#xa0;%2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>When something was done or opened last</extracomment>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n день назад</numerusform>
            <numerusform>%n дня назад</numerusform>
            <numerusform>%n дней назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n нед. назад</numerusform>
            <numerusform>%n нед. назад</numerusform>
            <numerusform>%n нед. назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n мес. назад</numerusform>
            <numerusform>%n мес. назад</numerusform>
            <numerusform>%n мес. назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n год назад</numerusform>
            <numerusform>%n года назад</numerusform>
            <numerusform>%n лет назад</numerusform>
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
        <translation>%1&#xa0;%</translation>
    </message>
</context>
</TS>
