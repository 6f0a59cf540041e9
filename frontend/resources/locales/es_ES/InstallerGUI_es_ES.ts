<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Error en la instalación. Intente seleccionar otra ubicación y vuelva a ejecutar la instalación.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Comprobando la aceleración por hardware...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Descargando datos adicionales...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Desinstalando una versión anterior</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Para desinstalar %1, desinstale primero estos programas:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Hay una ventana de instalación o desinstalación abierta que debe cerrarse antes de iniciar %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>No se pudo copiar %1. Ruta incorrecta o sin permiso</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>No se pudo mover el archivo %1 a %2. Ruta incorrecta o sin permiso</translation>
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
        <translation>Sitio web de %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Convertir a</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Abrir con</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Convertir vídeo y audio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>No se puede acceder a la carpeta de destino especificada</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>No hay suficiente espacio en el disco</translation>
    </message>
</context>
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>La instalación para todos los usuarios requiere permisos de administrador: inicie el programa como administrador.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>La parte con permisos de administrador terminó sin resultado. Inicie el programa como administrador.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>El instalador está dañado. Descárguelo de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Car&amp;peta:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>&amp;Examinar...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Se instalará en: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Espacio necesario: %1. Libre en esa unidad: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Espacio necesario: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Comprobando la carpeta...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>En este equipo no hay ninguna unidad %1.</translation>
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
        <translation>Actualizar %1 de %2 a %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 ya está instalado</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>Está instalada la versión más reciente %1</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Puede instalar ahora mismo o ver antes las opciones.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Se conservan sus ajustes y sus propios archivos.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Para todos los usuarios, en %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Para usted, en %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>También puede &lt;a href=&quot;remove&quot;&gt;eliminarlo&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Hay otra instalación en %1. Puede &lt;a href=&quot;remove&quot;&gt;eliminarla&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>I&amp;nstalar</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Cerrarlos y continuar</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Cierre primero estos programas</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Usan archivos que se van a modificar. Guarde su trabajo en ellos.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Se pide a cada uno que se cierre. Lo que no se cierre solo se termina si usted lo acepta.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Esperando a que se cierren los programas...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Son partes de Windows que no se pueden cerrar desde aquí: cierre la sesión o reinicie el equipo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proceso %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (sin ventana)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (parte del sistema)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>No se han cerrado: %1. ¿Terminarlos ahora? Lo que no esté guardado en ellos se perderá.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Actua&amp;lizar</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Reempla&amp;zar</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>La instalación no se puede detener ahora: se están modificando archivos y ajustes. Cierre la ventana cuando haya terminado.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>¿Cancelar la instalación de %1?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Cancelado: no se ha instalado nada.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 no forma parte del programa y no se puede apartar: no se ha cambiado nada. Cierre el programa que lo usa e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>¿Reemplazar la versión más reciente %1 por la versión %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Falta el archivo %1. Vuelva a colocarlo junto al instalador.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 está instalado</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>No se pudo instalar %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 está en uso por %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Cierre el programa e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 se está ejecutando y no se puede cerrar.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>El archivo %1 está dañado o incompleto.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Descargue de nuevo el instalador.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>La unidad de %1 está llena: quedan %2 libres.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Deje %1 libres en ella o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>La unidad de %1 notifica un error al escribir archivos.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Compruebe la unidad o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>No se puede reemplazar el archivo %1: está protegido contra escritura o en uso.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>No se puede crear nada en la carpeta %1: faltan los permisos necesarios.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Elija otra carpeta o inicie el instalador como administrador.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 es un archivo donde hace falta una carpeta.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Mueva el archivo a otro lugar e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>El desinstalador de la versión anterior ha fallado.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Desinstale usted la versión anterior e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Puede que ya se haya quitado una parte de la versión anterior.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>La instalación en %1 está incompleta: repítala para usar el programa.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Los archivos están en %1, pero el programa no está registrado por completo.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Archivo de registro: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Abrir re&amp;gistro</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>No se puede abrir el archivo de registro %1.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Todo está en su sitio. Puede empezar ahora mismo.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Tenga en cuenta:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Su archivo se movió porque el programa tiene uno con ese nombre: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Cómo instalar</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Instalar para</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Solo para &amp;mí</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Todos los usuarios de este equipo (requiere administrador)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Además</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Crear acceso&amp;s directos en el escritorio y en el menú Inicio</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Ofrecer «Convertir a» y «Abrir con» en el menú &amp;contextual de Windows</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Iniciar automáticamente al iniciar s&amp;esión</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Enviar estadísticas anónimas de &amp;uso para mejorar el programa</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Ocultar &amp;detalles</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostrar &amp;detalles</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Paso %1 de %2: %3</translation>
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
        <translation>Quedan unos %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Quedan unos %1 min</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>Iniciar %1 a&amp;hora</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Quitando la versión anterior...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Colocando los archivos...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Registrando el programa...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Comprobando la aceleración por hardware...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Descargando datos adicionales...</translation>
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
        <translation>%1 se ha desinstalado</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>Se eliminó la copia de %1</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Cuéntenos por qué lo ha desinstalado&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>No se pudo desinstalar %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Al instalar acepta el &lt;a href=&quot;licence&quot;&gt;contrato de licencia&lt;/a&gt; y la &lt;a href=&quot;privacy&quot;&gt;política de privacidad&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>El programa está instalado en %1, no en %2: no se ha eliminado nada. Inicie allí el desinstalador.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>El programa no está instalado en %1: no se ha eliminado nada. Elimine la carpeta manualmente si no la necesita.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>El nombre de la carpeta %1 no es %2, por lo que puede contener archivos de otros programas: no se ha eliminado nada.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Cancelado: no se ha eliminado nada.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Puede que ya se haya quitado una parte del programa.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>El programa está instalado para todos los usuarios. Para desinstalarlo se requieren permisos de administrador: inicie el desinstalador como administrador.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 no forma parte del programa y no se puede apartar: no se ha eliminado nada. Cierre el programa que lo usa e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>¿Desinstalar %1?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 no está instalado aquí</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Se eliminan el programa, sus accesos directos y sus entradas en Windows. Sus propios archivos se conservan.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Se eliminan el programa, sus accesos directos y sus entradas en Windows, y toda la carpeta.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>No se sabe de nada en esta carpeta que sea del programa.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>Hay una copia del programa en %1: %2 archivos. Se pueden eliminar. Los demás archivos de la carpeta y la instalación se conservan.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Eliminar mis ajustes</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>No es del programa y se queda en la carpeta:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>No es del programa y se elimina con la carpeta:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Desinstalar</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Eliminar %1 archivos</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Desinstalar el instalado</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>La desinstalación no se puede detener ahora: se están eliminando archivos y ajustes. Cierre la ventana cuando haya terminado.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Gracias por haberlo utilizado.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Se queda en %1:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
