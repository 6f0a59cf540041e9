// schtasks: stores the tasks of the machine, each in its own file. Nothing starts them.
//
//   schtasks /create /sc onlogon /rl highest /tn <name> /tr "<command>" [/f]
//   schtasks /query /tn <name>
//   schtasks /delete /tn <name> [/f]
//
// Exit codes: 0 done, 1 not. Names ignore case. Without /f, /delete and a /create for a task that
// exists ask on standard output and read the answer from standard input; everything but "y", the
// end of the input included, is no. Every other schedule, level and option is refused.
#include "Machine.h"
#include "WholeFile.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <Pal.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace
{

struct Request
{
    QString action; // "/create", "/query", "/delete"
    bool force = false;
    QMap<QString, QString> values; // "/tn", "/tr", "/sc", "/rl"
};

[[noreturn]] void Refuse(const QString& reason)
{
    throw std::runtime_error(reason.toStdString());
}

Request ReadWords(const QStringList& words)
{
    Request request;
    for (int i = 0; i < words.size(); ++i)
    {
        const QString option = words[i].toLower();
        if (option == "/f")
            request.force = true;
        else if (QStringList{"/create", "/query", "/delete"}.contains(option))
            request.action = option;
        else if (QStringList{"/tn", "/tr", "/sc", "/rl"}.contains(option) && i + 1 < words.size())
            request.values[option] = words[++i];
        else
            Refuse("Invalid argument/option - '" + words[i] + "'.");
    }
    return request;
}

QString Value(const Request& request, const QString& option)
{
    QString value = request.values[option];
    if (value.isEmpty())
        Refuse("Missing option " + option + ".");
    return value;
}

void Expect(const Request& request, const QString& option, const QString& onlyValue)
{
    if (Value(request, option).compare(onlyValue, Qt::CaseInsensitive) != 0)
        Refuse("Invalid value for " + option + ": only " + onlyValue + " is known.");
}

bool IsConfirmed(const QString& question)
{
    std::printf("WARNING: %s (Y/N)? ", qUtf8Printable(question));
    std::fflush(stdout);
    const int answer = std::getchar();
    return answer == 'y' || answer == 'Y';
}

std::string TaskFile(const Request& request)
{
    const QByteArray name = QUrl::toPercentEncoding(Value(request, "/tn").toLower());
    return Pal::TaskFolder(Pal::MachineRoot()) / ("task " + name.toStdString());
}

void Create(const Request& request)
{
    const QString name = Value(request, "/tn");
    const QString command = Value(request, "/tr");
    Expect(request, "/sc", "onlogon");
    Expect(request, "/rl", "highest");
    if (!request.force && std::filesystem::exists(TaskFile(request)) &&
        !IsConfirmed("The task name \"" + name + "\" already exists. Do you want to replace it"))
        Refuse("The task \"" + name + "\" is not replaced.");
    const QString text =
        "name=" + name + "\nschedule=onlogon\nlevel=highest\ncommand=" + command + "\n";
    if (Pal::WriteWholeFile(TaskFile(request), text.toStdString()) != ERROR_SUCCESS)
        Refuse("The task \"" + name + "\" cannot be written.");
    std::printf("SUCCESS: The scheduled task \"%s\" has successfully been created.\n",
        qUtf8Printable(name));
}

void Query(const Request& request)
{
    std::string text;
    if (Pal::ReadWholeFile(TaskFile(request), text) != ERROR_SUCCESS)
        Refuse("The system cannot find the file specified.");
    std::fputs(text.c_str(), stdout);
}

void Delete(const Request& request)
{
    const QString name = Value(request, "/tn");
    if (!request.force && !IsConfirmed("Are you sure you want to remove the task \"" + name + "\""))
        Refuse("The task \"" + name + "\" is not deleted.");
    if (!std::filesystem::remove(TaskFile(request)))
        Refuse("The specified task name \"" + name + "\" does not exist in the system.");
    std::printf(
        "SUCCESS: The scheduled task \"%s\" was successfully deleted.\n", qUtf8Printable(name));
}

void Perform(const Request& request)
{
    if (request.action == "/create")
        Create(request);
    else if (request.action == "/query")
        Query(request);
    else if (request.action == "/delete")
        Delete(request);
    else
        Refuse("Invalid syntax. Use /create, /query or /delete.");
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words += QString::fromUtf8(argv[i]);
    try
    {
        if (Pal::EnterMachine() != ERROR_SUCCESS)
            Refuse("There is no machine in " + QString::fromStdString(Pal::MachineRoot()) + ".");
        Perform(ReadWords(words));
        return 0;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "ERROR: %s\n", error.what());
        return 1;
    }
}
