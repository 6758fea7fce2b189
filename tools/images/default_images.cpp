#include "images/default_images.h"

#include <filesystem>

#include "checks/trial_program.h"
#include "core/configuration.h"
#include "core/failure.h"
#include "firmware/register_lists.h"
#include "firmware/traits.h"
#include "host/files.h"
#include "image/field_map.h"
#include "image/record_stream.h"
#include "image/slot_records.h"
#include "registers/register_catalogue.h"
#include "registers/selection_driver.h"
#include "start/start_up.h"

namespace ovl::images {
namespace {

using enum image::FieldId;

// The line settings of a register that forces none: 9600 baud, 8 data bits, no parity.
constexpr const char* kEightDataBits = "04";
constexpr const char* kBaud9600 = "03";
constexpr const char* kDisplayOn = "20";

void SetEvery(image::ConfigImage& image, image::FieldId field, const std::string& value) {
  for (int entry = 1; entry <= image::EntryCount(field); ++entry) image.at(field, entry) = value;
}

std::string StreamOf(image::ConfigImage image, const firmware::FirmwareId& firmware,
                     const firmware::Capabilities& capabilities) {
  const auto sections = image::WriteSections(image, firmware::LayoutOf(firmware), firmware, capabilities);
  return image::BlockRecords(sections.SYSCFG + sections.SYSFIXED + sections.SYSSTR,
                             image::WriteRegion(firmware));
}

// A program of the firmware with its register list. It has no platform.
void SetUp(core::Application& app, const firmware::FirmwareId& firmware) {
  app.firmware = app.image_firmware = firmware;
  PrepareCapabilities(app);
  start::WireProgram(app);
  registers::ResetRegisterIndexes(app);
  registers::BuildRegisterList(app);
}

// The register's options force line settings when they are applied. The image includes these settings, so
// that loading it later changes nothing.
image::ConfigImage RegisterImage(const core::Application& like, image::ConfigImage image, int code) {
  image[REGTYPE] = codecs::ByteToHex(code);
  return checks::TrialProgram(like, image).WithForcedSettings();
}

}  // namespace

image::ConfigImage FactoryImage(const firmware::FirmwareId& firmware) {
  const auto layout = firmware::LayoutOf(firmware);
  const auto capabilities = firmware::CapabilitiesOf(firmware);
  image::ConfigImage image;
  for (const auto& row : image::FieldTable()) {
    if (!image::InStream(row, layout, firmware, capabilities, image::Direction::kRead)) continue;
    SetEvery(image, row.id, std::string(static_cast<std::size_t>(image::DigitsOf(row, layout)), '0'));
  }
  image[COMMCFG_BAK] = kEightDataBits;
  image[IOCFG_BAK] = firmware::InterfaceCodesOf(layout).front();
  image[RX_BAUDRATE] = kBaud9600;
  image[TX_BAUDRATE] = kBaud9600;
  image[HIST_DEST_ID] = "01";
  image[HIST_SRC_ID] = "01";
  image[DSPLINES_BAK] = "08";
  image[DSPCFG_BAK] = kDisplayOn;
  image[BLNKIND] = "0B";
  image[DAYLIGHT_BAK] = "01";
  image[DEMO_ENABLE] = firmware::CountsDemoCharactersFromOne(firmware) ? "01" : "00";
  if (firmware::HasCharactersPerLine(firmware)) image[DSPCHARS_BAK] = "28";
  SetEvery(image, ALMSTRUCT_BAK, firmware::HasVideoLoss(firmware) ? "00FF0000" : "00FF00");
  SetEvery(image, EXCPSTRS, image::FreeExceptionSlot(firmware));
  return image;
}

int WriteDefaultImages(const std::string& folder, const firmware::FirmwareId& firmware) {
  namespace fs = std::filesystem;
  const auto images = host::PathOf(folder) / firmware.version / firmware.release;
  std::error_code error;
  fs::create_directories(images, error);
  if (error) throw core::Failure(host::TextOf(images), error);

  const auto capabilities = firmware::CapabilitiesOf(firmware);
  core::Application app;
  SetUp(app, firmware);
  const auto first = FactoryImage(firmware);
  int code = 0;
  for (const auto& entry : firmware::BuildRegisterEntries(firmware.version, firmware.release)) {
    const auto stream = StreamOf(RegisterImage(app, first, code++), firmware, capabilities);
    host::ReplaceFile(host::TextOf(images / registers::ImageFileOf(firmware, entry.name)), stream + "\r\n",
                      host::Flush::kNo);
  }
  return code;
}

}  // namespace ovl::images
