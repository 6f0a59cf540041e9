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
</TS>
