#pragma once

#include "wizard/Page.h"

namespace Vorlan::FrontEnd
{

// Page for an uninstaller in a folder where the product is not registered: what is registered
// where, and what the buttons do. None of them is the default.
class OtherFolderPage : public Page
{
public:
    // `refusal` says what is wrong; `copyCount`: files in this folder that belong to a copy of the
    // program.
    OtherFolderPage(const QString& folder, const QString& refusal, int copyCount);

    void Retranslate(const QString& locale) override;
    bool HasDefaultButton() const override { return false; }

private:
    QString folder;
    QString refusal;
    int copyCount;
    QLabel* heading;
    QLabel* reason;
    QLabel* copy;
};

} // namespace Vorlan::FrontEnd
