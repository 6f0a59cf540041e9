#pragma once

#include <QSettings>
#include <QString>

namespace Vorlan::FrontEnd
{

// What is known of the folder that an uninstaller lies in and would empty.
struct OwnFolder
{
    QSettings::Scope scope; // for whom the product is installed
    QString refusal;        // why nothing here may be deleted; empty when it may
};

// Looks for the product in the registry, that of this user first. Deleting is refused where another
// folder is the registered one, and where there is no registration and neither the product's main
// program nor the mark of a removal that did not finish.
OwnFolder ExamineOwnFolder(const QString& folder, QSettings::Scope defaultScope);

// Marks the folder as one whose removal has begun, so that it can be begun again, until Finish.
class RemovalMark
{
public:
    explicit RemovalMark(const QString& folder);
    void Finish() const;

    static bool IsIn(const QString& folder);

private:
    QString path;
};

} // namespace Vorlan::FrontEnd
