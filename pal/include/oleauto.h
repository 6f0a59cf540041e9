// The text values of automation, for C++ only. What is kept, changed and refused is documented at
// the definition.
#ifndef PAL_OLEAUTO_H
#define PAL_OLEAUTO_H

#include <objbase.h>

typedef uint16_t VARTYPE;
typedef wchar_t OLECHAR;
typedef OLECHAR* BSTR;

enum VARENUM
{
    VT_EMPTY = 0,
    VT_I4 = 3,
    VT_BSTR = 8
};

struct VARIANT
{
    VARTYPE vt;
    union
    {
        LONG lVal;
        BSTR bstrVal;
    };
};

extern "C"
{
    BSTR WINAPI SysAllocString(const OLECHAR* text);
    void WINAPI SysFreeString(BSTR text);
    void WINAPI VariantInit(VARIANT* value);
    HRESULT WINAPI VariantClear(VARIANT* value);
}

#endif
