#include "ui/dialogs/boxes.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "host/text_codec.h"
#include "ui/kit/theme.h"
#include "ui/language/model_texts.h"

namespace ovl::ui {
namespace {

const QString kProgramName = QStringLiteral("OVL Software");

// Converts "Text Files(*.txt)|*.txt|..." to the filters of Qt, such as "Text Files (*.txt)".
QStringList NameFilters(const std::string& filter) {
  const auto parts = QCoreApplication::translate("Filter", filter.c_str()).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
    auto words = parts[at];
    words.truncate(words.contains(QLatin1Char('(')) ? words.indexOf(QLatin1Char('(')) : words.size());
    auto patterns = parts[at + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' ')).replace(QStringLiteral("*.*"), QStringLiteral("*"));
    filters.append(words.trimmed() + QStringLiteral(" (") + patterns + QLatin1Char(')'));
  }
  return filters;
}

// A text above a list of lines that can be long.
class LinesWindow : public QDialog {
 public:
  LinesWindow(QWidget* parent, const QString& text, const QStringList& lines) : QDialog(parent) {
    setWindowTitle(kProgramName);
    setObjectName(QStringLiteral("LinesWindow"));
    auto* words = new QLabel(text);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    auto* list = new QPlainTextEdit(lines.join(QLatin1Char('\n')));
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setAccessibleName(text);
    auto* down = new QVBoxLayout(this);
    down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    down->setSpacing(kFieldGap);
    down->addWidget(words);
    down->addWidget(list);
    down->addWidget(&buttons_);
    connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(kLinesWidth, kLinesHeight);
  }

  QDialogButtonBox& Buttons() { return buttons_; }

 private:
  static constexpr Em kLinesWidth{58}, kLinesHeight{25};

  QDialogButtonBox buttons_;
};

// The suffix for a name without one: that of the chosen filter, if the filter has just one, or else that of
// the start name.
QString SuffixFor(const QString& filter, const QFileInfo& start) {
  const auto pattern = filter.section(QLatin1Char('('), 1).chopped(1);
  const bool single = pattern.startsWith(QStringLiteral("*.")) && !pattern.contains(QLatin1Char(' '));
  return single ? pattern.mid(2) : start.suffix().toLower();
}

}  // namespace

void ShowBox(QWidget* parent, const core::MessageBox& box, const QString& detail) {
  const auto icon = box.icon == core::BoxIcon::kInformation ? QMessageBox::Information : QMessageBox::NoIcon;
  const auto [title, text] = TextsOf(box);
  QMessageBox window(icon, title.isEmpty() ? kProgramName : title, text, QMessageBox::Ok, parent);
  window.setTextFormat(Qt::PlainText);
  window.setInformativeText(detail);
  window.setObjectName(QStringLiteral("MessageBox"));
  window.setProperty(kBoxTopic, host::FromWindows1252(box.topic));
  window.exec();
}

std::optional<core::FileAnswer> AskFile(QWidget* parent, const core::FileDialog& request) {
  const bool saves = request.kind == core::FileDialog::Kind::kSave;
  QFileDialog dialog(parent, saves ? QCoreApplication::translate("Boxes", "Save")
                                   : QCoreApplication::translate("Boxes", "Open"));
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  const QFileInfo start(QFile::decodeName(request.file_name.c_str()));
  const auto filters = NameFilters(request.filter);
  if (!filters.isEmpty()) {
    dialog.setNameFilters(filters);
    const auto chosen = filters.value(request.filter_index - 1, filters.front());
    dialog.selectNameFilter(chosen);
    dialog.setDefaultSuffix(SuffixFor(chosen, start));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&](const QString& filter) { dialog.setDefaultSuffix(SuffixFor(filter, start)); });
  }
  if (!request.file_name.empty()) {
    dialog.setDirectory(start.absolutePath());
    if (!start.fileName().contains(QLatin1Char('*'))) dialog.selectFile(start.fileName());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return core::FileAnswer{QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString(), 0};
}

bool AskWhetherToOpen(QWidget* parent, const QString& text, const QString& detail) {
  QMessageBox window(QMessageBox::Warning, kProgramName, text, QMessageBox::Cancel, parent);
  const auto* open =
      window.addButton(QCoreApplication::translate("Boxes", "Open anyway"), QMessageBox::AcceptRole);
  window.setDefaultButton(QMessageBox::Cancel);
  window.setEscapeButton(QMessageBox::Cancel);
  window.setTextFormat(Qt::PlainText);
  window.setInformativeText(detail);
  window.setObjectName(QStringLiteral("OpenQuestion"));
  window.setProperty(kBoxTopic, QStringLiteral("A file does not fit"));
  window.exec();
  return window.clickedButton() == open;
}

void ShowProblems(QWidget* parent, const QString& text, const QStringList& lines) {
  LinesWindow window(parent, text, lines);
  window.Buttons().addButton(QDialogButtonBox::Close)->setFocus();
  window.setProperty(kBoxTopic, QStringLiteral("A text is not taken"));
  window.exec();
}

bool AskWhetherToTakeTheRest(QWidget* parent, const QString& text, const QStringList& lines,
                             const QString& button) {
  LinesWindow window(parent, text, lines);
  window.Buttons().addButton(button, QDialogButtonBox::AcceptRole);
  auto* cancel = window.Buttons().addButton(QDialogButtonBox::Cancel);
  cancel->setDefault(true);
  cancel->setFocus();
  window.setProperty(kBoxTopic, QStringLiteral("A text is of another firmware"));
  return window.exec() == QDialog::Accepted;
}

}  // namespace ovl::ui
