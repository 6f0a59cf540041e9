#pragma once

namespace Probe
{

// Lets a failure in a library end this program without a box on the screen.
void HideErrorBoxes();

// A library of the system or of a driver. On Windows it is looked for in System32 only: the folder
// of a setup program is often one that anybody can put files into.
class Library
{
public:
    explicit Library(const char* fileName);
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library();

    explicit operator bool() const { return handle != nullptr; }

    // The function of that name, or null.
    template <typename Function>
    Function* Find(const char* name) const
    {
        return reinterpret_cast<Function*>(FindAddress(name));
    }

private:
    void* FindAddress(const char* name) const;

    void* handle;
};

} // namespace Probe
