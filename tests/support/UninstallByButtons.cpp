// Uninstalls the product in its own folder with the front end's windows, as a person who presses
// the main button of each page; Cancel, where the first argument is "no" or the page has no such
// button. Programs that are in the way are ended. With "everything" the whole folder is removed;
// with "install" or "passive" the payload in its folder is installed for all users instead. Prints
// a line for each page, with the files that it lists, and for each box, and at last the exit code.
#include "PassiveRun.h"
#include "WindowedRun.h"
#include "wizard/Page.h"
#include "wizard/WizardWindow.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <iostream>
#include <string>

using namespace Vorlan::FrontEnd;

namespace
{

void Print(const QString& line)
{
    std::cout << QString(line).replace('\n', ' ').toStdString() << std::endl;
}

WizardWindow* ShownWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
    {
        auto* window = dynamic_cast<WizardWindow*>(widget);
        if (window != nullptr && window->isVisible())
            return window;
    }
    return nullptr;
}

// What a person does who looks at the screen now and then.
class Person
{
public:
    explicit Person(bool saysYes) : isAgreeing(saysYes) {}

    void Look()
    {
        if (QWidget* box = QApplication::activeModalWidget())
            return Answer(*box);
        WizardWindow* window = ShownWindow();
        const QString page = window == nullptr ? QString() : window->Current()->objectName();
        if (page.isEmpty() || page == lastPage)
            return;
        lastPage = page;
        auto* forward = window->findChild<QWidget*>("forward");
        Print((page + ' ' + ListedFiles(*window->Current()) + DeletionLabel(*forward)).trimmed());
        if (page != "progressPage")
            Click(*window, isAgreeing && forward->isVisible() ? "forward" : "cancel");
    }

private:
    void Answer(QWidget& box)
    {
        const QString text = box.findChild<QLabel*>("message")->text();
        Print(text);
        if (isAgreeing && text.startsWith("Not closed:"))
            return Click(box, "confirmationButton");
        isAgreeing = false;
        lastPage.clear();
        QTest::keyClick(&box, Qt::Key_Escape);
    }

    static QString ListedFiles(const QWidget& page)
    {
        QStringList files;
        for (const char* name : {"foreign", "list"})
        {
            const auto* list = page.findChild<QListWidget*>(name);
            for (int row = 0; list != nullptr && row < list->count(); ++row)
                files += list->item(row)->text();
        }
        return files.filter(QRegularExpression("^(?!platforms/|Qt5|lib.*dll)")).join(' ');
    }

    static QString DeletionLabel(const QWidget& button)
    {
        const QString label = button.findChild<QLabel*>("buttonLabel")->text();
        return button.isVisible() && label.startsWith("&Delete") ? label : QString();
    }

    // After this look: what follows a press happens within it.
    static void Click(QWidget& window, const char* name)
    {
        auto* button = window.findChild<QWidget*>(name);
        QTimer::singleShot(0, button, [button] { QTest::mouseClick(button, Qt::LeftButton); });
    }

    bool isAgreeing;
    QString lastPage;
};

// A process that this one has started with administrator rights is the program itself.
int RunProgramItself(const QStringList& arguments)
{
    const QDir folder = QApplication::applicationDirPath();
    const bool isUninstallation = arguments.contains("/UNINSTALL");
    return QProcess::execute(
        folder.filePath(isUninstallation ? "uninst.exe" : "installergui.exe"), arguments);
}

Outcome Run(const std::string& wish)
{
    const EventSink nobody = [](const RunEvent&) {};
    CommandLine options;
    options.removeAll = wish == "everything";
    options.allUsers = wish == "install" || wish == "passive";
    options.passive = wish == "passive";
    if (options.passive)
        return InstallPassively(options, nobody);
    return options.allUsers ? InstallWithWindow(options, nobody)
                            : UninstallWithWindow(options, nobody);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QDir::setCurrent(QApplication::applicationDirPath());
    const QStringList arguments = QApplication::arguments().mid(1);
    if (!arguments.filter("/ELEVATED=").isEmpty())
        return RunProgramItself(arguments);
    const std::string wish = arguments.value(0).toStdString();
    Person person(wish != "no");
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [&person] { person.Look(); });
    looks.start(5);
    Print(QString::number(static_cast<int>(Run(wish).code)));
    return 0;
}
