#include "wizard/TaskbarProgress.h"

#include "base/Com.h"

#include <QDebug>

#include <windows.h>

#include <shobjidl.h>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr ULONGLONG steps = 1000;

HWND HandleOf(const QWidget& window)
{
    return reinterpret_cast<HWND>(window.effectiveWinId());
}

} // namespace

// `list` is null where the shell has no taskbar.
struct TaskbarProgress::State
{
    Platform::ComPointer<ITaskbarList3> list;
    ULONGLONG shown = 0;
};

TaskbarProgress::TaskbarProgress() : state(std::make_unique<State>())
{
    const HRESULT result = CoCreateInstance(
        CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, state->list.Put());
    if (FAILED(result) || FAILED(state->list->HrInit()))
    {
        qInfo() << "The taskbar shows no progress, error" << result;
        state->list.Reset();
    }
}

TaskbarProgress::~TaskbarProgress() = default;

void TaskbarProgress::Show(const QWidget& window, double fraction)
{
    const auto position = static_cast<ULONGLONG>(qBound(0.0, fraction, 1.0) * steps);
    if (!state->list || HandleOf(window) == nullptr || position == state->shown)
        return;
    state->shown = position;
    state->list->SetProgressValue(HandleOf(window), position, steps);
}

void TaskbarProgress::Clear(const QWidget& window)
{
    if (state->list && HandleOf(window) != nullptr)
        state->list->SetProgressState(HandleOf(window), TBPF_NOPROGRESS);
    state->shown = 0;
}

} // namespace Vorlan::FrontEnd
