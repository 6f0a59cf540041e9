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
</TS>
