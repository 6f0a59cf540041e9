#pragma once

#include "Answer.h"

#include <string>

// One function per implementation, each in a file of its own: it loads the vendor's library, opens
// the codec for a small picture, and closes all again. Codecs by the names of CodecNames.h.
namespace Probe
{

// Larger than the smallest picture of every encoder.
constexpr int pictureWidth = 640;
constexpr int pictureHeight = 480;

Answer TryAmf(const std::string& codec);             // encodes; Windows only
Answer TryDirectX(const std::string& codec);         // decodes; Windows only
Answer TryMediaFoundation(const std::string& codec); // encodes or decodes; Windows only
Answer TryNvdec(const std::string& codec);           // decodes
Answer TryNvenc(const std::string& codec);           // encodes
Answer TryQsv(const std::string& codec);             // decodes, and encodes where it can

} // namespace Probe
