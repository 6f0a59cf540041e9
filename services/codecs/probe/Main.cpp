// corechecker.exe <codec> <implementation>
//
// Says in one line whether that codec works with that implementation on this machine: "usable",
// "unusable: <reason>" or "not present: <reason>". Ends with 0 whenever it could say so and with 64
// where it was called wrongly. docs/probe.md is the contract.
#include "Implementations.h"
#include "Library.h"

#include "platform/CodecNames.h"

#include <cstdio>
#include <map>
#include <string>

namespace ImplNames = Vorlan::Proc::ImplNames;

namespace
{

constexpr int wrongUsage = 64;

using Try = Probe::Answer (*)(const std::string& codec);

Probe::Answer TryNothing(const std::string&)
{
    return Probe::NotPresent("belongs to another system");
}

const std::map<std::string, Try> implementations{{ImplNames::AMF, Probe::TryAmf},
    {ImplNames::AUDIO_TOOLBOX, TryNothing}, {ImplNames::DIRECTX, Probe::TryDirectX},
    {ImplNames::MEDIA_FOUNDATION, Probe::TryMediaFoundation}, {ImplNames::NVDEC, Probe::TryNvdec},
    {ImplNames::NVENC, Probe::TryNvenc}, {ImplNames::QSV, Probe::TryQsv},
    {ImplNames::VIDEO_TOOLBOX_HW, TryNothing}, {ImplNames::VIDEO_TOOLBOX_SW, TryNothing}};

Probe::Answer TryPair(const std::string& codec, const std::string& implementation)
{
    const auto found = implementations.find(implementation);
    if (found == implementations.end())
        return Probe::NotPresent("unknown implementation");
    return found->second(codec);
}

std::string Line(const Probe::Answer& answer)
{
    std::string line = "usable";
    if (answer.kind == Probe::Answer::Kind::Unusable)
        line = "unusable";
    if (answer.kind == Probe::Answer::Kind::NotPresent)
        line = "not present";
    return answer.reason.empty() ? line : line + ": " + answer.reason;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
    {
        std::fprintf(stderr, "corechecker: usage: corechecker.exe <codec> <implementation>\n");
        return wrongUsage;
    }
    Probe::HideErrorBoxes();
    std::puts(Line(TryPair(argv[1], argv[2])).c_str());
    return 0;
}
