// Writes the samples into the registry of the machine root: the runner of the tests under Wine
// makes with it the file that they import.
#include "support/RegistrySamples.h"

#include <iostream>

namespace
{

bool Write(HKEY root, const RegistrySample& sample)
{
    const HKEY key = MakeKey(root, samplesKey + (L'\\' + sample.subKey));
    const LSTATUS status = sample.text.empty()
                               ? SetBytes(key, sample.name, sample.type, sample.bytes)
                               : SetWide(key, sample.name, sample.type, sample.text);
    return RegCloseKey(key) == ERROR_SUCCESS && status == ERROR_SUCCESS;
}

} // namespace

int main()
{
    for (const RegistrySample& sample : RegistrySamples())
    {
        if (!Write(HKEY_CURRENT_USER, sample))
        {
            std::cerr << "registry-samples: a value could not be written\n";
            return 1;
        }
    }
    RegCloseKey(MakeKey(HKEY_CURRENT_USER, samplesKey + std::wstring(L"\\empty key")));
}
