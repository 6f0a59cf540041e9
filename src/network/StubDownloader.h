#pragma once

#include "network/AbstractDownloader.h"

namespace Vorlan::Installer
{

// Downloads nothing.
class StubDownloader : public AbstractDownloader
{
public:
    void DownloadFiles(const AdditionalDataTable&, const std::string&, double, double) override {}
};

} // namespace Vorlan::Installer
