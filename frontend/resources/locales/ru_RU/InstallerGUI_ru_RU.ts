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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>Для установки для всех пользователей нужны права администратора: запустите программу от имени администратора.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>Часть, работающая с правами администратора, завершилась без результата. Запустите программу от имени администратора.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Программа установки повреждена. Загрузите её ещё раз.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Папка:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>&amp;Обзор...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Будет установлено в: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Нужно места: %1. Свободно: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Нужно места: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Проверка папки...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>На этом компьютере нет диска %1.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Установка %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Установка %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>Обновление %1 с %2 до %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>Программа %1 уже установлена</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>Установлена более новая версия %1</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Можно установить сразу или сначала посмотреть параметры.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Ваши настройки и файлы сохраняются.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Для всех пользователей, в %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Для вас, в %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Её также можно &lt;a href=&quot;remove&quot;&gt;удалить&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Ещё одна установка находится в %1. Её можно &lt;a href=&quot;remove&quot;&gt;удалить&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Закрыть и продолжить</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Сначала закройте эти программы</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Они используют файлы, которые будут изменены. Сохраните в них свою работу.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Каждой программе отправляется просьба закрыться. То, что не закроется, завершается только с вашего согласия.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Ожидание закрытия программ...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Это части Windows, которые нельзя закрыть отсюда: выйдите из системы или перезагрузите компьютер и повторите попытку.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, процесс %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (без окна)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (часть системы)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Не закрыты: %1. Завершить сейчас? Несохранённые данные будут потеряны.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>О&amp;бновить</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Исправить</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>&amp;Заменить</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>Па&amp;раметры</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Готово</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>Сейчас установку нельзя остановить: изменяются файлы и настройки. Закройте окно после её окончания.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Отменить установку %1?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Отменено: ничего не установлено.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 не относится к программе, и его не удаётся переместить: ничего не изменено. Закройте программу, которая его использует, и повторите попытку.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Заменить более новую версию %1 версией %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Файл %1 отсутствует. Верните его в папку программы установки.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>Программа %1 установлена</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>Не удалось установить %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>Файл %1 используется: %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Закройте программу и повторите попытку.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>Программа %1 работает, и её нельзя завершить.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>Файл %1 повреждён или неполон.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Загрузите программу установки ещё раз.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>Диск с папкой %1 заполнен: свободно %2.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Освободите там %1 или выберите другую папку.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>Диск с папкой %1 сообщает об ошибке при записи файлов.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Проверьте диск или выберите другую папку.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Файл %1 нельзя заменить: он защищён от записи или используется.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>В папке %1 ничего нельзя создать: нет прав на неё.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Выберите другую папку или запустите программу установки от имени администратора.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 — это файл, а на его месте нужна папка.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Переместите файл в другое место и повторите попытку.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Программа удаления предыдущей версии завершилась с ошибкой.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Удалите предыдущую версию сами и повторите попытку.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Ничего не изменено.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Часть предыдущей версии, возможно, уже удалена.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>Установка в %1 не завершена: повторите её, чтобы пользоваться программой.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Файлы находятся в %1, но программа зарегистрирована не полностью.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Файл журнала: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Открыть &amp;журнал</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Не удаётся открыть файл журнала %1.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Всё на своих местах. Можно начинать.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Обратите внимание:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Ваш файл перемещён, так как у программы есть файл с таким именем: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Параметры установки</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Установить для</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Только для &amp;меня</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Все пользователи этого компьютера (нужны права администратора)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Создать &amp;ярлыки на рабочем столе и в меню «Пуск»</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>«Конвертировать в» и «Открыть с помощью» в &amp;контекстном меню</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Запускать автоматически при в&amp;ходе в систему</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Отправлять анонимную &amp;статистику для улучшения программы</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Скрыть &amp;подробности</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Показать &amp;подробности</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Шаг %1 из %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 в секунду</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Осталось около %1 с</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Осталось около %1 мин</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>&amp;Запустить %1 сейчас</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Удаление предыдущей версии...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Размещение файлов...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Регистрация программы...</translation>
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
        <source>Finishing...</source>
        <translation>Завершение...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>Удаление %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>Программа %1 удалена</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>Копия %1 удалена</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Расскажите, почему вы её удалили&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>Не удалось удалить %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Устанавливая программу, вы принимаете &lt;a href=&quot;licence&quot;&gt;лицензионное соглашение&lt;/a&gt; и &lt;a href=&quot;privacy&quot;&gt;политику конфиденциальности&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Программа установлена в %1, а не в %2: ничего не удалено. Запустите программу удаления там.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Программа не установлена в %1: ничего не удалено. Удалите папку вручную, если она не нужна.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>Папка %1 называется не %2, поэтому в ней могут быть файлы других программ: ничего не удалено.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Отменено: ничего не удалено.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Часть программы, возможно, уже удалена.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Программа установлена для всех пользователей. Для её удаления нужны права администратора: запустите программу удаления от имени администратора.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 не относится к программе, и его не удаётся переместить: ничего не удалено. Закройте программу, которая его использует, и повторите попытку.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Удалить %1?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>Программа %1 установлена не здесь</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Будут удалены программа, её ярлыки и записи в Windows. Ваши файлы останутся.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Будут удалены программа, её ярлыки и записи в Windows, а также вся папка.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>В этой папке нет файлов, о которых известно, что они относятся к программе.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>В %1 находится копия программы, файлов: %2. Их можно удалить. Другие файлы в папке и сама установка остаются.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>Удалить &amp;мои настройки</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Не относится к программе и останется в папке:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Не относится к программе и будет удалено вместе с папкой:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Стереть файлы (%1)</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Удалить установленную</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>Сейчас удаление нельзя остановить: удаляются файлы и настройки. Закройте окно после его окончания.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Спасибо, что пользовались программой.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Осталось в %1:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
