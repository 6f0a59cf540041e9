#include <iostream>

// The demo's handler of links: prints the link to open.
int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "VorlanLinkHelper: give one link to open\n";
        return 2;
    }
    std::cout << "link: " << argv[1] << '\n';
}
