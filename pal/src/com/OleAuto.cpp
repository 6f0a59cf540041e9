#include <oleauto.h>

#include <cstdlib>
#include <cwchar>

namespace
{

// The text's length in bytes precedes it, in a field that keeps the text aligned.
constexpr size_t lengthPlace = sizeof(uint64_t);

} // namespace

// Keeps:   a copy of the text, to be freed with SysFreeString; a null pointer gives a null pointer.
// Differs: the length before the text has eight bytes, and no call returns it.
BSTR SysAllocString(const OLECHAR* text)
{
    if (!text)
        return nullptr;
    const size_t size = std::wcslen(text) * sizeof(OLECHAR);
    auto* const memory = static_cast<char*>(std::malloc(lengthPlace + size + sizeof(OLECHAR)));
    if (!memory)
        return nullptr;
    *reinterpret_cast<uint64_t*>(memory) = size;
    auto* const copy = reinterpret_cast<OLECHAR*>(memory + lengthPlace);
    std::wcscpy(copy, text);
    return copy;
}

// Keeps:   frees the text; null is ignored. It cannot fail.
void SysFreeString(BSTR text)
{
    if (text)
        std::free(reinterpret_cast<char*>(text) - lengthPlace);
}

// Keeps:   the value becomes empty, whatever it held before.
void VariantInit(VARIANT* value)
{
    *value = VARIANT();
}

// Keeps:   a text is freed and the value becomes empty.
// Refuses: every type but texts, numbers and empty values.
HRESULT VariantClear(VARIANT* value)
{
    if (value->vt != VT_EMPTY && value->vt != VT_I4 && value->vt != VT_BSTR)
        return E_INVALIDARG;
    if (value->vt == VT_BSTR)
        SysFreeString(value->bstrVal);
    VariantInit(value);
    return S_OK;
}
