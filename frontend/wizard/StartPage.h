#pragma once

#include "FoundInstallations.h"
#include "wizard/Page.h"

class QComboBox;

namespace Vorlan::FrontEnd
{

// First page: what will happen, where and for whom, the language, and links to the licence, to the
// privacy policy and to the removal of what is installed.
class StartPage : public Page
{
public:
    StartPage(const QString& locale, const FoundInstallations& found);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;

    QString Locale() const;
    // Shows what an installation with these settings does.
    void ShowPlan(const InstallationSettings& settings);

    std::function<void(const QString& locale)> languageChosen = [](const QString&) {};
    // `target` is "licence", "privacy" or "remove".
    std::function<void(const QString& target)> linkFollowed = [](const QString&) {};

private:
    QString HeadingText() const;
    QString RemovalText() const;
    QLabel* AddLinks(const char* name);

    FoundInstallations found;
    InstallationSettings plan;
    QLabel* heading;
    QLabel* intro;
    QLabel* place;
    QLabel* languageLabel;
    QComboBox* languages;
    QLabel* removal;
    QLabel* terms;
};

} // namespace Vorlan::FrontEnd
