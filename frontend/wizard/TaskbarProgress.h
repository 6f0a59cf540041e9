#pragma once

#include <QWidget>

#include <memory>

namespace Vorlan::FrontEnd
{

// The progress bar in the taskbar button of a window. On Windows it is the shell's; Linux has no
// common one, and there it does nothing. On the GUI thread only.
class TaskbarProgress
{
public:
    TaskbarProgress();
    ~TaskbarProgress();
    TaskbarProgress(const TaskbarProgress&) = delete;
    TaskbarProgress& operator=(const TaskbarProgress&) = delete;

    // From 0 to 1. A window that has no native one yet is ignored.
    void Show(const QWidget& window, double fraction);
    void Clear(const QWidget& window);

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace Vorlan::FrontEnd
