#pragma once

#include "wizard/Page.h"

class QComboBox;

namespace Vorlan::FrontEnd
{

// Greets, lets choose the language, and leads to the licence and the privacy policy.
class WelcomePage : public Page
{
public:
    // `isNewer`: there is no version on the machine that is as new as this one.
    WelcomePage(const QString& locale, bool isNewer);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;

    QString Locale() const;

    std::function<void(const QString& locale)> languageChosen = [](const QString&) {};
    // Names in the link: "licence" or "privacy".
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
