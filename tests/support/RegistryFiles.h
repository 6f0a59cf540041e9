// The registry's files on disk, for tests that only Linux runs.
#pragma once

#include <QFile>
#include <QStringList>

#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

// Collects what Qt's logger is given while it lives.
class WarningLog
{
public:
    WarningLog()
    {
        Lines().clear();
        former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { Lines() += text; });
    }
    ~WarningLog() { qInstallMessageHandler(former); }
    WarningLog(const WarningLog&) = delete;
    WarningLog& operator=(const WarningLog&) = delete;

    static QStringList& Lines()
    {
        static QStringList lines;
        return lines;
    }

private:
    QtMessageHandler former;
};

class RegistryFiles : public PalMachine
{
protected:
    QString FilePath(const QString& name = "HKEY_CURRENT_USER.reg") const
    {
        return MachineFolder() + "/registry/" + name;
    }

    // UTF-8 text as a file's bytes: with the byte-order mark, CR LF for "\n".
    static QByteArray DiskForm(const std::string& utf8)
    {
        QString text = QString::fromStdString(utf8);
        text.replace("\n", "\r\n").prepend(QChar(0xFEFF));
        return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    }

    // The other way round.
    static std::string TextForm(const QByteArray& bytes)
    {
        if (!bytes.startsWith("\xFF\xFE"))
            return "(no byte-order mark)";
        const auto* units = reinterpret_cast<const ushort*>(bytes.constData());
        return QString::fromUtf16(units, bytes.size() / 2).replace("\r\n", "\n").toStdString();
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    std::string Text() const { return TextForm(Bytes(FilePath())); }

    // Puts another file in the place of the registry's.
    void PutFile(const QByteArray& bytes)
    {
        QFile file(FilePath("new"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
        file.close();
        QFile::remove(FilePath());
        ASSERT_TRUE(QFile::rename(FilePath("new"), FilePath()));
    }

    // Forgets all that this process knows of the registry, so that it is read from disk again.
    void ReadAnew()
    {
        const QByteArray machine = qgetenv("VORLAN_MACHINE");
        qputenv("VORLAN_MACHINE", machine + "-other");
        HKEY key = nullptr;
        ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"", 0, KEY_READ, &key), ERROR_SUCCESS);
        RegCloseKey(key);
        qputenv("VORLAN_MACHINE", machine);
    }
};
