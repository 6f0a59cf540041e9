#pragma once

#include <QByteArray>
#include <QString>

#include <utility>

// Sets a variable of this process's environment for as long as it lives.
class Environment
{
public:
    Environment(QByteArray variable, const QString& value)
        : name(std::move(variable)), former(qgetenv(name.constData()))
    {
        qputenv(name.constData(), value.toUtf8());
    }
    ~Environment()
    {
        former.isNull() ? qunsetenv(name.constData()) : qputenv(name.constData(), former);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const QByteArray name;
    const QByteArray former;
};
