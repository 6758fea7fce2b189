#include "script/finding_lines.h"

#include <array>
#include <cstdio>

#include "host/text_codec.h"

namespace ovl::script {
namespace {

std::string Utf8(std::string_view words) {
  return host::FromWindows1252(words).toStdString();
}

bool IsControl(char character) {
  return static_cast<unsigned char>(character) < ' ' || character == '\x7F';
}

// `escape` is the form of a control character.
std::string Escaped(std::string_view text, const char* escape) {
  std::string escaped;
  for (const char character : text) {
    if (!IsControl(character)) {
      escaped += character;
      continue;
    }
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), escape, static_cast<unsigned>(character));
    escaped += code.data();
  }
  return escaped;
}

std::string JsonText(std::string_view text) {
  std::string quoted;
  for (const char character : text) {
    if (character == '"' || character == '\\') quoted += '\\';
    quoted += character;
  }
  return '"' + Escaped(quoted, "\\u%04X") + '"';
}

void PrintFinding(std::ostream& output, const checks::Finding& finding) {
  const auto member = [&](const char* name, std::string_view text) {
    output << JsonText(name) << ": " << JsonText(text) << ", ";
  };
  output << "    {";
  member("severity", checks::NameOf(finding.severity));
  member("id", finding.id);
  member("words", Utf8(finding.words));
  member("tab", Utf8(finding.place));
  member("setting", Utf8(finding.caption));
  member("control", finding.control);
  member("list", finding.list);
  output << "\"number\": " << finding.slot << "}";
}

}  // namespace

std::string LineOf(const checks::Finding& finding) {
  return std::string(checks::NameOf(finding.severity)) + ": " + std::string(finding.id) + ": " +
         Escaped(Utf8(finding.words), "\\x%02X");
}

void PrintJson(std::ostream& output, const std::vector<CheckedFile>& files) {
  output << "[";
  const char* before_file = "\n";
  for (const auto& file : files) {
    output << before_file << "  {\"path\": " << JsonText(host::FromSystem(file.path).toStdString()) << ", ";
    before_file = ",\n";
    if (!file.problem.empty()) {
      output << "\"problem\": " << JsonText(host::FromSystem(file.problem).toStdString()) << "}";
      continue;
    }
    output << "\"firmware\": " << JsonText(file.firmware.Joined()) << ", \"findings\": [";
    const char* before_finding = "\n";
    for (const auto& finding : file.findings) {
      output << before_finding;
      PrintFinding(output, finding);
      before_finding = ",\n";
    }
    output << (file.findings.empty() ? "]}" : "\n  ]}");
  }
  output << (files.empty() ? "]\n" : "\n]\n");
}

}  // namespace ovl::script
