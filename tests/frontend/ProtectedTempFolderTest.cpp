#include "ProtectedTempFolder.h"

#include "support/Environment.h"
#include "support/Machine.h"

#include <QDir>
#include <QUuid>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Vorlan::FrontEnd;

namespace
{

class ProtectedTempFolderTest : public testing::Test
{
protected:
    Machine machine;
    Environment former{"TMPDIR", QDir::tempPath()};
    const QString before = QDir::tempPath();
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
};

TEST_F(ProtectedTempFolderTest, IsTheTemporaryFolderUntilItIsDestroyed)
{
    const QString path = ProtectedTempFolder::PathFor(id);
    {
        const ProtectedTempFolder folder(id);
        EXPECT_EQ(folder.Path(), path);
        EXPECT_EQ(QDir(QDir::tempPath()), QDir(path));
        EXPECT_TRUE(QFileInfo(path).isDir());
        EXPECT_EQ(QDir::fromNativeSeparators(qEnvironmentVariable("VORLAN_FORMER_TEMP")), before);
    }
    EXPECT_EQ(QDir::tempPath(), before);
    EXPECT_FALSE(QFileInfo::exists(path)) << "it was empty";
    EXPECT_FALSE(qEnvironmentVariableIsSet("VORLAN_FORMER_TEMP"));
}

TEST_F(ProtectedTempFolderTest, KeepsWhatIsLeftInIt)
{
    const QString path = ProtectedTempFolder::PathFor(id);
    {
        const ProtectedTempFolder folder(id);
        WriteFile(path + "/a.log", "line");
    }
    EXPECT_EQ(ReadFile(path + "/a.log"), "line");
    QDir(path).removeRecursively();
}

TEST_F(ProtectedTempFolderTest, AFolderThatSomebodyElseHasMadeIsNotUsed)
{
    const QString path = ProtectedTempFolder::PathFor(id);
    ASSERT_TRUE(QDir().mkdir(path));
    for (const QString& name : {id, QString("../x"), QString()})
        EXPECT_THROW(ProtectedTempFolder{name}, std::runtime_error) << name.toStdString();
    EXPECT_EQ(QDir::tempPath(), before);
    QDir().rmdir(path);
}

} // namespace
