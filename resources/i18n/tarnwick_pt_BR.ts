<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AppGuard</name>
    <message>
        <source>Password managers, input methods, security and device-management agents, VPNs</source>
        <translation>Gerenciadores de senhas, métodos de entrada, agentes de segurança e de gerenciamento de dispositivos, VPNs</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was cleaned.</source>
        <translation>Não foi possível ler os ajustes, por isso não se sabe o que deve ser mantido. Nada foi limpo.</translation>
    </message>
    <message>
        <source>The settings have lost rules on what to keep. Nothing was cleaned.</source>
        <translation>Os ajustes perderam regras sobre o que deve ser mantido. Nada foi limpo.</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>How many files were moved: %1 of “%1 (%2) moved to the %3”</extracomment>
        <translation>1 arquivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 arquivo</numerusform>
            <numerusform>%1 arquivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2) moved to the %3</source>
        <extracomment>%1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files</extracomment>
        <translation>
            <numerusform>%1 (%2) movido para %3</numerusform>
            <numerusform>%1 (%2) movidos para %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> · %1 in use, skipped</source>
        <extracomment>Follows “… moved to the Trash”; %1: how many files stayed, as they were open</extracomment>
        <translation>
            <numerusform> · %1 em uso, ignorado</numerusform>
            <numerusform> · %1 em uso, ignorados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %Ln file(s)</source>
        <translation>
            <numerusform>%Ln arquivo restaurado</numerusform>
            <numerusform>%Ln arquivos restaurados</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings can&apos;t be read, so the rules on what to keep are unknown. Nothing was moved.</source>
        <translation>Não foi possível ler os ajustes, por isso não se sabe o que deve ser mantido. Nada foi movido.</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>Temporary files</source>
        <translation>Arquivos temporários</translation>
    </message>
    <message>
        <source>Scratch files that apps and the system create while working. They are not needed once the app closes.</source>
        <translation>Arquivos auxiliares que os apps e o sistema criam enquanto trabalham. Depois que o app é fechado, não são mais necessários.</translation>
    </message>
    <message>
        <source>App caches</source>
        <translation>Cache de apps</translation>
    </message>
    <message>
        <source>Data apps keep to load faster. Apps rebuild these automatically the next time they need them.</source>
        <translation>Dados que os apps guardam para carregar mais rápido. Os próprios apps os recriam na próxima vez que precisarem deles.</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Cache de navegadores</translation>
    </message>
    <message>
        <source>Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched.</source>
        <translation>Imagens, scripts e páginas em cache. Sessões iniciadas, histórico, favoritos e senhas nunca são tocados.</translation>
    </message>
    <message>
        <source>Logs &amp; crash reports</source>
        <translation>Registros e falhas</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.</source>
        <translation>Registros de diagnóstico e relatórios de falhas. Só são úteis para investigar um problema recente.</translation>
    </message>
    <message>
        <source>Preview images of your files. They are regenerated the next time you open a folder.</source>
        <translation>Imagens de pré-visualização dos seus arquivos. São geradas de novo na próxima vez que você abrir uma pasta.</translation>
    </message>
    <message>
        <source>Old installers</source>
        <translation>Instaladores antigos</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Cache de desenvolvimento</translation>
    </message>
    <message>
        <source>Package manager caches and build output. Removing them is safe, but the next build or install will be slower.</source>
        <translation>Caches de gerenciadores de pacotes e resultados de compilação. Podem ser removidos sem risco, mas a próxima compilação ou instalação será mais lenta.</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Lixo</translation>
    </message>
    <message>
        <source>Items you have already deleted. Emptying cannot be undone.</source>
        <translation>Itens que você já apagou. O esvaziamento não pode ser desfeito.</translation>
    </message>
    <message>
        <source>QuickLook cache</source>
        <translation>Cache da Visualização Rápida</translation>
    </message>
    <message>
        <source>Thumbnail cache</source>
        <translation>Cache de miniaturas</translation>
    </message>
    <message>
        <source>Disk images and installer packages in your Downloads folder. Review in case you still need an installer.</source>
        <translation>Imagens de disco e pacotes de instalação da sua pasta Downloads. Revise, caso ainda precise de algum instalador.</translation>
    </message>
    <message>
        <source>Software packages and disc images in your Downloads folder. Review in case you still need one of them.</source>
        <translation>Pacotes de software e imagens de disco da sua pasta Downloads. Revise, caso ainda precise de algum deles.</translation>
    </message>
    <message>
        <source>Safe</source>
        <extracomment>A rating of what a category holds: may be cleaned without a thought</extracomment>
        <translation>Seguro</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>A rating of what a category holds: look at it before it is cleaned</extracomment>
        <translation>Revisar</translation>
    </message>
    <message>
        <source>Permanent</source>
        <extracomment>A rating of what a category holds: gone for good once cleaned</extracomment>
        <translation>Permanente</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>QuickLook thumbnails</source>
        <translation>Miniaturas da Visualização Rápida</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <translation>Cache de simuladores</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <translation>Lixeira</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>delete permanently</source>
        <extracomment>In the head of a log, after “Mode: ”</extracomment>
        <translation>apagar permanentemente</translation>
    </message>
    <message>
        <source>The home folder belongs to another user. Nothing was cleaned.</source>
        <translation>A pasta pessoal pertence a outro usuário. Nada foi limpo.</translation>
    </message>
    <message>
        <source>Another cleanup is already running.</source>
        <translation>Já há outra limpeza em andamento.</translation>
    </message>
    <message>
        <source>There is no telling whether another cleanup is running. Nothing was cleaned.</source>
        <translation>Não é possível saber se há outra limpeza em andamento. Nada foi limpo.</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>SAFE TO CLEAN</source>
        <extracomment>Heading over some categories, always in capitals</extracomment>
        <translation>Limpeza segura</translation>
    </message>
    <message>
        <source>REVIEW BEFORE CLEANING</source>
        <translation>Revisar antes de limpar</translation>
    </message>
    <message>
        <source>CANNOT BE UNDONE</source>
        <translation>Não pode ser desfeito</translation>
    </message>
    <message>
        <source>Details shown</source>
        <extracomment>Said by a screen reader of the category whose items are shown beside the list</extracomment>
        <translation>Detalhes à mostra</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <extracomment>Under the size of a category; %1: how many files it holds</extracomment>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 itens</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is running</source>
        <extracomment>Mark of a row; %1: an app</extracomment>
        <translation>%1 está em execução</translation>
    </message>
    <message>
        <source>Nothing left to clean. Rescan any time.</source>
        <translation>Não resta nada para limpar. Analise de novo quando quiser.</translation>
    </message>
    <message>
        <source>Largest items</source>
        <translation>Maiores itens</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Mostrar no %1</translation>
    </message>
    <message numerus="yes">
        <source>Show %1 more</source>
        <extracomment>Button under a list; %1: how many more rows it brings</extracomment>
        <translation>
            <numerusform>Mostrar mais %1</numerusform>
            <numerusform>Mostrar mais %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more items</source>
        <extracomment>At the end of a list; %1: how many rows are not shown</extracomment>
        <translation>
            <numerusform>e mais %1 item</numerusform>
            <numerusform>e mais %1 itens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b&gt;%Ln file(s) skipped&lt;/b&gt; because they were in use or protected. Quit the apps using them and rescan to remove them.</source>
        <translation>
            <numerusform>&lt;b&gt;%Ln arquivo ignorado&lt;/b&gt; porque estava em uso ou protegido. Feche os apps que o usam e analise de novo para removê-lo.</numerusform>
            <numerusform>&lt;b&gt;%Ln arquivos ignorados&lt;/b&gt; porque estavam em uso ou protegidos. Feche os apps que os usam e analise de novo para removê-los.</numerusform>
        </translation>
    </message>
    <message>
        <source>For example: %1</source>
        <extracomment>%1: a path; follows “… files skipped …”</extracomment>
        <translation>Por exemplo: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Left caches of running apps alone:&lt;/b&gt; %1. Quit them and clean again to include them.</source>
        <translation>&lt;b&gt;O cache de apps em execução não foi tocado:&lt;/b&gt; %1. Feche esses apps e limpe de novo para incluí-lo.</translation>
    </message>
    <message>
        <source>Cleanup complete</source>
        <translation>Limpeza concluída</translation>
    </message>
    <message>
        <source>Available before</source>
        <extracomment>Free space on the disk before the cleanup, over a size</extracomment>
        <translation>Disponível antes</translation>
    </message>
    <message>
        <source>Available now</source>
        <extracomment>Free space on the disk after the cleanup, over a size</extracomment>
        <translation>Disponível agora</translation>
    </message>
    <message>
        <source>View log</source>
        <translation>Ver registro</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the report</extracomment>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Moved to the %1. You can still restore anything.</source>
        <translation>Movido para %1. Você ainda pode restaurar tudo.</translation>
    </message>
    <message>
        <source>Items were deleted permanently.</source>
        <translation>Os itens foram apagados permanentemente.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Reiniciar como admin</translation>
    </message>
    <message>
        <source>Some folders need Full Disk Access.</source>
        <translation>Algumas pastas exigem Acesso Total ao Disco.</translation>
    </message>
    <message>
        <source>Some folders may need Full Disk Access.</source>
        <translation>Algumas pastas podem exigir Acesso Total ao Disco.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Abrir Ajustes do Sistema</translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Alguns arquivos pertencem ao sistema e não foram tocados.</translation>
    </message>
    <message>
        <source>These files need administrator rights.</source>
        <translation>Estes arquivos exigem permissão de administrador.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Some files need administrator rights.&lt;/b&gt; Restart Tarnwick as administrator and clean again to remove them.</source>
        <translation>&lt;b&gt;Alguns arquivos exigem permissão de administrador.&lt;/b&gt; Reinicie o Tarnwick como administrador e limpe de novo para removê-los.</translation>
    </message>
    <message>
        <source>You have no permission to read some of these folders.</source>
        <translation>Você não tem permissão para ler algumas destas pastas.</translation>
    </message>
    <message>
        <source>%1 is open. Quit it to include its cache.</source>
        <extracomment>%1: an app</extracomment>
        <translation>%1 está em execução. Feche o app para incluir o cache dele.</translation>
    </message>
    <message>
        <source>%1 are open. Quit them to include their caches.</source>
        <translation>%1 estão em execução. Feche os apps para incluir os caches deles.</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>Nada foi analisado ainda</translation>
    </message>
    <message>
        <source>Find caches, temporary files and leftovers.</source>
        <translation>Encontre caches, arquivos temporários e sobras.</translation>
    </message>
    <message>
        <source>Start Smart Scan</source>
        <translation>Iniciar análise inteligente</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Limpeza</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading while a cleanup runs</extracomment>
        <translation>Limpando</translation>
    </message>
    <message>
        <source>In progress</source>
        <extracomment>Small heading over “Cleaning” and “Scanning”</extracomment>
        <translation>Em andamento</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Under the size that was cleaned so far; %1: the size of the whole</extracomment>
        <translation>de %1</translation>
    </message>
    <message>
        <source>Select recommended</source>
        <extracomment>Button: tick the recommended categories</extracomment>
        <translation>Seleção recomendada</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Reanalisar</translation>
    </message>
    <message>
        <source>Selection</source>
        <extracomment>Said by a screen reader of the bar that shows what is ticked</extracomment>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Ver as regras</translation>
    </message>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Heading; %1: a size</extracomment>
        <translation>%1 para limpar</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected%3</source>
        <extracomment>%2: a size; %3: nothing or “ · some need admin”; leave the tag as it is</extracomment>
        <translation>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selecionados%3</translation>
    </message>
    <message>
        <source> · some need admin</source>
        <extracomment>Follows “… selected”: some of it needs administrator rights</extracomment>
        <translation> · parte exige administrador</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them; %1: the Trash</extracomment>
        <translation>será movido para %1</translation>
    </message>
    <message>
        <source>deleted permanently</source>
        <extracomment>What will become of the selected files, as the tip of the button that cleans them</extracomment>
        <translation>será apagado permanentemente</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <extracomment>Button; %1: a size</extracomment>
        <translation>Limpar %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules on what to keep have gone from the settings.&lt;/b&gt; Nothing is cleaned until you have looked at them.</source>
        <translation>&lt;b&gt;Faltam nos ajustes regras sobre o que deve ser mantido.&lt;/b&gt; Nada será limpo até que você as revise.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Nothing is cleaned until you have looked at the rules on what to keep.</source>
        <translation>&lt;b&gt;Não foi possível ler os ajustes.&lt;/b&gt; Nada será limpo até que você revise as regras sobre o que deve ser mantido.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>Heading while a scan runs</extracomment>
        <translation>Analisando</translation>
    </message>
    <message>
        <source>Items checked</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Analisados</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <extracomment>Caption of a counter: time since the start</extracomment>
        <translation>Decorrido</translation>
    </message>
    <message>
        <source>Remaining</source>
        <extracomment>Caption of a counter: time until the end</extracomment>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>found</source>
        <extracomment>Under a size: so much was found until now</extracomment>
        <translation>encontrados</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Exige Acesso Total ao Disco</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sem permissão de leitura</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Measures what could be cleaned, and changes nothing.</source>
        <translation>Mede o que poderia ser limpo, sem alterar nada.</translation>
    </message>
    <message>
        <source>Scans, shows what would go, asks, and cleans it.</source>
        <translation>Analisa, mostra o que seria removido, pergunta e limpa.</translation>
    </message>
    <message>
        <source>Searches the home folder for large files, and changes nothing.</source>
        <translation>Busca arquivos grandes na pasta pessoal, sem alterar nada.</translation>
    </message>
    <message>
        <source>Measures what makes up the system&apos;s share of the disk, and changes nothing.</source>
        <translation>Mede do que é composta a parte do disco ocupada pelo sistema, sem alterar nada.</translation>
    </message>
    <message>
        <source>look only at these categories; a clean then takes all of them, also those that are never cleaned unasked</source>
        <translation>analisa apenas estas categorias; ao limpar, inclui todas elas, também as que nunca são limpas sem que você peça</translation>
    </message>
    <message>
        <source>never touch what this rule names, beside the rules in the settings; repeatable</source>
        <translation>nunca toca no que esta regra indica, além das regras dos ajustes; pode ser repetida</translation>
    </message>
    <message>
        <source>delete for good, whatever the settings say</source>
        <translation>apaga permanentemente, não importa o que digam os ajustes</translation>
    </message>
    <message>
        <source>touch nothing; list what would go and what would stay, and why</source>
        <translation>não toca em nada; lista o que sairia e o que ficaria, e por quê</translation>
    </message>
    <message>
        <source>don&apos;t ask</source>
        <translation>não pergunta</translation>
    </message>
    <message>
        <source>look for files that take at least so many megabytes on the disk, whatever the settings say</source>
        <translation>busca arquivos que ocupem no disco pelo menos este número de megabytes, não importa o que digam os ajustes</translation>
    </message>
    <message>
        <source>one JSON object on standard output</source>
        <translation>um objeto JSON na saída padrão</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1: one or more words, with commas; %2: the last one</extracomment>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>mostra esta ajuda</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostra a versão</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: a command line, which stays as it is</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Say &quot;%1&quot; to learn about one.</source>
        <extracomment>%1: a command line; one: one of the commands above</extracomment>
        <translation>Digite &quot;%1&quot; para saber mais sobre um deles.</translation>
    </message>
    <message>
        <source>Categories: %1</source>
        <extracomment>%1: ids, which stay as they are</extracomment>
        <translation>Categorias: %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>a opção %1 não existe</translation>
    </message>
    <message>
        <source>there is no command %1, only %2</source>
        <translation>o comando %1 não existe, apenas %2</translation>
    </message>
    <message>
        <source>%1 is one word too many</source>
        <extracomment>%1: a word in quotes</extracomment>
        <translation>a palavra %1 está sobrando</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no --%2</source>
        <extracomment>%1: a command; %2: an option</extracomment>
        <translation>&quot;%1&quot; não aceita --%2</translation>
    </message>
    <message>
        <source>--delete and --trash exclude each other</source>
        <translation>--delete e --trash não podem ser usadas juntas</translation>
    </message>
    <message>
        <source>--only wants ids of categories: %1</source>
        <translation>--only espera identificadores de categorias: %1</translation>
    </message>
    <message>
        <source>there is no category %1, only %2</source>
        <translation>a categoria %1 não existe, apenas %2</translation>
    </message>
    <message>
        <source>--exclude wants a rule</source>
        <translation>--exclude espera uma regra</translation>
    </message>
    <message>
        <source>the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash</source>
        <translation>a regra %1 não corresponde a nada: um caminho começa com / ou ~/ e fica abaixo de /; um nome não tem barra</translation>
    </message>
    <message>
        <source>--min-mb wants a number of megabytes, not %1</source>
        <translation>--min-mb espera um número de megabytes, não %1</translation>
    </message>
    <message>
        <source>Nothing was cleaned.</source>
        <translation>Nada foi limpo.</translation>
    </message>
    <message>
        <source>Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.</source>
        <extracomment>%1, %2: paths</extracomment>
        <translation>Revise as regras nos ajustes do Tarnwick; ou corrija %1, ou remova esse arquivo junto com %2.</translation>
    </message>
    <message>
        <source>the scan was cancelled, and nothing was cleaned</source>
        <translation>a análise foi cancelada e nada foi limpo</translation>
    </message>
    <message>
        <source>there is no terminal to ask on, so nothing is cleaned without --yes</source>
        <translation>não há um terminal em que perguntar, por isso nada é limpo sem --yes</translation>
    </message>
    <message>
        <source>the search was cancelled</source>
        <translation>a busca foi cancelada</translation>
    </message>
    <message>
        <source>the output could not be written: %1</source>
        <translation>não foi possível gravar a saída: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Analisando</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 arquivo</numerusform>
            <numerusform>%1 arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Limpando</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>%1, %2: sizes, or numbers of rows</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>%1 de %2 arquivo</numerusform>
            <numerusform>%1 de %2 arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>the scan was cancelled</source>
        <translation>a análise foi cancelada</translation>
    </message>
    <message>
        <source>cancelling…</source>
        <extracomment>What the program does now, in a line that tells how far it is</extracomment>
        <translation>cancelando…</translation>
    </message>
    <message>
        <source>finishing this item, then stopping…</source>
        <translation>terminando este item antes de parar…</translation>
    </message>
    <message>
        <source>1 file</source>
        <extracomment>Stands alone or as %1 or %2 of another text</extracomment>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>Milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Not everything could be read: %1.</source>
        <extracomment>%1: titles, with commas</extracomment>
        <translation>Nem tudo pôde ser lido: %1.</translation>
    </message>
    <message>
        <source>the measuring was cancelled</source>
        <translation>a medição foi cancelada</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Head of a column</extracomment>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Head of a column: how many</extracomment>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>Head of a column: safe, review or permanent</extracomment>
        <translation>Avaliação</translation>
    </message>
    <message>
        <source>Where</source>
        <extracomment>Head of a column: the folder</extracomment>
        <translation>Local</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>%1 of it is safe to clean: tarnwick-cli clean</source>
        <extracomment>%1: a size; the command stays as it is</extracomment>
        <translation>Desse total, %1 podem ser limpos sem risco: tarnwick-cli clean</translation>
    </message>
    <message>
        <source>%1 is running, so %2 of its data will stay.</source>
        <extracomment>%1: an app; %2: a size</extracomment>
        <translation>%1 está em execução, por isso %2 dos seus dados não serão tocados.</translation>
    </message>
    <message>
        <source>Left alone unless you name it: %1. To clean it: --only %2</source>
        <extracomment>%1: titles with sizes; %2: ids</extracomment>
        <translation>Só é limpo se você indicar: %1. Para limpar: --only %2</translation>
    </message>
    <message>
        <source>deleted for good</source>
        <extracomment>In a table: what will become of a category; %1: the Trash</extracomment>
        <translation>apagado permanentemente</translation>
    </message>
    <message numerus="yes">
        <source>Skipped, %1 in all; the log tells why:</source>
        <extracomment>A list of files follows; %1: how many</extracomment>
        <translation>
            <numerusform>Ignorado, %1 no total; o registro explica o motivo:</numerusform>
            <numerusform>Ignorados, %1 no total; o registro explica o motivo:</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone, because they are running: %1.</source>
        <extracomment>%1: apps, with commas</extracomment>
        <translation>Os apps em execução não foram tocados: %1.</translation>
    </message>
    <message>
        <source>Scanned in %1. Nothing was changed.</source>
        <extracomment>%1: a time such as “2.1 s”</extracomment>
        <translation>Analisado em %1. Nada foi alterado.</translation>
    </message>
    <message>
        <source>There is nothing to clean.</source>
        <translation>Não há nada para limpar.</translation>
    </message>
    <message>
        <source>Delete %1 for good?</source>
        <extracomment>%1 and %2: sizes; %3: the Trash</extracomment>
        <translation>Apagar %1 permanentemente?</translation>
    </message>
    <message>
        <source>This was a dry run: nothing was touched.</source>
        <translation>Isto foi uma simulação: nada foi tocado.</translation>
    </message>
    <message numerus="yes">
        <source>Freed %1, removed %2.</source>
        <extracomment>%1: a size; %2: “1 file” or “%1 files”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 liberados, %2 removido.</numerusform>
            <numerusform>%1 liberados, %2 removidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files belong to the system and were left alone.</source>
        <translation>Alguns arquivos pertencem ao sistema e não foram tocados.</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Head of a column: the kind of a file</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Head of a column: a file&apos;s path</extracomment>
        <translation>Arquivo</translation>
    </message>
    <message numerus="yes">
        <source>The largest %1 of %2 files are listed.</source>
        <extracomment>The forms count %2</extracomment>
        <translation>
            <numerusform>São mostrados os %1 maiores de %2 arquivo.</numerusform>
            <numerusform>São mostrados os %1 maiores de %2 arquivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file in the home folder takes %1 or more.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Nenhum arquivo da pasta pessoal ocupa %1 ou mais.</translation>
    </message>
    <message numerus="yes">
        <source>Searched %1 in %2. Nothing was changed.</source>
        <extracomment>%1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”</extracomment>
        <translation>
            <numerusform>%1 verificado em %2. Nada foi alterado.</numerusform>
            <numerusform>%1 verificados em %2. Nada foi alterado.</numerusform>
        </translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>pelo menos %1</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Exige Acesso Total ao Disco</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sem permissão de leitura</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Maiores: %1</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Você pode liberar</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Gerenciado pelo macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Gerenciado pelo sistema</translation>
    </message>
    <message>
        <source>%1 of it you can act on.</source>
        <extracomment>%1: a size</extracomment>
        <translation>Desse total, você pode agir sobre %1.</translation>
    </message>
    <message>
        <source>Measured in %1. Nothing was changed.</source>
        <translation>Medido em %1. Nada foi alterado.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1: the title of a category; %2: a size</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>move to the %1, whatever the settings say</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>move para %1, não importa o que digam os ajustes</translation>
    </message>
    <message>
        <source>%1 of it lies on a volume without a %2 and will stay, unless you say --delete.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>Desse total, %1 estão em um volume em que falta %2 e não serão tocados, a menos que você use --delete.</translation>
    </message>
    <message>
        <source>moved to the %1</source>
        <translation>movido para %1</translation>
    </message>
    <message>
        <source>What was moved to the %1 takes its room until you empty it.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>O que foi movido para %1 continua ocupando espaço até o esvaziamento.</translation>
    </message>
    <message>
        <source>Move %2 to the %3?</source>
        <translation>Mover %2 para %3?</translation>
    </message>
    <message>
        <source>Delete %1 for good and move %2 to the %3?</source>
        <translation>Apagar %1 permanentemente e mover %2 para %3?</translation>
    </message>
    <message>
        <source>y yes</source>
        <extracomment>What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no</extracomment>
        <translation>s sim</translation>
    </message>
    <message>
        <source>[y/N]</source>
        <extracomment>How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)</extracomment>
        <translation>[s/N]</translation>
    </message>
</context>
<context>
    <name>DiskOrb</name>
    <message>
        <source>%1 can be cleaned</source>
        <extracomment>Said by a screen reader; %1: a size</extracomment>
        <translation>É possível limpar %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: how much of the disk, such as “62%”</extracomment>
        <translation>%1 em uso</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>%1 used</source>
        <extracomment>Said by a screen reader; %1: a share such as “73%”</extracomment>
        <translation>%1 em uso</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under a share such as “73%”: so much of the disk is used</extracomment>
        <translation>em uso</translation>
    </message>
</context>
<context>
    <name>LargeFileFinder</name>
    <message>
        <source>Disk image</source>
        <extracomment>Kind of a file, as the following</extracomment>
        <translation>Imagem de disco</translation>
    </message>
    <message>
        <source>Partial download</source>
        <extracomment>Kind of a file: a download that has not ended</extracomment>
        <translation>Download parcial</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Compactado</translation>
    </message>
    <message>
        <source>Installer</source>
        <extracomment>Kind of a file: it installs a program</extracomment>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Kind of a file: a picture</extracomment>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Kind of a file: any other</extracomment>
        <translation>Arquivo</translation>
    </message>
</context>
<context>
    <name>LargeFilesPage</name>
    <message>
        <source>Selected</source>
        <extracomment>Said by a screen reader of the column of ticks</extracomment>
        <translation>Selecionado</translation>
    </message>
    <message>
        <source>ascending</source>
        <extracomment>Said by a screen reader after a column: how it is sorted</extracomment>
        <translation>crescente</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>decrescente</translation>
    </message>
    <message>
        <source>Space Map</source>
        <extracomment>Name of the page with the map of large files</extracomment>
        <translation>Mapa de espaço</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: search again</extracomment>
        <translation>Reanalisar</translation>
    </message>
    <message>
        <source>Find what&apos;s taking up space</source>
        <translation>Descubra o que está ocupando espaço</translation>
    </message>
    <message>
        <source>Big files in your home folder. You decide what goes.</source>
        <translation>Arquivos grandes da sua pasta pessoal. Você decide o que sai.</translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation>Buscar arquivos grandes</translation>
    </message>
    <message>
        <source>Home folder · over %1</source>
        <extracomment>Small heading; %1: the least size of files that are listed</extracomment>
        <translation>Pasta pessoal · mais de %1</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Filter of a list of files: every file</extracomment>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sem uso</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <extracomment>Button; %1: the file manager, Finder or Files</extracomment>
        <translation>Mostrar no %1</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <extracomment>Button; %1: the Trash</extracomment>
        <translation>Mover para %1</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Said by a screen reader of the filters: which files to show</extracomment>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Buscar arquivos</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Maiores arquivos</translation>
    </message>
    <message numerus="yes">
        <source>Unused %1+ months</source>
        <extracomment>Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)</extracomment>
        <translation>
            <numerusform>%1+ mês sem uso</numerusform>
            <numerusform>%1+ meses sem uso</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selected of %3 · %4 files</source>
        <extracomment>%2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is</extracomment>
        <translation>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selecionados de %3 · %4 arquivo</numerusform>
            <numerusform>&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; selecionados de %3 · %4 arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking for large files…</source>
        <translation>Buscando arquivos grandes…</translation>
    </message>
    <message>
        <source>Large files</source>
        <extracomment>Caption of a counter</extracomment>
        <translation>Arquivos grandes</translation>
    </message>
    <message>
        <source>Largest so far</source>
        <extracomment>Heading of a list while the search runs</extracomment>
        <translation>Maiores até agora</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Said by a screen reader of the heads of the columns</extracomment>
        <translation>Ordenar por</translation>
    </message>
</context>
<context>
    <name>LoginEntry</name>
    <message>
        <source>%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.</source>
        <extracomment>%1: a path</extracomment>
        <translation>%1 não é do Tarnwick e foi mantido como estava. Remova esse arquivo para abrir o Tarnwick ao iniciar sessão.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written, so Tarnwick does not open at login.</source>
        <translation>Não é possível gravar %1, por isso o Tarnwick não abre ao iniciar sessão.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed, so Tarnwick still opens at login.</source>
        <translation>Não é possível remover %1, por isso o Tarnwick continua abrindo ao iniciar sessão.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tarnwick was updated to version %1.</source>
        <translation>O Tarnwick foi atualizado para a versão %1.</translation>
    </message>
    <message>
        <source>%1 is almost full. Run Smart Scan to free up space.</source>
        <extracomment>%1: the disk, such as “System disk”</extracomment>
        <translation>%1: resta pouco espaço. Use a análise inteligente para liberar espaço.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Tarnwick Website</source>
        <translation>Site do Tarnwick</translation>
    </message>
    <message>
        <source>About Tarnwick</source>
        <translation>Sobre o Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar atualizações…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Sair do Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análise inteligente</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Buscar arquivos grandes</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fechar janela</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Entry of the menu View: the page Cleanup</extracomment>
        <translation>Limpeza</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Mapa de espaço</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Dados do sistema</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Ocultar barra lateral</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Entrar em tela cheia</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>Entry of the menu Window: make the window large, or as it was</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Trazer todas para a frente</translation>
    </message>
    <message>
        <source>Guide</source>
        <extracomment>Entry of the menu Help: the guide on the website</extracomment>
        <translation>Guia</translation>
    </message>
    <message>
        <source>FAQ</source>
        <extracomment>Entry of the menu Help: frequently asked questions</extracomment>
        <translation>Perguntas frequentes</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <extracomment>Entry of the menu Help: the folder with the logs of cleanups</extracomment>
        <translation>Abrir pasta de registros</translation>
    </message>
    <message>
        <source>Open Menu</source>
        <translation>Abrir menu</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Title of a menu</extracomment>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizar</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>Mostrar barra lateral</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Sair da tela cheia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar atualizações</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>© 2026 the Tarnwick authors</source>
        <translation>© 2026 os autores do Tarnwick</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Remember my choice</source>
        <translation>Lembrar minha escolha</translation>
    </message>
    <message>
        <source>Keep Tarnwick running?</source>
        <translation>Manter o Tarnwick em execução?</translation>
    </message>
    <message>
        <source>Tarnwick can stay in the system tray when you close the window, so scheduled scans and low space alerts keep working. You can open it again from the tray icon.</source>
        <translation>O Tarnwick pode ficar na bandeja do sistema quando você fecha a janela, para que as análises agendadas e os avisos de pouco espaço continuem funcionando. Você pode abri-lo de novo pelo ícone na bandeja.</translation>
    </message>
    <message>
        <source>You can change this in Settings.</source>
        <translation>Você pode mudar isso em Ajustes.</translation>
    </message>
    <message>
        <source>Keep in tray</source>
        <translation>Manter na bandeja</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Button: quit Tarnwick</extracomment>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Permanent delete is on. These files can&apos;t be recovered.</source>
        <translation>A opção de apagar permanentemente está ativada. Não será possível recuperar estes arquivos.</translation>
    </message>
    <message>
        <source>Emptying the %1 can&apos;t be undone. Everything else goes to the %1.</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Esvaziar %1 é uma ação que não pode ser desfeita. Todo o resto vai para %1.</translation>
    </message>
    <message>
        <source>Everything will be moved to the %1, so you can restore it later.</source>
        <translation>Tudo será movido para %1, e você poderá restaurar depois.</translation>
    </message>
    <message>
        <source>Clean and delete</source>
        <extracomment>Button: clean, where some of it is deleted for good</extracomment>
        <translation>Limpar e apagar</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Button: start the cleanup</extracomment>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Clean %1?</source>
        <extracomment>Heading of the question; %1: a size</extracomment>
        <translation>Limpar %1?</translation>
    </message>
    <message>
        <source>%1 of it will stay: there is no %2 on its volume.</source>
        <extracomment>%1: a size; %2: the Trash</extracomment>
        <translation>Desse total, %1 ficarão onde estão: falta %2 no volume.</translation>
    </message>
    <message>
        <source>%1 of it will stay while these apps are open: %2.</source>
        <extracomment>%1: a size; %2: apps, with commas</extracomment>
        <translation>Desse total, %1 ficarão onde estão enquanto estes apps estiverem abertos: %2.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Button: put the files back that were moved to the Trash</extracomment>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Version %1 is available. You have %2.</source>
        <extracomment>%1, %2: versions such as “1.2.0”</extracomment>
        <translation>A versão %1 está disponível. Você tem a %2.</translation>
    </message>
    <message>
        <source>An update is available</source>
        <translation>Há uma atualização disponível</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the update is there; %1, %2: sizes</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Baixando a atualização…</translation>
    </message>
    <message>
        <source>Drag Tarnwick to Applications in the window that opens to replace this version.</source>
        <translation>Para substituir esta versão, arraste o Tarnwick para Aplicativos na janela que se abre.</translation>
    </message>
    <message>
        <source>Your file manager opens the folder with the downloaded package. Install it the way you install packages.</source>
        <translation>Seu gerenciador de arquivos abre a pasta com o pacote baixado. Instale-o como você instala qualquer pacote.</translation>
    </message>
    <message>
        <source>Tarnwick is up to date</source>
        <translation>O Tarnwick está atualizado</translation>
    </message>
    <message>
        <source>Version %1 is the latest version.</source>
        <translation>A versão %1 é a mais recente.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Não foi possível buscar atualizações</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Verifique sua conexão com a internet e tente de novo.</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Instalando a atualização…</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando atualizações…</translation>
    </message>
    <message>
        <source>Version %1 is installed.</source>
        <translation>A versão %1 está instalada.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button: look for updates again</extracomment>
        <translation>Tentar de novo</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: do not update now</extracomment>
        <translation>Mais tarde</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Scanned %1</source>
        <extracomment>%1: when, as “today”, “yesterday” or “3 days ago”</extracomment>
        <translation>Analisado %1</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>The scheduled scan is switched off</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>How often the scheduled scan runs</extracomment>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensal</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análise inteligente</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Small heading over “Smart Scan”</extracomment>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: scan again</extracomment>
        <translation>Reanalisar</translation>
    </message>
    <message>
        <source>Disk health</source>
        <extracomment>Small heading</extracomment>
        <translation>Estado do disco</translation>
    </message>
    <message>
        <source>System files protected</source>
        <extracomment>Mark with a green dot: they are never touched</extracomment>
        <translation>Arquivos do sistema protegidos</translation>
    </message>
    <message numerus="yes">
        <source>Freed in the last %1 months</source>
        <extracomment>Said by a screen reader of a small chart; %1: 6</extracomment>
        <translation>
            <numerusform>Liberado no último mês (%1)</numerusform>
            <numerusform>Liberado nos últimos %1 meses</numerusform>
        </translation>
    </message>
    <message>
        <source>See all</source>
        <extracomment>Button: all categories</extracomment>
        <translation>Ver tudo</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Análise agendada</translation>
    </message>
    <message>
        <source>free of %1</source>
        <extracomment>Under the size of the free space; %1: the size of the disk</extracomment>
        <translation>livres de %1</translation>
    </message>
    <message>
        <source>Review</source>
        <extracomment>Button: look at what was found</extracomment>
        <translation>Revisar</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analisar</translation>
    </message>
    <message>
        <source>%1 ready to clean</source>
        <extracomment>Headline; %1: a size, which is painted in colours</extracomment>
        <translation>%1 prontos para limpar</translation>
    </message>
    <message>
        <source>Your startup disk is almost full</source>
        <translation>O disco de inicialização está quase cheio</translation>
    </message>
    <message>
        <source>Keep your disk in shape</source>
        <translation>Mantenha seu disco em forma</translation>
    </message>
    <message>
        <source>%1 purgeable</source>
        <extracomment>%1: the size of what the system gives back by itself when space runs low</extracomment>
        <translation>%1 purgáveis</translation>
    </message>
    <message>
        <source>Apps, documents &amp; system</source>
        <translation>Apps, documentos e sistema</translation>
    </message>
    <message>
        <source>Reclaimable</source>
        <extracomment>Legend of the disk: what can be cleaned</extracomment>
        <translation>Liberável</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>Legend of the disk: what is free</extracomment>
        <translation>Disponível</translation>
    </message>
    <message>
        <source>Never scanned</source>
        <translation>Nunca analisado</translation>
    </message>
    <message>
        <source>Last scan</source>
        <extracomment>Caption under when it was</extracomment>
        <translation>Última análise</translation>
    </message>
    <message>
        <source>Freed this month</source>
        <extracomment>Caption under a size</extracomment>
        <translation>Liberado este mês</translation>
    </message>
    <message>
        <source>Top recommendations</source>
        <translation>Principais recomendações</translation>
    </message>
    <message>
        <source>What Smart Scan looks at</source>
        <translation>O que a análise inteligente verifica</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>System disk</source>
        <extracomment>The name of the disk that the system starts from</extracomment>
        <translation>Disco do sistema</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>The Trash of macOS by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>o Lixo</translation>
    </message>
    <message>
        <source>Finder</source>
        <extracomment>The file manager of macOS; stands in other texts as “%1”</extracomment>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>The file manager of Linux desktops; stands in other texts as “%1”</extracomment>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Trash</source>
        <comment>Linux</comment>
        <extracomment>The Trash of Linux desktops by its name in this language; stands in other texts as “%1”</extracomment>
        <translation>a Lixeira</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of a text field: what is selected</extracomment>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
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
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Administrator access</source>
        <translation>Acesso de administrador</translation>
    </message>
    <message>
        <source>Tarnwick is running as administrator and can clean Windows Update files.</source>
        <translation>O Tarnwick está em execução como administrador e pode limpar arquivos do Windows Update.</translation>
    </message>
    <message>
        <source>Granted</source>
        <extracomment>Beside a permission that Tarnwick has</extracomment>
        <translation>Concedido</translation>
    </message>
    <message>
        <source>Only needed to clean Windows Update leftovers.</source>
        <translation>Só é necessário para limpar sobras do Windows Update.</translation>
    </message>
    <message>
        <source>Restart as admin</source>
        <translation>Reiniciar como admin</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Acesso Total ao Disco</translation>
    </message>
    <message>
        <source>Needed to clean Safari&apos;s cache and the Trash.</source>
        <translation>Necessário para limpar o cache do Safari e o Lixo.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir Ajustes</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <extracomment>Of the languages: follow the system; %1: the language that this is now</extracomment>
        <translation>Padrão do sistema (%1)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <extracomment>Heading of settings</extracomment>
        <translation>Limpeza</translation>
    </message>
    <message>
        <source>Automation</source>
        <translation>Automação</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Exclusions</source>
        <extracomment>Heading of settings: what is never cleaned</extracomment>
        <translation>Exceções</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Heading of settings: about Tarnwick</extracomment>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Permissions &amp; about</source>
        <translation>Permissões e informações</translation>
    </message>
    <message>
        <source>Move items to the %1</source>
        <extracomment>%1: the Trash</extracomment>
        <translation>Mover os itens para %1</translation>
    </message>
    <message>
        <source>Recommended. Turn off to delete files permanently.</source>
        <translation>Recomendado. Desative para apagar os arquivos permanentemente.</translation>
    </message>
    <message>
        <source>Large file size</source>
        <translation>Arquivos grandes a partir de</translation>
    </message>
    <message>
        <source>Files bigger than this appear in Large &amp; Old Files.</source>
        <translation>Os arquivos maiores que isto aparecem no Mapa de espaço.</translation>
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
        <translation>Arquivos antigos a partir de</translation>
    </message>
    <message>
        <source>Used by the “Unused” filter.</source>
        <extracomment>“Unused” as on the page Space Map</extracomment>
        <translation>Usado pelo filtro “Sem uso”.</translation>
    </message>
    <message>
        <source>3 months</source>
        <extracomment>How long a file has not been opened</extracomment>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 meses</translation>
    </message>
    <message>
        <source>12 months</source>
        <translation>12 meses</translation>
    </message>
    <message>
        <source>24 months</source>
        <translation>24 meses</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Análise agendada</translation>
    </message>
    <message>
        <source>Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.</source>
        <translation>Analisa quando o Tarnwick é aberto se a última análise for mais antiga que isto. Nunca limpa por conta própria.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Of the scheduled scan: never</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensal</translation>
    </message>
    <message>
        <source>Low space alerts</source>
        <translation>Avisos de pouco espaço</translation>
    </message>
    <message>
        <source>Warn when free space drops below 10%.</source>
        <translation>Avisa quando o espaço livre fica abaixo de 10%.</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir ao iniciar sessão</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar com o Windows</translation>
    </message>
    <message>
        <source>Starts Tarnwick in the background so scheduled scans can run.</source>
        <translation>Inicia o Tarnwick em segundo plano para que as análises agendadas possam ser feitas.</translation>
    </message>
    <message>
        <source>Show Tarnwick in the system tray</source>
        <translation>Mostrar o Tarnwick na bandeja do sistema</translation>
    </message>
    <message>
        <source>Show Tarnwick in the menu bar</source>
        <translation>Mostrar o Tarnwick na barra de menus</translation>
    </message>
    <message>
        <source>Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts keep working.</source>
        <translation>Ao fechar a janela, o Tarnwick continua em execução ali, para que as análises agendadas e os avisos de pouco espaço continuem funcionando.</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>Perguntar sempre</translation>
    </message>
    <message>
        <source>Keep running in the tray</source>
        <translation>Manter na bandeja</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Sair do Tarnwick</translation>
    </message>
    <message>
        <source>When closing the window</source>
        <translation>Ao fechar a janela</translation>
    </message>
    <message>
        <source>In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.</source>
        <translation>Na bandeja, o Tarnwick continua em execução para que as análises agendadas e os avisos de pouco espaço continuem funcionando.</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>Light or dark colours</extracomment>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Follow the system, or always use light or dark.</source>
        <translation>Siga o sistema ou use sempre o tema claro ou o escuro.</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Of the theme: as the system has it</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>Of the theme: light colours</extracomment>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>Of the theme: dark colours</extracomment>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Tarnwick restarts to switch languages.</source>
        <translation>O Tarnwick reinicia para mudar de idioma.</translation>
    </message>
    <message>
        <source>Protected system locations</source>
        <translation>Locais protegidos do sistema</translation>
    </message>
    <message>
        <source> — always skipped.</source>
        <extracomment>Follows a list of folders</extracomment>
        <translation> — sempre ignorados.</translation>
    </message>
    <message>
        <source>Protected apps</source>
        <translation>Apps protegidos</translation>
    </message>
    <message>
        <source> — their data is never cleaned. Caches of running apps and open files are skipped too.</source>
        <translation> — os dados deles nunca são limpos. Caches de apps em execução e arquivos abertos também são ignorados.</translation>
    </message>
    <message>
        <source>Open logs</source>
        <translation>Abrir registros</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar atualizações</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.</source>
        <translation>Toda limpeza gera um registro que você pode consultar. O Tarnwick busca atualizações ao ser aberto.</translation>
    </message>
    <message>
        <source>Every cleanup writes a log you can review.</source>
        <translation>Toda limpeza gera um registro que você pode consultar.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rules have gone from the settings.&lt;/b&gt; Check that these are all of yours, and put back what is missing. Nothing is cleaned until then.</source>
        <translation>&lt;b&gt;Faltam regras nos ajustes.&lt;/b&gt; Confira se estas são todas as suas e adicione de novo as que faltarem. Até lá, nada é limpo.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The settings can&apos;t be read.&lt;/b&gt; Check that these are all of your rules, and put back what is missing. Nothing is cleaned until then, and the damaged file stays.</source>
        <translation>&lt;b&gt;Não foi possível ler os ajustes.&lt;/b&gt; Confira se estas são todas as suas regras e adicione de novo as que faltarem. Até lá, nada é limpo, e o arquivo danificado é mantido.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Never touch these</source>
        <translation>Nunca tocar nestes itens</translation>
    </message>
    <message>
        <source>Folders and patterns Tarnwick always skips.</source>
        <translation>Pastas e padrões que o Tarnwick sempre ignora.</translation>
    </message>
    <message>
        <source>These are my rules</source>
        <extracomment>Button: the rules were looked at and are right</extracomment>
        <translation>Estas são minhas regras</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Tip of a button that takes a rule away</extracomment>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Choose a folder to exclude</source>
        <translation>Escolha uma pasta que não deve ser tocada</translation>
    </message>
    <message>
        <source>The rules are kept. The damaged settings file stays beside the new one.</source>
        <translation>As regras foram salvas. O arquivo de ajustes danificado é mantido ao lado do novo.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be written, so they stay as they are.</source>
        <translation>Não é possível gravar os ajustes, por isso eles ficam como estão.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Said by a screen reader of a button; %1: a rule, such as &quot;.git&quot;</extracomment>
        <translation>Remover %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>%1 available of %2</source>
        <extracomment>Sizes of the free space and of the disk</extracomment>
        <translation>%1 disponíveis de %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1: the size of the free space</extracomment>
        <translation>%1 livres</translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation>Expandir barra lateral</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análise inteligente</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <extracomment>Noun: the page for cleaning</extracomment>
        <translation>Limpeza</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Mapa de espaço</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Dados do sistema</translation>
    </message>
    <message>
        <source>Clean</source>
        <extracomment>Heading over the pages of the sidebar: what one comes here for</extracomment>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation>Recolher barra lateral</translation>
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
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Em andamento</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>State of a step of the scan, said by a screen reader</extracomment>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>Review in Finder</source>
        <extracomment>Button of a row on the page System Data</extracomment>
        <translation>Revisar no Finder</translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation>Mostrar no Arquivos</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover para o Lixo</translation>
    </message>
    <message>
        <source>Remove snapshots</source>
        <translation>Remover snapshots</translation>
    </message>
    <message>
        <source>Delete unavailable</source>
        <extracomment>Button: delete the simulator devices that can not be used any more</extracomment>
        <translation>Apagar indisponíveis</translation>
    </message>
    <message>
        <source>Clean in Cleanup</source>
        <extracomment>Button: go to the page Cleanup to clean it there</extracomment>
        <translation>Ir para Limpeza</translation>
    </message>
    <message>
        <source>Open Xcode</source>
        <translation>Abrir o Xcode</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1</source>
        <extracomment>%1: a path</extracomment>
        <translation>Não foi possível abrir %1</translation>
    </message>
    <message>
        <source>1 item</source>
        <extracomment>How many items were moved: %1 of “Moved %1 to the Trash”</extracomment>
        <translation>1 item</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 itens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash, %2 couldn&apos;t be moved</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count; %2: how many others</extracomment>
        <translation>
            <numerusform>%1 movido para o Lixo; não foi possível mover: %2</numerusform>
            <numerusform>%1 movidos para o Lixo; não foi possível mover: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to move</source>
        <translation>Nada para mover</translation>
    </message>
    <message numerus="yes">
        <source>Moved %1 to the Trash</source>
        <extracomment>%1: “1 item” or “%1 items”, which the forms count</extracomment>
        <translation>
            <numerusform>%1 movido para o Lixo</numerusform>
            <numerusform>%1 movidos para o Lixo</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no local snapshots to remove</source>
        <translation>Não há snapshots locais para remover</translation>
    </message>
    <message>
        <source>Snapshots were not removed</source>
        <translation>Os snapshots não foram removidos</translation>
    </message>
    <message numerus="yes">
        <source>Removed %1 of %2 snapshots</source>
        <extracomment>The forms count %2, how many there were</extracomment>
        <translation>
            <numerusform>%1 de %2 snapshot removido</numerusform>
            <numerusform>%1 de %2 snapshots removidos</numerusform>
        </translation>
    </message>
    <message>
        <source>Simulator cleanup failed: %1</source>
        <extracomment>%1: what the tool said, in English</extracomment>
        <translation>Não foi possível limpar os simuladores: %1</translation>
    </message>
    <message>
        <source>No unavailable simulator devices — nothing to delete</source>
        <translation>Nenhum dispositivo de simulador indisponível: nada para apagar</translation>
    </message>
    <message>
        <source>Deleted 1 unavailable simulator device</source>
        <translation>1 dispositivo de simulador indisponível apagado</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 unavailable simulator devices</source>
        <translation>
            <numerusform>%1 dispositivo de simulador indisponível apagado</numerusform>
            <numerusform>%1 dispositivos de simulador indisponíveis apagados</numerusform>
        </translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed</source>
        <translation>O Xcode não está instalado</translation>
    </message>
    <message>
        <source>Your app caches</source>
        <translation>Caches dos seus apps</translation>
    </message>
    <message>
        <source>Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Caches que os apps guardam na sua pasta de caches. Os seguros podem ser limpos em Limpeza.</translation>
    </message>
    <message>
        <source>Hidden folders in your home folder</source>
        <translation>Pastas ocultas da sua pasta pessoal</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Caches, ajustes e instalações que ferramentas de desenvolvimento e apps guardam em pastas ocultas como .npm, .cargo e .nvm. Os caches podem ser limpos sem risco; mantenha as ferramentas instaladas.</translation>
    </message>
    <message>
        <source>Flatpak app data</source>
        <translation>Dados de apps Flatpak</translation>
    </message>
    <message>
        <source>Settings, files and caches of your Flatpak apps, which each keep their own. “flatpak uninstall --delete-data” removes those of apps that are gone.</source>
        <translation>Ajustes, arquivos e caches dos seus apps Flatpak, cada um com os seus. “flatpak uninstall --delete-data” remove os dos apps que não existem mais.</translation>
    </message>
    <message>
        <source>Your Flatpak apps and runtimes</source>
        <translation>Seus apps e runtimes Flatpak</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for you alone, and the runtimes that they need. “flatpak uninstall --user --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps que o Flatpak instalou só para você e os runtimes de que eles precisam. “flatpak uninstall --user --unused” remove os runtimes de que nenhum app precisa mais.</translation>
    </message>
    <message>
        <source>Containers and images</source>
        <translation>Contêineres e imagens</translation>
    </message>
    <message>
        <source>Images, containers and volumes that Docker and Podman keep. “docker system prune” and “podman system prune” remove what no container uses.</source>
        <translation>Imagens, contêineres e volumes que o Docker e o Podman guardam. “docker system prune” e “podman system prune” removem o que nenhum contêiner usa.</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>Máquinas virtuais</translation>
    </message>
    <message>
        <source>Disk images of virtual machines, kept by the program that made them. Delete a machine there, or with “virsh undefine --remove-all-storage”.</source>
        <translation>Imagens de disco de máquinas virtuais, guardadas pelo programa que as criou. Apague a máquina nesse programa ou com “virsh undefine --remove-all-storage”.</translation>
    </message>
    <message>
        <source>Game libraries</source>
        <translation>Bibliotecas de jogos</translation>
    </message>
    <message>
        <source>Games, kept by Steam and other launchers. Uninstall a game in its launcher.</source>
        <translation>Jogos guardados pelo Steam e por outros lançadores. Desinstale um jogo no lançador dele.</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>Dados de apps</translation>
    </message>
    <message>
        <source>Databases and files that apps keep for you, and your Trash. Remove an app&apos;s data from within the app, or after uninstalling it.</source>
        <translation>Bancos de dados e arquivos que os apps guardam para você, e a sua Lixeira. Remova os dados de um app no próprio app ou depois de desinstalá-lo.</translation>
    </message>
    <message>
        <source>Settings of your apps</source>
        <translation>Ajustes dos seus apps</translation>
    </message>
    <message>
        <source>Settings that apps keep for you; some keep profiles and caches beside them. An app without its settings starts afresh.</source>
        <translation>Ajustes que os apps guardam para você; alguns guardam perfis e caches junto com eles. Um app sem seus ajustes começa do zero.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>Journal do sistema</translation>
    </message>
    <message>
        <source>The log of the system and its services, which journald keeps within a limit. “journalctl --vacuum-size=200M” trims it at once.</source>
        <translation>O registro do sistema e dos seus serviços, que o journald mantém dentro de um limite. “journalctl --vacuum-size=200M” o reduz na hora.</translation>
    </message>
    <message>
        <source>System logs</source>
        <translation>Registros do sistema</translation>
    </message>
    <message>
        <source>Log files of services and of the package manager. logrotate compresses and deletes old ones.</source>
        <translation>Arquivos de registro dos serviços e do gerenciador de pacotes. O logrotate compacta os antigos e os apaga.</translation>
    </message>
    <message>
        <source>Crash dumps</source>
        <translation>Despejos de memória</translation>
    </message>
    <message>
        <source>What was in the memory of programs that crashed, kept for reports. The system deletes old ones; “coredumpctl” lists them.</source>
        <translation>O que estava na memória de programas que falharam, guardado para relatórios. O sistema apaga os antigos; “coredumpctl” lista todos.</translation>
    </message>
    <message>
        <source>Package downloads</source>
        <translation>Pacotes baixados</translation>
    </message>
    <message>
        <source>Packages that the package manager downloaded and has installed since. “apt-get clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.</source>
        <translation>Pacotes que o gerenciador de pacotes baixou e já instalou. “apt-get clean”, “dnf clean packages”, “pacman -Sc” ou “zypper clean” os remove.</translation>
    </message>
    <message>
        <source>Snap packages and old revisions</source>
        <translation>Pacotes snap e revisões antigas</translation>
    </message>
    <message>
        <source>Snap packages, with earlier revisions that snapd keeps to go back to. “snap set system refresh.retain=2” keeps fewer.</source>
        <translation>Pacotes snap, com revisões anteriores que o snapd guarda para poder voltar atrás. “snap set system refresh.retain=2” faz guardar menos.</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes of the system</source>
        <translation>Apps e runtimes Flatpak do sistema</translation>
    </message>
    <message>
        <source>Apps that Flatpak installed for all users, and the runtimes that they need. “flatpak uninstall --unused” removes runtimes that no app needs any more.</source>
        <translation>Apps que o Flatpak instalou para todos os usuários e os runtimes de que eles precisam. “flatpak uninstall --unused” remove os runtimes de que nenhum app precisa mais.</translation>
    </message>
    <message>
        <source>Kernels and their modules</source>
        <translation>Kernels e seus módulos</translation>
    </message>
    <message>
        <source>The kernels that the system can start, with their drivers. The package manager keeps the newest; “apt-get autoremove” removes older ones.</source>
        <translation>Os kernels com que o sistema pode iniciar, com seus drivers. O gerenciador de pacotes mantém o mais novo; “apt-get autoremove” remove os antigos.</translation>
    </message>
    <message>
        <source>Swap and hibernation files</source>
        <translation>Arquivos de swap e hibernação</translation>
    </message>
    <message>
        <source>Room on the disk for what doesn&apos;t fit into memory, and for memory itself during hibernation. The system&apos;s settings fix its size; “swapon --show” lists it.</source>
        <translation>Espaço no disco para o que não cabe na memória, e para a própria memória durante a hibernação. Os ajustes do sistema definem o tamanho; “swapon --show” o mostra.</translation>
    </message>
    <message>
        <source>System snapshots</source>
        <translation>Snapshots do sistema</translation>
    </message>
    <message>
        <source>Earlier states of the system, which Timeshift or Snapper keeps. They share what didn&apos;t change, so they have no size of their own; “timeshift --delete” or “snapper delete” removes one.</source>
        <translation>Estados anteriores do sistema, guardados pelo Timeshift ou pelo Snapper. Eles compartilham o que não mudou, por isso não têm tamanho próprio; “timeshift --delete” ou “snapper delete” remove um deles.</translation>
    </message>
    <message>
        <source>Time Machine local snapshots</source>
        <translation>Snapshots locais do Time Machine</translation>
    </message>
    <message>
        <source>Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when space runs low; removing them now is safe, but you lose those restore points.</source>
        <translation>Snapshots que o macOS guarda de hora em hora neste disco até que o Time Machine possa acessar o disco de backup. O macOS os libera quando falta espaço; removê-los agora é seguro, mas você perde esses pontos de restauração.</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad backups</source>
        <translation>Backups de iPhone e iPad</translation>
    </message>
    <message>
        <source>Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud backup exists.</source>
        <translation>Backups de dispositivos feitos pelo Finder. Apague os antigos no Finder (Geral → Gerenciar Backups) quando houver um mais recente ou um no iCloud.</translation>
    </message>
    <message>
        <source>Xcode device support</source>
        <translation>Suporte a dispositivos do Xcode</translation>
    </message>
    <message>
        <source>Debug symbols Xcode copies from every iOS, watchOS and tvOS version you&apos;ve connected. Xcode copies them again the next time you connect that device.</source>
        <translation>Símbolos de depuração que o Xcode copia de cada versão do iOS, watchOS e tvOS que você já conectou. O Xcode os copia de novo na próxima vez que você conectar esse dispositivo.</translation>
    </message>
    <message>
        <source>iOS Simulator devices</source>
        <translation>Dispositivos do Simulador de iOS</translation>
    </message>
    <message>
        <source>Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe.</source>
        <translation>Dispositivos de simulador e os dados dos seus apps. Remover os indisponíveis (de runtimes que você não tem mais) é seguro.</translation>
    </message>
    <message>
        <source>Simulator runtimes &amp; caches</source>
        <translation>Runtimes e caches de simuladores</translation>
    </message>
    <message>
        <source>iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you don&apos;t use in Xcode › Settings › Components.</source>
        <translation>Runtimes de simulador de iOS, watchOS e visionOS que o Xcode baixou, além dos seus caches compartilhados. Remova os que você não usa em Xcode › Settings › Components.</translation>
    </message>
    <message>
        <source>Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.</source>
        <translation>Caches que os apps guardam na sua pasta Biblioteca. Os seguros podem ser limpos em Limpeza.</translation>
    </message>
    <message>
        <source>Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool installs.</source>
        <translation>Caches, ajustes e instalações que ferramentas de desenvolvimento e apps guardam em pastas ocultas como .cache, .npm e .nvm. Os caches podem ser limpos sem risco; mantenha as ferramentas instaladas.</translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation>Compilações arquivadas do Xcode</translation>
    </message>
    <message>
        <source>Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for.</source>
        <translation>Compilações que você arquivou para distribuição. Mantenha as de que possa precisar para simbolizar relatórios de falhas.</translation>
    </message>
    <message>
        <source>Docker disk image</source>
        <translation>Imagem de disco do Docker</translation>
    </message>
    <message>
        <source>The virtual disk holding Docker&apos;s images and containers. Shrink it with “docker system prune” or Docker Desktop&apos;s settings.</source>
        <translation>O disco virtual que contém as imagens e os contêineres do Docker. Reduza-o com “docker system prune” ou nos ajustes do Docker Desktop.</translation>
    </message>
    <message>
        <source>Mail attachments</source>
        <translation>Anexos do Mail</translation>
    </message>
    <message>
        <source>Attachments Mail saved after you opened them. The originals stay in your mailbox.</source>
        <translation>Anexos que o Mail salvou depois que você os abriu. Os originais continuam na sua caixa de correio.</translation>
    </message>
    <message>
        <source>Messages attachments</source>
        <translation>Anexos do Mensagens</translation>
    </message>
    <message>
        <source>Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) to keep chats consistent.</source>
        <translation>Fotos, vídeos e arquivos das suas conversas. Remova os maiores pelo Mensagens (Ajustes → Geral → Armazenamento) para que as conversas continuem coerentes.</translation>
    </message>
    <message>
        <source>System caches</source>
        <translation>Caches do sistema</translation>
    </message>
    <message>
        <source>Caches shared by all users and system services. macOS trims these itself.</source>
        <translation>Caches compartilhados por todos os usuários e pelos serviços do sistema. O próprio macOS os reduz.</translation>
    </message>
    <message>
        <source>System logs &amp; diagnostics</source>
        <translation>Registros e diagnósticos do sistema</translation>
    </message>
    <message>
        <source>Unified logs and diagnostic reports. macOS rotates and deletes them automatically.</source>
        <translation>Registros unificados e relatórios de diagnóstico. O macOS os rotaciona e apaga automaticamente.</translation>
    </message>
    <message>
        <source>Virtual memory &amp; sleep image</source>
        <translation>Memória virtual e imagem de repouso</translation>
    </message>
    <message>
        <source>Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart.</source>
        <translation>Arquivos de swap e a imagem de hibernação. Crescem e diminuem com o uso da memória e são redefinidos quando você reinicia.</translation>
    </message>
    <message>
        <source>macOS assets &amp; updates</source>
        <translation>Recursos e atualizações do macOS</translation>
    </message>
    <message>
        <source>Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates.</source>
        <translation>Recursos do sistema baixados (fontes, dicionários, modelos de idioma e de IA) e atualizações de software preparadas para instalação.</translation>
    </message>
    <message>
        <source>Other Library data</source>
        <translation>Outros dados da Biblioteca</translation>
    </message>
    <message>
        <source>Everything else in your Library folder: preferences, keychains, logs, and data for system services.</source>
        <translation>Todo o resto da sua pasta Biblioteca: preferências, chaves, registros e dados de serviços do sistema.</translation>
    </message>
    <message>
        <source>System databases &amp; temporary files</source>
        <translation>Bancos de dados e temporários do sistema</translation>
    </message>
    <message>
        <source>Databases and per-app temporary folders used by macOS services. macOS manages these.</source>
        <translation>Bancos de dados e pastas temporárias de apps usados pelos serviços do macOS. O macOS cuida deles.</translation>
    </message>
    <message>
        <source>App data &amp; containers</source>
        <translation>Dados e contêineres de apps</translation>
    </message>
    <message>
        <source>Settings, databases and files apps keep for you. Remove an app&apos;s data by uninstalling the app or from within the app.</source>
        <translation>Ajustes, bancos de dados e arquivos que os apps guardam para você. Para remover os dados de um app, desinstale-o ou faça isso no próprio app.</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 snapshot</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 snapshot</numerusform>
            <numerusform>%1 snapshots</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sem permissão de leitura</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: “1 snapshot” or “%1 snapshots”</extracomment>
        <translation>pelo menos %1</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 devices</source>
        <translation>
            <numerusform>%1 dispositivo</numerusform>
            <numerusform>%1 dispositivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemDataPage</name>
    <message>
        <source>System Data</source>
        <extracomment>Name of the page, and of what the system calls so in its own view of the disk</extracomment>
        <translation>Dados do sistema</translation>
    </message>
    <message>
        <source>Rescan</source>
        <extracomment>Button: measure again</extracomment>
        <translation>Reanalisar</translation>
    </message>
    <message>
        <source>See what&apos;s inside System Data</source>
        <translation>Veja o que há em Dados do sistema</translation>
    </message>
    <message>
        <source>Snapshots, backups, developer files, caches and more.</source>
        <translation>Snapshots, backups, arquivos de desenvolvimento, caches e mais.</translation>
    </message>
    <message>
        <source>Scan System Data</source>
        <translation>Analisar Dados do sistema</translation>
    </message>
    <message>
        <source>measured in System Data · &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; you can act on</source>
        <extracomment>Follows a size in large figures; %2: a size; leave the tag as it is</extracomment>
        <translation>medidos em Dados do sistema · você pode agir sobre &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Working…</source>
        <extracomment>While what the user asked for is being done</extracomment>
        <translation>Processando…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Atualizando…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: what it is; %2: its size</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>You can reclaim</source>
        <extracomment>Heading over the rows that the user can do something about</extracomment>
        <translation>Você pode liberar</translation>
    </message>
    <message>
        <source>Measuring System Data…</source>
        <translation>Medindo Dados do sistema…</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under a size: so much was measured until now</extracomment>
        <translation>medidos</translation>
    </message>
    <message>
        <source>macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren&apos;t affected. macOS will ask for your administrator password.</source>
        <translation>O macOS removerá os snapshots locais do Time Machine deste disco. Seus backups do Time Machine em outros discos não são afetados. O macOS pedirá sua senha de administrador.</translation>
    </message>
    <message>
        <source>Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.</source>
        <translation>Os dispositivos de simulador cujo runtime de iOS não está mais instalado serão apagados, com seus apps e dados.</translation>
    </message>
    <message>
        <source>%1 will be moved to the Trash. Xcode recreates it when you connect a device again.</source>
        <translation>Serão movidos %1 para o Lixo. O Xcode recria esses dados quando você conecta um dispositivo de novo.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Exige Acesso Total ao Disco</translation>
    </message>
    <message>
        <source>No permission to read</source>
        <translation>Sem permissão de leitura</translation>
    </message>
    <message>
        <source>at least %1</source>
        <extracomment>%1: a size; not everything could be measured</extracomment>
        <translation>pelo menos %1</translation>
    </message>
    <message>
        <source>Largest: %1</source>
        <extracomment>%1: names of folders, with commas</extracomment>
        <translation>Maiores: %1</translation>
    </message>
    <message>
        <source>Managed by macOS</source>
        <extracomment>Heading over the rows that the user can do nothing about</extracomment>
        <translation>Gerenciado pelo macOS</translation>
    </message>
    <message>
        <source>Managed by the system</source>
        <translation>Gerenciado pelo sistema</translation>
    </message>
    <message>
        <source>Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once.</source>
        <translation>Só é contado o que você tem permissão para ler. Pastas do sistema ou de outros usuários ficam de fora, e pastas comuns a várias linhas são contadas uma só vez.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Why Storage settings shows a bigger number&lt;/b&gt;&lt;br&gt;macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can&apos;t see protected folders, so its total is lower than what macOS reports.</source>
        <translation>&lt;b&gt;Por que os ajustes de Armazenamento mostram um número maior&lt;/b&gt;&lt;br&gt;O macOS calcula Dados do sistema como o que sobra no disco depois de Apps, Documentos, Fotos e suas outras categorias. Essa sobra também inclui coisas que nenhum app consegue medir: o índice do Spotlight, snapshots do APFS, espaço purgável e arquivos do sistema restritos ao root. Sem Acesso Total ao Disco, o Tarnwick também não vê as pastas protegidas, por isso seu total é menor que o informado pelo macOS.</translation>
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
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <extracomment>Button of the window</extracomment>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open Tarnwick</source>
        <translation>Abrir o Tarnwick</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análise inteligente</translation>
    </message>
    <message>
        <source>Find Large Files</source>
        <translation>Buscar arquivos grandes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar atualizações</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Sair do Tarnwick</translation>
    </message>
    <message>
        <source>%1 · %2 free</source>
        <extracomment>%1: the disk; %2: the size of its free space</extracomment>
        <translation>%1 · %2 livres</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Could not open the update.</source>
        <translation>Não foi possível abrir a atualização.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>O servidor demorou demais para responder.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>Não foi possível ler as informações da atualização.</translation>
    </message>
    <message>
        <source>The server redirected to an address that is not safe.</source>
        <translation>O servidor redirecionou para um endereço que não é seguro.</translation>
    </message>
    <message>
        <source>Too many redirects.</source>
        <translation>Redirecionamentos demais.</translation>
    </message>
    <message>
        <source>The update is not on Tarnwick&apos;s server.</source>
        <translation>A atualização não está no servidor do Tarnwick.</translation>
    </message>
    <message>
        <source>The update has an unexpected size.</source>
        <translation>A atualização tem um tamanho inesperado.</translation>
    </message>
    <message>
        <source>Could not save the update: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Não foi possível salvar a atualização: %1</translation>
    </message>
    <message>
        <source>The update could not be downloaded: %1</source>
        <extracomment>%1: what the system says about it</extracomment>
        <translation>Não foi possível baixar a atualização: %1</translation>
    </message>
    <message>
        <source>Could not read the update.</source>
        <translation>Não foi possível ler a atualização.</translation>
    </message>
    <message>
        <source>The update does not match the published checksum.</source>
        <translation>A atualização não corresponde à soma de verificação publicada.</translation>
    </message>
    <message>
        <source>The update is not signed by %1.</source>
        <translation>A atualização não está assinada por %1.</translation>
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
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>Há %n dia</numerusform>
            <numerusform>Há %n dias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>Há %n semana</numerusform>
            <numerusform>Há %n semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>Há %n mês</numerusform>
            <numerusform>Há %n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>Há %n ano</numerusform>
            <numerusform>Há %n anos</numerusform>
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
