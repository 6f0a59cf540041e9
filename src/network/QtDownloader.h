#pragma once

#include "network/AbstractDownloader.h"

namespace Vorlan::Installer
{

// Downloads one file after another with the download manager, in an event loop of its own on the
// caller's thread.
class QtDownloader : public AbstractDownloader
{
    Q_OBJECT

public:
    void DownloadFiles(const AdditionalDataTable& table, const std::string& language, double start,
        double range) override;
};

} // namespace Vorlan::Installer
