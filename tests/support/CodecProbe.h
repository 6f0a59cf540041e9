#pragma once

#include "support/Machine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

// A probe of codecs that does what the name of the implementation says (TestProbe.cpp).
class CodecProbe
{
public:
    explicit CodecProbe(const QString& programPath) : path(programPath)
    {
        QDir().mkpath(QFileInfo(path).path());
        EXPECT_TRUE(QFile::copy(QCoreApplication::applicationDirPath() + "/test-probe.exe", path));
    }

    const QString& Path() const { return path; }

    bool WasStarted(const QString& codec, const QString& impl) const
    {
        return QFile::exists(path + '.' + codec + '.' + impl);
    }

private:
    QString path;
};
