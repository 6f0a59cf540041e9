#include "support/FolderLink.h"

#include <QFile>

#include <gtest/gtest.h>

void MakeFolderLink(const QString& link, const QString& target)
{
    EXPECT_TRUE(QFile::link(target, link)) << link.toStdString();
}

bool IsRemovalOfFoldersSafe()
{
    return true;
}
