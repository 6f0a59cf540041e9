#include "platform/Exception.h"

#include "platform/System.h"

#include <boost/core/demangle.hpp>
#include <boost/stacktrace.hpp>

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <typeinfo>

namespace Vorlan
{

const char* Exception::what() const noexcept
{
    const std::string* message = boost::get_error_info<ExceptionMessage>(*this);
    return message ? message->c_str() : "";
}

std::string GetCallStack()
{
    return boost::stacktrace::to_string(boost::stacktrace::stacktrace(1, 64));
}

namespace Core
{

namespace
{

bool AppendLine(const QString& fileName, const QByteArray& line)
{
    QFile file(fileName);
    return file.open(QIODevice::Append) && file.write(line + '\n') == line.size() + 1 &&
           file.flush();
}

} // namespace

void TrackException(const std::string& type, const std::string& message) noexcept
try
{
    const QString folder = Platform::LogFolder();
    const QJsonObject record{{"time", QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)},
        {"type", QString::fromStdString(type)}, {"message", QString::fromStdString(message)}};
    const QString fileName = folder + "/exceptions.jsonl";
    if (folder.isEmpty() || !QDir().mkpath(folder) ||
        !AppendLine(fileName, QJsonDocument(record).toJson(QJsonDocument::Compact)))
        qWarning() << "Exception could not be recorded in" << fileName;
}
catch (...)
{
    qWarning() << "Exception could not be recorded";
}

void TrackException(const std::exception& exception) noexcept
{
    TrackException(boost::core::demangle(typeid(exception).name()), exception.what());
}

} // namespace Core

} // namespace Vorlan
