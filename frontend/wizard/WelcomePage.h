#pragma once

#include "wizard/Page.h"

class QComboBox;

namespace Vorlan::FrontEnd
{

// First page, with the language and links to the licence and the privacy policy.
class WelcomePage : public Page
{
public:
    // `isNewer`: the installed version, if any, is older than this one.
    WelcomePage(const QString& locale, bool isNewer);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;

    QString Locale() const;

    std::function<void(const QString& locale)> languageChosen = [](const QString&) {};
    // `target` is "licence" or "privacy".
    std::function<void(const QString& target)> linkFollowed = [](const QString&) {};

private:
    bool isNewer;
    QLabel* heading;
    QLabel* intro;
    QLabel* languageLabel;
    QComboBox* languages;
    QLabel* terms;
};

} // namespace Vorlan::FrontEnd
