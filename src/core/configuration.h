// The configuration that the program holds, as the stream that units and files hold.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"
#include "image/record_stream.h"

namespace ovl::core {

// Sets the capability flags of the firmware. Every load and save calls it first.
void PrepareCapabilities(Application& app);

// Reads a stream, whose lines are joined, into the image. While PanelsReady is false it reads all fields,
// else only those that a register's default image sets. A stream of another firmware shows a message box and
// gives false; the image does not change. A stream without its end shows the fatal message and ends the
// program.
bool LoadStream(Application& app, std::string_view stream);

// The image as a stream in the given layout and region. The three sections stay in the application object.
std::string ComposeStream(Application& app, firmware::Layout layout, const image::Region& region);

// The stream that a download sends. The sections are left in the application object.
std::string SectionsToStream(Application& app);

// Gives the program another image. The panels show it as they show an opened file, but what they would
// correct stays as it is: the image then is what was given, to the bit.
void TakeImage(Application& app, const image::ConfigImage& image);

}  // namespace ovl::core
