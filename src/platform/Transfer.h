#pragma once

#include <chrono>
#include <string>

namespace Vorlan::Networking
{

// How a transfer ended. Numbers never change; new ones go to the end.
enum class TransferCode : int
{
    Done = 0,
    AddressRefused = 1,   // not http or https, no host, or with a user name or password in it
    HostNotFound = 2,     // the name of the server or of the proxy has no address
    ConnectionFailed = 3, // no server listens there, or the connection was refused
    Offline = 4,          // as the two before, and the machine has no network connection
    TimedOut = 5,   // connected too slowly, slower than the slowest rate, or longer than allowed
    NotTrusted = 6, // the certificate is not to be trusted, or the secure connection failed
    RedirectRefused = 7, // too many redirects, or one to a refused address
    ServerRefused = 8,   // the server answered with a status other than 200
    Incomplete = 9,      // the connection ended before the body did
    TooLarge = 10,       // the body is larger than allowed
    NotWritable = 11,    // the file could not be made, written or renamed
    DiskFull = 12,       // there is no room for the file
    Cancelled = 13,
    Failed = 14 // anything else; the log has the cause
};

// What a transfer is allowed to do.
struct TransferPolicy
{
    std::chrono::milliseconds connectLimit{5000}; // to connect, the secure handshake included
    std::chrono::seconds slowLimit{15};           // a transfer is given up when for so long
    long slowestRate = 1024;                      // it was slower than this, in bytes a second
    std::chrono::milliseconds overallLimit{0};    // for everything, redirects included; 0: none
    std::chrono::milliseconds startLimit{300000}; // a body may take so long, and as much longer as
    long averageRate = 16L * 1024; // its declared length (else what has come) takes at this rate,
                                   // in bytes a second
    int redirects = 5;             // as many are followed
    long long largestBody = 16LL << 30; // bytes
    std::string authorities;            // file of trusted certificates (PEM); empty: the
                                        // system's
};

} // namespace Vorlan::Networking
