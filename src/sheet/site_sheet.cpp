#include "sheet/site_sheet.h"

#include <algorithm>
#include <vector>

#include "changes/preview_program.h"
#include "image/slot_records.h"
#include "sheet/checksum.h"
#include "sheet/html.h"
#include "sheet/slot_table.h"
#include "text_form/export.h"

namespace ovl::sheet {
namespace {

using text_form::Line;
using Lines = std::vector<Line>;

constexpr std::string_view kEmpty = "&#160;";  // a cell without anything would spoil the space below a table
constexpr std::size_t kPairs = 3;              // settings beside each other
constexpr std::string_view kTitleText = "Title_Text";
constexpr const char* kChangedWords =
    "<p class=\"head\">Some of these settings have changed and were not downloaded to the unit.</p>\n";

// The sizes are such that 24 exceptions and 16 alarms fit on page 2 of either paper.
constexpr std::string_view kHead = R"(<!DOCTYPE html>
<html>
<head>
<meta charset="UTF-8">
<title>Site sheet</title>
<style>
body, td, th, p { font-family: 'DejaVu Sans', Arial, sans-serif; font-size: 8pt; }
p { margin: 2px 0 0 0; }
p.title { font-size: 15pt; font-weight: bold; margin: 0; }
p.head { font-size: 9pt; font-weight: bold; margin: 9px 0 2px 0; }
table { border-collapse: collapse; }
table.next { page-break-before: always; }
td, th { padding: 2px 4px 1px 2px; vertical-align: middle; border-bottom: 1px solid #c0c0c0; }
td.plain { border-bottom: none; }
td.hand { border-bottom: 1px solid #000000; }
td.name { color: #404040; }
td.value { font-weight: bold; }
table.checks td { font-size: 7.5pt; }
table.slots td { font-size: 7.5pt; padding: 2px 4px 2px 2px; }
table.slots th { font-size: 6pt; padding: 1px 3px 1px 2px; font-weight: normal; text-align: left; vertical-align: bottom; color: #404040; }
td.text, table.slots td.value, th { white-space: nowrap; }
td.words { white-space: pre-wrap; }
.picture { font-family: 'DejaVu Sans Mono', 'Courier New', monospace; font-size: 7pt; background-color: #e8e8e8; }
</style>
</head>
<body>
)";

std::string TitleTextOf(const image::ConfigImage& image) {
  return PictureText(image::StoredText(image::WithoutEndMark(image[image::FieldId::ONSCRNTITL])));
}

std::string RowOf(const std::vector<std::string>& cells) {
  std::string row = "<tr>";
  for (const auto& cell : cells) row += cell;
  return row + "</tr>\n";
}

// A table of the settings of one tab, with some beside each other. A text has a row of its own.
std::string Section(const Lines& lines, const image::ConfigImage& image,
                    const changes::PreviewProgram& program) {
  constexpr std::string_view kNameWidth = "18%", kValueWidth = "15.3%";
  std::string rows, texts;
  std::vector<std::string> cells;
  const auto end_row = [&] {
    while (cells.size() < 2 * kPairs)
      cells.push_back(Cell("name", kEmpty, cells.size() % 2 == 0 ? kNameWidth : kValueWidth));
    rows += RowOf(cells);
    cells.clear();
  };
  for (const auto& line : lines) {
    if (line.control == kTitleText) {
      texts += "<tr>" + Cell("name", Html(line.key)) + "<td class=\"text\" colspan=\"5\">" +
               TitleTextOf(image) + "</td></tr>\n";
      continue;
    }
    cells.push_back(Cell("name", Html(line.key), kNameWidth));
    cells.push_back(Cell("value", Html(program.CoverOf(line.control).value_or(ValueOf(line))), kValueWidth));
    if (cells.size() == 2 * kPairs) end_row();
  }
  if (!cells.empty()) end_row();
  return Head(Html(lines.front().table)) + Table("settings", rows + texts);
}

// The tabs in the order of the text form.
std::string Sections(const Lines& lines, const core::Application& like, const image::ConfigImage& image) {
  const changes::PreviewProgram program(like, image);
  std::string html;
  Lines section;
  const auto end_section = [&] {
    if (!section.empty()) html += Section(section, image, program);
    section.clear();
  };
  for (const auto& line : lines) {
    if (line.slot > 0) continue;
    if (!section.empty() && section.front().table != line.table) end_section();
    section.push_back(line);
  }
  end_section();
  return html;
}

std::vector<std::string> RowsOf(std::span<const checks::Finding> findings) {
  std::vector<std::string> rows;
  for (const auto& finding : findings) {
    rows.push_back(
        RowOf({Cell("value", Html(NameOf(finding.severity)), "9%"), Cell("words", Html(finding.words))}));
  }
  return rows;
}

// What both pages begin with.
std::string TitleOf(const core::Application& like, const std::string& sum, int page) {
  const auto& firmware = like.image_firmware;
  return Table(
      page > 1 ? "next" : "first",
      RowOf({Cell("plain", "<p class=\"title\">Site sheet</p>"),
             Cell("plain", "Firmware <b>" + Html(firmware.version + " " + firmware.release) + "</b>"),
             Cell("plain", "Checksum <b>" + sum + "</b>"),
             Cell("plain", "<p align=\"right\">Page " + std::to_string(page) + " of 2</p>")}));
}

// The lines for a pen.
std::string HandLines() {
  const auto line = [](const std::string& name, std::string_view name_width, std::string_view width) {
    return Cell("plain", "<br>" + name, name_width) + Cell("hand", kEmpty, width);
  };
  return Table("hand",
               RowOf({line("Site", "5%", "43%"), line("Installer", "9%", "20%"), line("Date", "6%", "17%")}));
}

}  // namespace

SiteSheet::SiteSheet(const core::Application& like, const image::ConfigImage& image,
                     std::span<const checks::Finding> findings, Changes changes)
    : findings_(RowsOf(findings)) {
  text_form::Catalogue catalogue(like);
  const auto lines = text_form::LinesOf(catalogue, image);
  const auto sum = Checksum(image, like.image_firmware).value_or("none: the configuration is not complete");
  settings_ = TitleOf(like, sum, 1) + HandLines() +
              (changes == Changes::kNotDownloaded ? kChangedWords : "") + Sections(lines, like, image);
  slots_ = TitleOf(like, sum, 2) + SlotTable(acts::SlotKind::kException, lines, like, image) +
           SlotTable(acts::SlotKind::kAlarm, lines, like, image);
}

std::string SiteSheet::Html(std::size_t findings) const {
  const auto shown = std::min(findings, findings_.size());
  std::string rows;
  for (std::size_t finding = 0; finding < shown; ++finding) rows += findings_[finding];
  if (shown < findings_.size()) {
    const auto rest = std::to_string(findings_.size() - shown);
    rows += RowOf({Cell("plain", kEmpty), Cell("plain", "And " + rest + " more.")});
  }
  const auto checks = rows.empty() ? "<p>The checks found nothing.</p>\n" : Table("checks", rows);
  return std::string(kHead) + settings_ + Head("Checks") + checks + slots_ + "</body>\n</html>\n";
}

}  // namespace ovl::sheet
