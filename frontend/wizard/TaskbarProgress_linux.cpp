#include "wizard/TaskbarProgress.h"

namespace Vorlan::FrontEnd
{

struct TaskbarProgress::State
{
};

TaskbarProgress::TaskbarProgress() = default;
TaskbarProgress::~TaskbarProgress() = default;

void TaskbarProgress::Show(const QWidget&, double) {}

void TaskbarProgress::Clear(const QWidget&) {}

} // namespace Vorlan::FrontEnd
