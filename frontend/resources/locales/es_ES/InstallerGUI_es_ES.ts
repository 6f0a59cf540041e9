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
        <source>Where to install</source>
        <translation>Dónde instalar</translation>
    </message>
    <message>
        <source>The program gets a folder of its own. You can keep the proposed place.</source>
        <translation>El programa tendrá su propia carpeta. Puede conservar la ubicación propuesta.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
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
        <source>Installing %1</source>
        <translation>Instalando %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
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
        <source>The installation cannot be stopped now: files and settings are being changed. It ends in a moment.</source>
        <translation>La instalación no se puede detener ahora: se están modificando archivos y ajustes. Terminará en un momento.</translation>
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
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Falta el archivo %1. Vuelva a colocarlo junto al instalador.</translation>
    </message>
    <message>
        <source>The folder %1 is still being removed. Wait a moment and try again.</source>
        <translation>La carpeta %1 todavía se está eliminando. Espere un momento e inténtelo de nuevo.</translation>
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
        <source>Log file: %1</source>
        <translation>Archivo de registro: %1</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Todo está en su sitio. Puede empezar ahora mismo.</translation>
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
        <source>&amp;Start %1 now</source>
        <translation>Iniciar %1 a&amp;hora</translation>
    </message>
    <message>
        <source>These files could not be copied:</source>
        <translation>No se pudieron copiar estos archivos:</translation>
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
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Cuéntenos por qué lo ha desinstalado&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>No se pudo desinstalar %1</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Bienvenido a %1</translation>
    </message>
    <message>
        <source>A few steps, and the program is ready to use.</source>
        <translation>Unos pocos pasos y el programa estará listo.</translation>
    </message>
    <message>
        <source>This version or a newer one is installed already. Installing again replaces it and keeps your settings.</source>
        <translation>Esta versión o una más reciente ya está instalada. Al instalar de nuevo se sustituye y se conservan sus ajustes.</translation>
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
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>El programa está instalado para todos los usuarios. Para desinstalarlo se requieren permisos de administrador: inicie el desinstalador como administrador.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>¿Desinstalar %1?</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your media files stay.</source>
        <translation>Se eliminarán el programa, sus accesos directos y sus entradas en Windows. Sus archivos multimedia se conservan.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Eliminar mis ajustes</translation>
    </message>
    <message>
        <source>Delete the files beside this program all the same?</source>
        <translation>¿Eliminar de todos modos los archivos que están junto a este programa?</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Desinstalar</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. It ends in a moment.</source>
        <translation>La desinstalación no se puede detener ahora: se están eliminando archivos y ajustes. Terminará en un momento.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Gracias por haberlo utilizado.</translation>
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
