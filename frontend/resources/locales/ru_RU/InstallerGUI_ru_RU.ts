<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Не удалось выполнить установку. Выберите другое расположение и запустите установку снова.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Проверка аппаратного ускорения...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Загрузка дополнительных данных...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Удаление предыдущей версии</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Чтобы удалить %1, сначала удалите эти программы:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Открыто окно установки или удаления. Закройте его, прежде чем запускать %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Не удалось скопировать %1. Неверный путь или нет прав доступа</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Не удалось переместить файл %1 в %2. Неверный путь или нет прав доступа</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Программы</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Удалить %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Сайт %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Конвертировать в</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Открыть с помощью</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Конвертировать видео и аудио</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Нет доступа к указанной папке назначения</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Недостаточно места на диске</translation>
    </message>
</context>
</TS>
