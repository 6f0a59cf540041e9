<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Falha na instalação. Tente selecionar outro local e execute a instalação novamente.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Verificando a aceleração de hardware...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Baixando dados adicionais...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Desinstalando uma versão anterior</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Para desinstalar o %1, desinstale primeiro estes programas:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Há uma janela de instalação ou desinstalação aberta que precisa ser fechada antes de iniciar o %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Falha ao copiar %1. Caminho incorreto ou sem permissão</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Falha ao mover o arquivo %1 para %2. Caminho incorreto ou sem permissão</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Desinstalar %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Site do %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Converter em</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Abrir com</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Converter vídeo e áudio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Não é possível acessar a pasta de destino especificada</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Não há espaço suficiente em disco</translation>
    </message>
</context>
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>A instalação para todos os usuários exige direitos de administrador: inicie o programa como administrador.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>A parte com direitos de administrador terminou sem resultado. Inicie o programa como administrador.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>O instalador está danificado. Baixe-o novamente.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Pasta:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>P&amp;rocurar...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Escolher uma pasta</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Será instalado em: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Espaço necessário: %1. Livre nesse local: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Espaço necessário: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Verificando a pasta...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Não há uma unidade %1 neste computador.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Instalando %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Instalar %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>Atualizar %1 de %2 para %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 já está instalado</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>A versão mais recente %1 está instalada</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Você pode instalar agora mesmo ou ver antes as opções.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Suas configurações e seus arquivos são mantidos.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Para todos os usuários, em %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Para você, em %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Você também pode &lt;a href=&quot;remove&quot;&gt;removê-lo&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Há outra instalação em %1. Você pode &lt;a href=&quot;remove&quot;&gt;removê-la&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>I&amp;nstalar</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Fechar e continuar</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Feche primeiro estes programas</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Eles usam arquivos que serão alterados. Salve o seu trabalho neles.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Pede-se a cada um que se feche. O que não se fechar só será encerrado se você concordar.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Aguardando o fechamento dos programas...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>São partes do Windows que não podem ser fechadas daqui: saia da conta ou reinicie o computador e tente novamente.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, processo %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (sem janela)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (parte do sistema)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Não fechados: %1. Encerrar agora? O que não foi salvo neles será perdido.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Atuali&amp;zar</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>R&amp;eparar</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Su&amp;bstituir</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>A instalação não pode ser interrompida agora: arquivos e configurações estão sendo alterados. Feche a janela quando ela terminar.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Cancelar a instalação de %1?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Cancelado: nada foi instalado.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 não faz parte do programa e não pode ser movido: nada foi alterado. Feche o programa que o usa e tente novamente.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Substituir a versão mais recente %1 pela versão %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>O arquivo %1 não foi encontrado. Coloque-o de volta ao lado do instalador.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 está instalado</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>Não foi possível instalar %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 está em uso por %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Feche o programa e tente novamente.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 está em execução e não pode ser encerrado.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>O arquivo %1 está danificado ou incompleto.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Baixe o instalador novamente.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>A unidade de %1 está cheia: há %2 livres.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Libere %1 nela ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>A unidade de %1 informa um erro ao gravar arquivos.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Verifique a unidade ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Não é possível substituir o arquivo %1: ele está protegido contra gravação ou em uso.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>Não é possível criar nada na pasta %1: faltam as permissões necessárias.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Escolha outra pasta ou inicie o instalador como administrador.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 é um arquivo onde é necessária uma pasta.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Mova o arquivo para outro lugar e tente novamente.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>O desinstalador da versão anterior falhou.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Desinstale você mesmo a versão anterior e tente novamente.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nada foi alterado.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Uma parte da versão anterior talvez já tenha sido removida.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>A instalação em %1 está incompleta: repita-a para usar o programa.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Os arquivos estão em %1, mas o programa não está totalmente registrado.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Arquivo de log: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Abrir &amp;log</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Não é possível abrir o arquivo de log %1.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Tudo está no lugar. Você já pode começar.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Observe:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Seu arquivo foi movido, porque o programa tem um com esse nome: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Como instalar</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Instalar para</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Somente para &amp;mim</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Todos os usuários deste computador (exige administrador)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Também</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Criar atalho&amp;s na área de trabalho e no menu Iniciar</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Oferecer &quot;Converter em&quot; e &quot;Abrir com&quot; no menu de &amp;contexto dos arquivos de mídia</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Iniciar automaticamente ao fazer &amp;logon</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Enviar estatísticas anônimas de &amp;uso para melhorar o programa</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Ocultar &amp;detalhes</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostrar &amp;detalhes</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Etapa %1 de %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 por segundo</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Faltam cerca de %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Faltam cerca de %1 min</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>&amp;Iniciar %1 agora</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Removendo a versão anterior...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Colocando os arquivos...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Registrando o programa...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Verificando a aceleração de hardware...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Baixando dados adicionais...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>Finalizando...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>Desinstalando %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 foi desinstalado</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>A cópia do %1 foi excluída</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Conte-nos por que você o desinstalou&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>Não foi possível desinstalar %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Ao instalar, você aceita o &lt;a href=&quot;licence&quot;&gt;contrato de licença&lt;/a&gt; e a &lt;a href=&quot;privacy&quot;&gt;política de privacidade&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>O programa está instalado em %1, não em %2: nada foi excluído. Inicie o desinstalador nesse local.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>O programa não está instalado em %1: nada foi excluído. Exclua a pasta manualmente se ela não for necessária.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>O nome da pasta %1 não é %2, portanto ela pode conter arquivos de outros programas: nada foi excluído.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Cancelado: nada foi excluído.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Uma parte do programa talvez já tenha sido removida.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>O programa está instalado para todos os usuários. A desinstalação exige direitos de administrador: inicie o desinstalador como administrador.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 não faz parte do programa e não pode ser movido: nada foi excluído. Feche o programa que o usa e tente novamente.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Desinstalar %1?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 não está instalado aqui</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>O programa, seus atalhos e suas entradas no Windows são removidos. Seus próprios arquivos permanecem.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>O programa, seus atalhos e suas entradas no Windows são removidos, e toda a pasta.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Não se sabe de nada nesta pasta que seja do programa.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>Há uma cópia do programa em %1: %2 arquivos. Eles podem ser excluídos. Os outros arquivos da pasta e a instalação permanecem.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Excluir minhas configurações</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Não é do programa e fica na pasta:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Não é do programa e será excluído com a pasta:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Desinstalar</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Excluir %1 arquivos</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Desinstalar o instalado</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>A desinstalação não pode ser interrompida agora: arquivos e configurações estão sendo removidos. Feche a janela quando ela terminar.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Obrigado por ter usado o programa.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Permanece em %1:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
