#include "archive/EntryName.h"

#include "platform/Path.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cwctype>

namespace Vorlan
{

bool AreEntryNamesSafe(const std::vector<std::wstring>& names)
{
    QSet<QString> seen;
    return std::all_of(names.begin(), names.end(),
        [&seen](const std::wstring& wide)
        {
            if (wide.empty())
                return true;
            const QString name = Platform::TextFromWide(wide);
            const QString folded = name.toCaseFolded();
            if (seen.contains(folded))
                return false;
            seen.insert(folded);
            const QStringList components = name.split('/');
            return std::all_of(components.begin(), components.end(), Platform::IsFileNameAllowed);
        });
}

std::wstring EntryKey(const std::wstring& name)
{
    std::wstring key = name;
    std::transform(key.begin(), key.end(), key.begin(),
        [](wchar_t unit)
        { return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(unit))); });
    return key;
}

} // namespace Vorlan
