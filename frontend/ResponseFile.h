#pragma once

#include "CommandLine.h"

#include <QString>

namespace Vorlan::FrontEnd
{

// A file with the choices of an installation, for machines that are to be equal: an INI file in
// UTF-8 with the section [Setup]. Its keys are the options Dir, Lang, Scope (AllUsers or
// CurrentUser), and Shortcuts, ContextMenu, AutoLaunch, Statistics (yes or no). Keys and words
// ignore case; lines that begin with ";" or "#" are comments.
class ResponseFile
{
public:
    explicit ResponseFile(QString path);

    // The options, completed with what they do not give and the file does; `error` is one line that
    // names the file and the wrong line.
    ParsedCommandLine Complete(const CommandLine& options) const;

    // Writes the choices in these options. Returns one line for the user, or an empty text.
    QString Save(const CommandLine& choices) const;

private:
    QString path;
};

} // namespace Vorlan::FrontEnd
