#include "platform/System.h"

#include "platform/Exception.h"
#include "support/Machine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(System, Sha1IsLowerCaseHexadecimal)
{
    EXPECT_EQ(Util::SHA1("abc"), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(Util::SHA1(""), "da39a3ee5e6b4b0d3255bfef95601890afd80709");
}

TEST(System, ProcessIsFoundByNameAndPath)
{
    const QString path = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
    const std::string name = QFileInfo(path).fileName().toStdString();
    EXPECT_TRUE(Core::IsProcessRunning(name, path.toStdString()));
    EXPECT_TRUE(Core::IsProcessRunning(name, ""));
    EXPECT_FALSE(Core::IsProcessRunning(name, path.toStdString() + "x"));
    EXPECT_FALSE(Core::IsProcessRunning("no-such-program.exe", ""));
}

TEST(System, ComponentsLieBesideTheMainProgram)
{
    const auto& locations = Core::AppLocations::GetLocations();
    EXPECT_EQ(
        locations.GetLocation("AssociationRegistrator").utf8string(), "AssociationRegistrator.exe");
}

TEST(Exception, CarriesItsMessageAndPlace)
{
    try
    {
        BOOST_THROW_EXCEPTION(
            Exception() << ExceptionMessage("what happened") << ExceptionCallStack(GetCallStack()));
    }
    catch (const Exception& exception)
    {
        EXPECT_STREQ(exception.what(), "what happened");
        EXPECT_NE(*boost::get_error_info<ExceptionCallStack>(exception), "");
        EXPECT_NE(boost::get_error_info<boost::throw_line>(exception), nullptr);
    }
    EXPECT_STREQ(Exception().what(), "");
}

TEST(Exception, TrackedOnesAreLinesOfJsonInTheLogFolder)
{
    const Machine machine;
    Core::TrackException("SomeType", "first \"quoted\"\nline");
    Core::TrackException(std::runtime_error("second"));

    const QList<QByteArray> lines =
        ReadFile(Platform::LogFolder() + "/exceptions.jsonl").trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2);
    const QJsonObject first = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(first["type"].toString(), "SomeType");
    EXPECT_EQ(first["message"].toString(), "first \"quoted\"\nline");
    const QJsonObject second = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(second["type"].toString(), "std::runtime_error");
    EXPECT_EQ(second["message"].toString(), "second");
}

TEST(Exception, TrackingNeverThrows)
{
    const Machine machine;
    WriteFile(Platform::LogFolder(), "a file where the log folder must be");
    Core::TrackException("SomeType", "lost");
    ASSERT_EQ(machine.Log().size(), 1);
    EXPECT_TRUE(machine.Log().first().startsWith("Exception could not be recorded in"));
}
