// Exports images as text and imports the text into another image, under every firmware. Half of the images
// are default images after random changes of whole settings, the other half random bytes behind a random
// register. Prints the first text that does not give its image back.
//   ovl-text-walk [IMAGES [SEED]]
#include <cmath>
#include <ctime>
#include <iostream>
#include <random>

#include "firmware/firmware_table.h"
#include "host/configurations/configurations.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "image/stream_entries.h"
#include "images/default_images.h"
#include "start/start_up.h"
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

// The register and its options are small numbers, so that the register offers them.
image::ConfigImage RandomImage(Random& random, const firmware::FirmwareId& firmware, std::size_t registers) {
  image::ConfigImage image;
  image::ForEachStreamEntry(firmware, [&](const image::FieldRow& row, int entry) {
    image.at(row.id, entry) = RandomDigits(random, text_form::DigitsOfField(row.id, firmware));
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
  Random random(seed);
  Times times;
  long count = 0;
  for (const auto& entry : firmware::FirmwareTable()) {
    core::Application app;
    start::ServeFirmware(app, entry.Id());
    text_form::Catalogue catalogue(app);
    const auto registers = app.frmMain.ComboReg.items.size();
    auto base = images::FactoryImage(app.image_firmware);
    for (int number = 0; number < images; ++number) {
      const auto image = number % 2 == 0 ? WalkedImage(random, catalogue, registers)
                                         : RandomImage(random, catalogue.Firmware(), registers);
      const auto wrong = Compare(catalogue, image, base, times);
      if (!wrong.empty()) {
        std::cout << entry.Id().Joined() << ", image " << number << ":\n" << wrong;
        return 1;
      }
      base = image;
      ++count;
    }
  }
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
