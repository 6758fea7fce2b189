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

}  // namespace
}  // namespace ovl::testing
