<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>L&apos;installation a échoué. Essayez de choisir un autre emplacement et relancez l&apos;installation.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Vérification de l&apos;accélération matérielle...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Téléchargement de données supplémentaires...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Désinstallation d&apos;une version précédente</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Pour désinstaller %1, désinstallez d&apos;abord ces programmes :</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Une fenêtre d&apos;installation ou de désinstallation est ouverte et doit être fermée avant de lancer %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Impossible de copier %1. Chemin incorrect ou autorisation manquante</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Impossible de déplacer le fichier %1 vers %2. Chemin incorrect ou autorisation manquante</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Désinstaller %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Site de %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Convertir en</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Ouvrir avec</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Convertir vidéo et audio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Impossible d&apos;accéder au dossier de destination indiqué</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>L&apos;espace disque est insuffisant</translation>
    </message>
</context>
</TS>
