// Exports images as text and imports the text into another image, under every firmware. The images are of
// three kinds: what random acts of a person and of the unit leave, default images after random changes of
// whole settings, and random bytes behind a random register, with some fields of another length. Prints the
// first text that does not give its image back.
//   ovl-text-walk [IMAGES OF EACH KIND [SEED]]
#include <cmath>
#include <ctime>
#include <filesystem>
#include <functional>
#include <iostream>
#include <optional>
#include <random>

#include "firmware/firmware_table.h"
#include "host/configurations/configurations.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "image/stream_entries.h"
#include "images/default_images.h"
#include "search/random_walk/act_generator.h"
#include "search/random_walk/checked_program.h"
#include "support/harness.h"
#include "text_form/export.h"
#include "text_form/import/import.h"

namespace ovl::testing {
namespace {

using Random = std::mt19937;

int Below(Random& random, std::size_t count) {
  return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random);
}

std::string RandomDigits(Random& random, std::size_t count) {
  std::string digits;
  while (digits.size() < count) digits += "0123456789ABCDEF"[Below(random, 16)];
  return digits;
}

// A field that a damaged file or line leaves: any characters but the end of the stream and those of lines.
void MakeIrregular(Random& random, std::string& value) {
  value = RandomDigits(random, static_cast<std::size_t>(1 + Below(random, 200)));
  if (Below(random, 2) != 0) return;
  auto other = static_cast<char>(Below(random, 256));
  if (other == '#' || other == '\r' || other == '\n') other = '$';
  value[static_cast<std::size_t>(Below(random, value.size()))] = other;
}

// The register and its options are small numbers, so that the register offers them.
image::ConfigImage RandomImage(Random& random, const firmware::FirmwareId& firmware, std::size_t registers) {
  image::ConfigImage image;
  image::ForEachStreamEntry(firmware, [&](const image::FieldRow& row, int entry) {
    auto& value = image.at(row.id, entry);
    value = RandomDigits(random, text_form::DigitsOfField(row.id, firmware));
    if (Below(random, 500) == 0) MakeIrregular(random, value);
  });
  image[image::FieldId::REGTYPE] = codecs::ByteToHex(Below(random, registers));
  for (const auto field :
       {image::FieldId::REGTYPE_MINOR, image::FieldId::REGTYPE_EXT1, image::FieldId::REGTYPE_EXT2}) {
    if (!image[field].empty() && Below(random, 8) != 0) image[field] = codecs::ByteToHex(Below(random, 6));
  }
  return image;
}

// Some settings as a person or another program leaves them.
image::ConfigImage WalkedImage(Random& random, text_form::Catalogue& catalogue, std::size_t registers) {
  auto image = images::FactoryImage(catalogue.Firmware());
  image[image::FieldId::REGTYPE] = codecs::ByteToHex(Below(random, registers));
  const auto panels = catalogue.OfPanels();
  std::vector<text_form::Setting> settings(panels.begin(), panels.end());
  for (auto& option : catalogue.OfRegister(image)) settings.push_back(std::move(option));
  for (int act = Below(random, 60); act > 0; --act) {
    const auto& setting = settings.at(static_cast<std::size_t>(Below(random, settings.size())));
    std::string words = RandomDigits(random, static_cast<std::size_t>(Below(random, 41)));
    if (setting.kind == text_form::Kind::kChoice && setting.control != "ComboReg") {
      if (setting.choices->empty()) continue;
      words = setting.choices->at(static_cast<std::size_t>(Below(random, setting.choices->size()))).words;
    }
    text_form::StoreWords(setting, words, image, catalogue.Firmware());
  }
  return image;
}

// A program in which a person and the unit act.
class Acts {
 public:
  Acts(const firmware::FirmwareId& firmware, unsigned seed) : firmware_(firmware), generator_(seed) {}

  // After some more of them. A pick of another firmware starts all over again.
  const image::ConfigImage& Next() {
    constexpr int kActs = 3;
    for (int act = 0; act < kActs || !IsOfFirmware(); ++act) {
      if (!IsOfFirmware()) program_.emplace(firmware_);
      for (const auto& line : generator_.Next(program_->App())) {
        if (program_->Ended() && line != "start") break;
        program_->Do(line);
      }
    }
    return program_->Image();
  }

 private:
  bool IsOfFirmware() { return program_ && program_->App().image_firmware == served_; }

  firmware::FirmwareId firmware_;
  firmware::FirmwareId served_ = firmware::ServedFirmware(firmware_.Joined());
  ActGenerator generator_;
  std::optional<CheckedProgram> program_;
};

// Of the processor.
struct Times {
  std::clock_t out = 0, in = 0;
};

// What is wrong, or an empty text.
std::string Compare(text_form::Catalogue& catalogue, const image::ConfigImage& image,
                    const image::ConfigImage& base, Times& times) {
  const auto start = std::clock();
  const auto text = text_form::Export(catalogue, image);
  const auto exported = std::clock();
  const auto again = host::ImportText(catalogue, base, host::ReadToml(text), text_form::Strictness::kWhole);
  times.out += exported - start;
  times.in += std::clock() - exported;
  std::string wrong;
  for (const auto& problem : again.problems) wrong += TextOf(problem, "text") + "\n";
  for (const auto& difference : image::Differences(image, again.image, catalogue.Firmware()))
    wrong += difference.name + " " + difference.before + " became " + difference.after + "\n";
  return wrong.empty() ? wrong : text + wrong;
}

int Walk(int images, unsigned seed) {
  const TemporaryFolder folder;
  std::filesystem::current_path(folder.Path());
  Random random(seed);
  Times times;
  long count = 0;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (firmware::IsKnownFamily(entry.Id().version)) images::WriteDefaultImages(".", entry.Id());
    host::Viewer viewer(entry.Id());
    auto& catalogue = viewer.catalogue;
    const auto registers = viewer.whole->frmMain.ComboReg.items.size();
    Acts acts(entry.Id(), seed);
    const std::function<image::ConfigImage()> kinds[] = {
        [&] { return acts.Next(); }, [&] { return WalkedImage(random, catalogue, registers); },
        [&] { return RandomImage(random, catalogue.Firmware(), registers); }};
    auto base = images::FactoryImage(catalogue.Firmware());
    for (int number = 0; number < images; ++number) {
      for (const auto& next : kinds) {
        const auto image = next();
        const auto wrong = Compare(catalogue, image, base, times);
        if (!wrong.empty()) {
          std::cout << entry.Id().Joined() << ", image " << number << ":\n" << wrong;
          return 1;
        }
        base = image;
        ++count;
      }
    }
  }
  std::filesystem::current_path("/");
  const auto mean = [&](std::clock_t time) {
    return static_cast<double>(time) * 1e6 / CLOCKS_PER_SEC / static_cast<double>(count);
  };
  std::cout << count << " images came back. Mean of an export " << std::lround(mean(times.out))
            << " us, of an import " << std::lround(mean(times.in)) << " us.\n";
  return 0;
}

}  // namespace
}  // namespace ovl::testing

int main(int argc, char** argv) {
  constexpr int kWhole = 10'000;
  const int images = argc > 1 ? std::stoi(argv[1]) : kWhole;
  return ovl::testing::Walk(images, argc > 2 ? static_cast<unsigned>(std::stoul(argv[2])) : 1U);
}
