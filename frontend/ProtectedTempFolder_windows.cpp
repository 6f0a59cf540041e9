#include "ProtectedTempFolder.h"

#include <QDir>

#include <memory>

#include <windows.h>

#include <sddl.h>

namespace Vorlan::FrontEnd
{
namespace
{

// Owner: administrators. Nothing is inherited from the parent; system and administrators have all
// rights, users may read, here and in everything below.
constexpr wchar_t access[] = L"O:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;0x1200a9;;;BU)";

struct DescriptorRelease
{
    void operator()(void* descriptor) const { LocalFree(descriptor); }
};

} // namespace

// Not from the environment, which an ordinary program of the user may have chosen.
QString SystemTemp::Parent()
{
    wchar_t folder[MAX_PATH] = {};
    GetSystemWindowsDirectoryW(folder, MAX_PATH);
    return QDir(QString::fromWCharArray(folder)).filePath("Temp");
}

bool SystemTemp::CreateProtected(const QString& path)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
            access, SDDL_REVISION_1, &descriptor, nullptr))
    {
        return false;
    }
    const std::unique_ptr<void, DescriptorRelease> owner(descriptor);
    SECURITY_ATTRIBUTES attributes = {sizeof attributes, descriptor, FALSE};
    return CreateDirectoryW(QDir::toNativeSeparators(path).toStdWString().c_str(), &attributes) !=
           FALSE;
}

} // namespace Vorlan::FrontEnd
