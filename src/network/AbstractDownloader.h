#pragma once

#include "network/AdditionalDataTable.h"

#include <QObject>

#include <string>

namespace Vorlan::Installer
{

// Downloads a product's additional data.
class AbstractDownloader : public QObject
{
    Q_OBJECT

public:
    // Downloads the entries for "all" and then those for the language, and moves each to its place;
    // returns when the last has ended. `start` and `range` are this work's share of the whole
    // installation (0.0 to 1.0). A file that fails is logged and skipped.
    virtual void DownloadFiles(const AdditionalDataTable& table, const std::string& language,
        double start, double range) = 0;

signals:
    // How far the whole installation is, from 0.0 to 1.0; on the thread of DownloadFiles.
    void Progress(double percentage);
};

} // namespace Vorlan::Installer
