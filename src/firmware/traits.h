// What the families and releases of the firmware differ in. This is the only place that compares a family or
// a release; the rest of the system asks the questions below.
//
// "Release 6" means the number behind the "R". A rule that gives a first release holds for all later releases
// too, also for those that no unit has. A rule without a family name holds for an unknown family, too.
#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <span>

#include "firmware/firmware_id.h"

namespace ovl::firmware {

// Releases of some families. The first and the last one are included.
struct Releases {
  FamilySet families = 0;
  int first = 0;
  int last = std::numeric_limits<int>::max();
};
bool IsInReleases(const FirmwareId& firmware, const Releases& releases);

// Whether the release is this one or a later one, whatever the family.
bool IsFromRelease(const FirmwareId& firmware, int first);

// ---- The image and its stream

// The layout of the fixed section.
//   early V1400   the releases with the exact texts R1, R2, R4 and R6
//   late V1400    every other V1400 release, also an R3 or an R06 that no unit has
//   old V13xx     V1300 below release 26, V1324 below release 25
//   new V13xx     the later releases of these two, V1310, V1334, and every unknown family
Layout LayoutOf(const FirmwareId& firmware);

// All firmware have the time fields, and none has an ATM interface or an ANSI terminal. TCP/IP is missing in
// V1324 below release 19. This rule reads the last two characters of the release text: R119 counts as 19, and
// R9 counts as 0.
Capabilities CapabilitiesOf(const FirmwareId& firmware);

// The layout of a file that "Save" writes: the early one under every V1400, otherwise that of the firmware.
Layout SavedLayoutOf(const FirmwareId& firmware);

// A file that "Save" writes opens again under the same firmware. Under V13xx it is in the region of the old
// layout.
bool SavedFileReopens(const FirmwareId& firmware);

// "Open" takes a file of "Save" although it does not reopen, and reads it with shifted fields: V1400.
bool ReadsSavedFileShifted(const FirmwareId& firmware);

// V1400 below release 6: the image ends one record earlier. This rule goes by the number, LayoutOf by the
// text. They disagree about R3 and R5, which no unit has.
bool HasShortImage(const FirmwareId& firmware);

// The unit has a byte for the blank time "RTS": V1400 from release 11 on, if the layout is the late one, and
// the new V13xx layout.
bool StoresBlankByRts(const FirmwareId& firmware);

// A byte of the alarm record says what happens on a loss of the video signal, and each triggered text has a
// delay: V1400.
bool HasVideoLoss(const FirmwareId& firmware);

// The image has the number of characters in a line: V1400.
bool HasCharactersPerLine(const FirmwareId& firmware);

// The digits before the separator in a range value of an exception: 8 in V1400, 4 in all others.
std::size_t RangeIntegersOf(const FirmwareId& firmware);

// ---- The line

// The codes of the interface list, in list order: RS-232 first.
using InterfaceCodes = std::array<const char*, 3>;
const InterfaceCodes& InterfaceCodesOf(Layout layout);

// The same for a firmware; nothing for an unknown family.
const InterfaceCodes* InterfaceCodesOf(const FirmwareId& firmware);

// The position of "AUTO" in the speed lists. Only V1400 knows speeds above 38400.
int AutoSpeedPosition(const FirmwareId& firmware);

// The unit works in a network, and has protocols and a software handshake: V1400.
bool HasNetwork(const FirmwareId& firmware);

// V1400 R1 and R2: the master of a network has a fixed address.
bool HasFixedMasterAddress(const FirmwareId& firmware);

// ---- Alarms, exceptions and video recorder

// The alarm type: V1400 from release 6 on, V1300 from 26 on, V1324 from 25 on, all V1310 and V1334.
bool HasAlarmType(const FirmwareId& firmware);

// The video recorder is stored: every known family but V1400.
bool StoresRecorder(const FirmwareId& firmware);

// The third video recorder with its own pair of addresses: missing in V1300 below release 27 and in V1324
// below release 26. All others have it.
bool HasSecondRecorderPair(const FirmwareId& firmware);

// ---- The demonstration

// The demonstration is stored at all: a known family, in V1400 not before release 1.
bool StoresDemo(const FirmwareId& firmware);

// The byte packs four selections: V1400 from release 2 on, V1300 from 27 on, V1324 from 26 on, all V1310 and
// V1334. Other firmware keep one value below the bit of the demonstration itself.
bool HasPackedDemo(const FirmwareId& firmware);

// The default image counts the character list from 1: V1400 release 1, V1300 below 27, V1324 below 26. This
// is HasPackedDemo turned round, but for the V1400 releases below 1 and the unknown families, which have
// neither.
bool CountsDemoCharactersFromOne(const FirmwareId& firmware);

// The type of the demonstration is stored: V1400.
bool StoresDemoType(const FirmwareId& firmware);

// The speed of the demonstration is stored where the byte does not pack it: V1400.
bool StoresUnpackedDemoSpeed(const FirmwareId& firmware);

// The list of demonstrations: V1400 releases 2, 4, 6, 7, and from 11 on.
bool ShowsDemoType(const FirmwareId& firmware);

// The list of demonstration speeds: V1400 from release 13 on; in other families, HasPackedDemo.
bool ShowsDemoSpeed(const FirmwareId& firmware);

// ---- Options of the registers

// In the name of a default image blanks replace the slashes and commas of the register's name: V1400.
bool ReplacesSlashesInImageNames(const FirmwareId& firmware);

// IBM3151 TERMINAL, SCHLUMBERGER: the list of printouts is emptied before it is filled again. V1400.
bool RefillsPrintouts(const FirmwareId& firmware);

// NIXDORF, OMEGA 2000, TKMAXX: the option is written into REGTYPE_EXT2 from release 7 on, whatever the
// family; before, into REGTYPE_MINOR.
bool WritesNixdorfToExtension(const FirmwareId& firmware);

// EPSON GENERIC: the option is written into REGTYPE_EXT2 by V1400 from release 7 on.
bool WritesEpsonToExtension(const FirmwareId& firmware);

// EPSON GENERIC: the option is read from REGTYPE_EXT2, and "GRAPHIC FILTER" is offered, in V1400 from release
// 6 on, V1310 and V1324 from 24 on, and all V1334. Reading and writing disagree: the unit's images were made
// that way.
bool ReadsEpsonFromExtension(const FirmwareId& firmware);

// SHARP: the byte holds a code, not the place of the model. Asked only for V13xx: the new layout.
bool HasSharpCodes(const FirmwareId& firmware);

// SHARP: a click on the old frame is stored. Every known family but V1400, whose models have another frame.
bool StoresOldSharpModel(const FirmwareId& firmware);

// GILBARCO: a click is stored. V1300 and V1310; the others show what an upload brought.
bool StoresGilbarco(const FirmwareId& firmware);

// GILBARCO: "PASSPORT (XML FMT)" is offered. V1400 from release 6 on, V1300 from 23 on, all V1310.
bool OffersGilbarcoXml(const FirmwareId& firmware);

// GILBARCO: that option brings a list of its own. V1300 from release 27 on, all V1310.
bool HasGilbarcoXmlList(const FirmwareId& firmware);

// MICROS: "MICROS 3700 V4.X" is offered. V1400 from release 7 on.
bool OffersMicros3700(const FirmwareId& firmware);

// NCR: "NCR 5972" is offered, tapping and emulating. V1400 from release 6 on.
bool OffersNcr5972(const FirmwareId& firmware);

// The models of WEIGH SCALE, by the release alone. Release 5, which no unit has, knows none.
std::span<const char* const> WeighScaleModelsOf(const FirmwareId& firmware);

// ---- The compact firmware

// V1410. The program serves it with a reduced form and otherwise as a V1400.
bool IsCompact(const FirmwareId& firmware);

// The V1400 that the program takes a compact firmware for: R1 counts as R7, other releases keep their text.
FirmwareId ServedAs(const FirmwareId& compact);

}  // namespace ovl::firmware
