// Uninstalls the product in its own folder with the front end's windows, as a person who presses
// the button of each page, and says Yes to questions about the folder where the first argument is
// "yes". Prints a line for each page and for each box, and at last the exit code.
#include "WindowedRun.h"
#include "wizard/Page.h"
#include "wizard/WizardWindow.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
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
        Print(page);
        if (page != "progressPage")
            Click(*window, isRefused ? "cancel" : "forward");
    }

private:
    void Answer(QWidget& box)
    {
        Print(box.findChild<QLabel*>("message")->text());
        isRefused = !isAgreeing;
        lastPage.clear();
        if (isAgreeing)
            Click(box, "confirmationButton");
        else
            QTest::keyClick(&box, Qt::Key_Escape);
    }

    // After this look: what follows a press happens within it.
    static void Click(QWidget& window, const char* name)
    {
        auto* button = window.findChild<QWidget*>(name);
        QTimer::singleShot(0, button, [button] { QTest::mouseClick(button, Qt::LeftButton); });
    }

    const bool isAgreeing;
    bool isRefused = false;
    QString lastPage;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QDir::setCurrent(QApplication::applicationDirPath());
    Person person(argc > 1 && std::string(argv[1]) == "yes");
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [&person] { person.Look(); });
    looks.start(5);
    const Outcome outcome = UninstallWithWindow({}, [](const RunEvent&) {});
    Print(QString::number(static_cast<int>(outcome.code)));
    return 0;
}
