#include <filesystem>
#include <iostream>

// The demo's main program: prints its version, its arguments and the current folder.
int main(int argc, char** argv)
{
    std::cout << "Vorlan Quillax 24.5.1\n";
    for (int i = 1; i < argc; ++i)
    {
        std::cout << "argument: " << argv[i] << '\n';
    }
    std::cout << "folder: " << std::filesystem::current_path().string() << '\n';
}
