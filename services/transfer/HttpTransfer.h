#pragma once

#include "platform/Transfer.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <atomic>
#include <functional>
#include <optional>

namespace Vorlan::Networking
{

struct HttpRequest
{
    QUrl url;
    TransferPolicy policy{};
    // Gets the body piece by piece; false ends the transfer with NotWritable. Never sees what comes
    // with another status than 200. What it throws ends the transfer as Failed.
    std::function<bool(const char* data, std::size_t size)> receive{};
    // Hears after each piece how many bytes came, and how many the server declared (-1: unknown).
    // May be empty; must not throw.
    std::function<void(long long received, long long declared)> progress{};
    // Sent as an HTML form with POST; without it the request is a GET.
    std::optional<QByteArray> form{};
};

struct HttpAnswer
{
    TransferCode code;
    QString text; // why it failed, for the log; empty where it did not
};

// Whether a transfer may go there at all: http or https, a host, no user name and no password.
bool IsAddressAllowed(const QUrl& url);

// Fetches over the operating system's proxy for each address on the way, with certificate checks.
// Blocks until the end; another thread may clear the flag to end it within 100 ms as Cancelled.
// Every failure is an answer; nothing is thrown.
HttpAnswer Fetch(const HttpRequest& request, const std::atomic<bool>& keepRunning);

// The same for a body of text that is kept in memory; it cannot be cancelled.
struct TextAnswer
{
    HttpAnswer answer;
    QByteArray body;
};
TextAnswer FetchText(HttpRequest request);

} // namespace Vorlan::Networking
