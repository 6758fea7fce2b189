// The labels of the controls that store a field.
#include "changes/editors.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "firmware/firmware_table.h"
#include "image/field_map.h"
#include "support/harness.h"
#include "support/panel_facts.h"

namespace ovl::testing {
namespace {

using enum image::FieldId;

TEST(Editors, NameTheTabAndTheLabels) {
  const std::pair<image::FieldId, const char*> fields[] = {
      {COMMCFG_BAK,
       "COMMUNICATION: PARITY, DATA BITS, HW HANDSHAKING, AUTO LINEFEED; EXCEPTION REPORT: OUTPUT"},
      {REGTYPE_EXT2, "REGISTER SELECT: options; MICROS: HANDSHAKING"},
      {REGDV_TYPE_BAK, "MICROS: SOURCE TYPE"},
      {REG_GNA_BAK, "MICROS: SRC ISN GNA"},
      {REG_LNA_BAK, "MICROS: SRC ISN LNA"},
      {REG_IDNA_BAK, "MICROS: SRC IDN ID"},
      {PCDV_TYPE_BAK, "MICROS: DESTIN TYPE"},
      {PC_GNA_BAK, "MICROS: DST ISN GNA"},
      {PC_LNA_BAK, "MICROS: DST ISN LNA"},
      {PC_IDNA_BAK, "MICROS: DST IDN ID"},
  };
  Harness harness({"V1400", "R12"});
  harness.Start();
  for (const auto& [field, labels] : fields)
    EXPECT_EQ(changes::EditedBy(harness.app, field, "options"), labels);
}

// A field is either edited by a control, or it is read, kept and written back.
TEST(Editors, AreMissingOnlyForTheFieldsThatAreCarriedThrough) {
  for (const auto& field : image::FieldTable()) {
    const auto editors = changes::Editors();
    const bool edited = std::any_of(editors.begin(), editors.end(),
                                    [&](const auto& editor) { return editor.field == field.id; });
    EXPECT_NE(edited, CarriedFields().count(field.id) == 1) << field.name;
  }
}

// A missing caption would show only when a user looks at the changes under that firmware.
TEST(Editors, HaveCaptionsUnderEveryFirmware) {
  for (const auto& entry : firmware::FirmwareTable()) {
    Harness harness(entry.Id());
    harness.Start();
    for (const auto& field : image::FieldTable())
      EXPECT_NO_THROW(changes::EditedBy(harness.app, field.id, "options"))
          << entry.release << ' ' << field.name;
  }
}

// ComboCOMM(6) is left out, because the handshake decides what it stores.
TEST(Editors, APickChangesOnlyTheBitsOfItsEditor) {
  int tried = 0;
  Harness harness({"V1400", "R12"});
  harness.Start();
  auto& app = harness.app;
  for (const auto& editor : changes::Editors()) {
    const bool of_main =
        editor.display != core::ValueDisplay::kNothing && editor.place != core::Place::kMicros;
    if (!of_main || editor.controls == "ComboCOMM(6)") continue;
    const auto& list = *std::get<controls::List*>(app.registry.Find(editor.controls)->control);
    int changed = 0;
    for (int position = 0; position < static_cast<int>(list.items.size()); ++position) {
      const int before = codecs::HexToInt(app.image[editor.field]);
      harness.Pick(editor.controls, position);
      changed |= before ^ codecs::HexToInt(app.image[editor.field]);
    }
    EXPECT_TRUE(editor.bits == core::kWholeByte ? changed != 0 : changed == editor.bits) << editor.controls;
    ++tried;
  }
  EXPECT_GE(tried, 28);
}

}  // namespace
}  // namespace ovl::testing
