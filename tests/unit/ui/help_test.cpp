// The help explains everything that a user can see, and its window opens the right page.
#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <map>

#include "core/messages.h"
#include "image/field_map.h"
#include "screen.h"
#include "ui/dialogs/boxes.h"
#include "ui/help/guide.h"
#include "ui/help/help_pages.h"
#include "ui/help/help_topics.h"
#include "ui/help/manuals.h"
#include "ui/tips/tool_tips.h"

namespace ovl::testing {
namespace {

QString Latin(std::string_view text) {
  return QString::fromLatin1(text);
}

class HelpPagesTest : public ::testing::Test {
 protected:
  const ui::HelpPages pages_{ui::kEmbeddedHelp};
  const QStringList files_ = QDir(ui::kEmbeddedHelp).entryList();
};

TEST_F(HelpPagesTest, ExplainEveryMessage) {
  const auto page = pages_.Text("messages.md");
  for (const auto& box : core::BoxTable()) {
    SCOPED_TRACE(box.topic);
    const auto head = "\n## " + Latin(box.topic) + '\n';
    ASSERT_TRUE(page.contains(head));
    const auto entry = page.mid(page.indexOf(head) + 1).section("\n## ", 0, 0);
    auto parts = Latin(box.text).replace(Latin(core::kDetail), "…").split('\n');
    for (auto& line : parts) line = "\n> " + line.trimmed();
    for (const auto& part : parts + QStringList{Latin(box.title), "**Cause.** ", "**Cure.** "}) {
      EXPECT_TRUE(entry.contains(part)) << "lacks " << part.toStdString();
    }
  }
}

template <class... Kinds>
bool Holds(const controls::ControlRef& control) {
  return (... || std::holds_alternative<Kinds>(control));
}

TEST_F(HelpPagesTest, NameEveryTabWindowAndControlAsTheToolTipsDo) {
  Screen screen;
  const auto& main = screen.App().frmMain;
  QString tabs = pages_.Text("register_options.md");
  int tab = 0;
  for (const auto& caption : main.SSTab1.captions) {
    const auto text = pages_.Text(ui::HelpPageOfTab(tab++));
    EXPECT_TRUE(text.startsWith("# " + Latin(caption).trimmed())) << caption;
    tabs += text;
  }
  for (const auto* window : screen.Main().findChildren<QDialog*>()) {
    const auto name = window->objectName();
    EXPECT_TRUE(files_.contains(ui::HelpPageOfWindow(name))) << name.toStdString();
  }
  for (const auto& [own_name, control, form] : screen.App().registry.All()) {
    SCOPED_TRACE(form->name + "." + own_name);
    const bool picks = Holds<controls::List*, controls::OptionArray*>(control);
    EXPECT_TRUE(!picks || ui::ToolTipOf(form->name, own_name).endsWith('.'));
    if (!picks && !Holds<controls::TextBox*, controls::Button*, controls::CheckBox*>(control)) continue;
    // By its own name, or by the name of its array.
    const auto text = form == &main.form ? tabs : pages_.Text(ui::HelpPageOfWindow(Latin(form->name)));
    // Alone, a name that the main form has too means the control of the main form.
    const bool also_of_main =
        form != &main.form && screen.App().registry.Find(main.form, own_name) != nullptr;
    const auto name = Latin(also_of_main ? form->name + "." + own_name : own_name);
    const auto array = name.section('(', 0, 0);
    EXPECT_TRUE(text.contains('`' + name + '`') || text.contains('`' + array + '`'));
  }
}

TEST_F(HelpPagesTest, NameEveryMenuItemUnderItsMenuAndEveryShortcut) {
  Screen screen;
  const auto page = pages_.Text("main_form.md");
  const auto shown = [](const QAction* action) { return action->text().remove('&'); };
  for (const auto* menu : screen.Main().menuBar()->actions()) {
    const auto head = "\n## " + shown(menu) + '\n';
    const auto part = page.mid(page.indexOf(head) + 1).section("\n## ", 0, 0);
    EXPECT_TRUE(page.contains(head)) << head.toStdString();
    for (const auto* item : menu->menu()->actions()) {
      const auto keys = item->shortcut().toString();
      EXPECT_TRUE(part.contains(shown(item))) << "lacks " << shown(item).toStdString();
      EXPECT_TRUE(page.section("\n## Keys\n", 1).contains(keys)) << "lacks " << keys.toStdString();
    }
  }
}

TEST_F(HelpPagesTest, SayForEachKeyWhatItDoes) {
  Screen screen;
  std::map<QString, QString> items;
  for (const auto* shortcut : screen.Main().findChildren<QShortcut*>()) items[shortcut->key().toString()];
  for (const auto* item : screen.Main().findChildren<QAction*>())
    items[item->shortcut().toString()] = item->text().remove('&').remove("...");
  const auto table = pages_.Text("main_form.md").section("\n## Keys\n", 1).section("\n\n", 0, 0);
  static const QRegularExpression kKey("(Ctrl\\+(Shift\\+)?[A-Z]|Alt\\+[0-9]|F[0-9])$");
  int compared = 0;
  for (const auto& row : table.split('\n')) {
    const auto keys = row.section(" | ", 0, 0).mid(2).split(QRegularExpression(", | to "));
    const auto acts = row.section(" | ", 1).remove(" |").split(", ");
    for (qsizetype at = 0; at < keys.size(); ++at) {
      if (!kKey.match(keys[at]).hasMatch()) continue;
      EXPECT_TRUE(items.contains(keys[at])) << keys[at].toStdString();
      if (keys.size() != acts.size() || keys.size() == 1) continue;
      EXPECT_EQ(items[keys[at]], acts[at]) << keys[at].toStdString();
      ++compared;
    }
  }
  EXPECT_EQ(compared, 12);
}

TEST_F(HelpPagesTest, HaveARowForEveryFieldWithItsPlaceAndEditor) {
  const auto page = pages_.Text("fields.md");
  for (const auto& field : image::FieldTable()) {
    const QRegularExpression row(QString("\n\\| `%1` \\| .+ \\| [^|]+ \\|\n").arg(Latin(field.name)));
    EXPECT_TRUE(row.match(page).hasMatch()) << field.name;
  }
  // Early and late V1400, and V1324 without an address.
  EXPECT_TRUE(
      page.contains("| `DSPLINES_BAK` | 1 | 7 | 7 | 9 | 9 | 7 | 9 | 7 | | TEXT SETUP: DISPLAY LINE |"));
  EXPECT_TRUE(page.contains("| `DECIMAL_POINT_BAK` | 1 | 85 | 85 | 87 | 87 | 69 | 71 | 65 |"));
}

TEST_F(HelpPagesTest, HaveNoBrokenLink) {
  QStringList places = files_, listed("contents.md");
  for (const auto& file : files_) {
    for (const auto& line : pages_.Text(file).split('\n')) {
      if (line.startsWith('#')) places.append(file + '#' + ui::AnchorOf(line));
    }
  }
  static const QRegularExpression link("[^!]\\[[^\\]]+\\]\\(([^)]+)\\)");
  for (const auto& entry : pages_.Contents()) {
    listed.append(entry.file);
    const auto text = entry.file.isEmpty() ? QString() : pages_.Text(entry.file);
    for (auto links = link.globalMatch(text); links.hasNext();) {
      const auto place = links.next().captured(1);
      EXPECT_TRUE(places.contains(place)) << entry.file.toStdString() << " leads to " << place.toStdString();
    }
  }
  for (const auto& file : files_)
    EXPECT_TRUE(listed.contains(file)) << file.toStdString() << " is not listed";
}

class HelpWindowTest : public ScreenTest {
 protected:
  ui::HelpWindow* Help() { return OnScreen().Help().Window(); }
  QTextBrowser& Page() { return *Help()->findChild<QTextBrowser*>(); }
  QString Path(const QString& name) const { return folder.File(name.toStdString()).c_str(); }
};

TEST_F(HelpWindowTest, OpensThePageOfTheActiveWindowSearchesAndGoesBack) {
  Main().Tabs().setCurrentIndex(kExceptionTab);
  Press(*Main().Tabs().currentWidget(), Qt::Key_F1);
  EXPECT_EQ(Page().source().fileName(), "exception_report.md");
  const auto size = Page().document()->size();

  auto& search = *Help()->findChild<QLineEdit*>();
  auto& list = *Help()->findChild<QListWidget*>();
  search.setText("ovl-setup parity");
  EXPECT_TRUE(list.count() == 1 && list.item(0)->text().startsWith("No page"));
  search.setText("wipes three");
  emit search.returnPressed();
  EXPECT_EQ(Page().source().fileName(), "text_setup.md");
  Show();
  for (auto* button : Help()->findChildren<QPushButton*>()) {
    EXPECT_LT(button->geometry().bottom(), Page().y()) << button->text().toStdString() << " covers the page";
    if (button->text() == "Back") button->click();
  }
  EXPECT_EQ(Page().source().fileName(), "exception_report.md");
  EXPECT_EQ(Page().document()->size(), size) << "it has the same style as before";
  Press(*Help(), Qt::Key_Escape);
  EXPECT_TRUE(search.text().isEmpty() && Help()->isVisible());
  Press(*Help(), Qt::Key_Escape);
  EXPECT_TRUE(Help() == nullptr || !Help()->isVisible());
}

TEST_F(HelpWindowTest, OpensTheExplanationOfABoxInItsOwnWindow) {
  Press(Main(), Qt::Key_F1);
  QString shown;
  QTimer::singleShot(0, &Main(), [&] {
    auto* box = QApplication::activeModalWidget();
    Press(*box, Qt::Key_F1);
    EXPECT_EQ(Help()->parentWidget(), box) << "the box holds back every other window";
    shown = Page().source().toString();
    Show();
    EXPECT_EQ(Page().cursorForPosition({8, 8}).block().text(), "Connection Time Out");
    box->close();
  });
  ui::ShowBox(&Main(), core::BoxOf(core::Box::kTimeOut, {}));
  EXPECT_EQ(shown, "help:/messages.md#connection-time-out");
  EXPECT_EQ(Help(), nullptr);
}

TEST_F(HelpWindowTest, ReportsMissingPages) {
  const ui::HelpPages none(Path("nowhere"));
  ui::HelpWindow window(none, nullptr);
  window.Open("remote.md");
  EXPECT_TRUE(none.Contents().empty());
  EXPECT_TRUE(none.Text("remote.md").contains("nowhere/remote.md cannot be read: "));
  EXPECT_TRUE(window.findChild<QTextBrowser*>()->toPlainText().contains("nowhere"));
  EXPECT_TRUE(window.findChild<QListWidget*>()->item(0)->text().contains("nowhere"));
}

TEST_F(HelpWindowTest, ThePagesAreExportedAsOneGuideWithPictures) {
  const ui::HelpPages pages(ui::kEmbeddedHelp);
  const auto guide = Path("guide.pdf");
  EXPECT_FALSE(ui::WriteGuide(ui::HelpPages(Path("nowhere")), {}, guide).Ok());
  EXPECT_TRUE(ui::WriteGuide(pages, {}, guide).Ok());
  const auto without_pictures = QFileInfo(guide).size();
  QImage picture(200, 100, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(Path("tab2_alarm_outputs_steps.png")) && picture.save(Path("micros_idn.png")));
  EXPECT_TRUE(ui::WriteGuide(pages, Path(""), guide).Ok());
  EXPECT_GT(QFileInfo(guide).size(), without_pictures);
  const auto blocked = guide + "/no/guide.pdf";
  EXPECT_EQ(ui::WriteGuide(pages, {}, blocked).Problem().Text(), blocked.toStdString() + ": Not a directory");
}

// A desktop that opens files.
class Desktop : public QObject {
  Q_OBJECT
 public:
  Desktop() { QDesktopServices::setUrlHandler("file", this, "Open"); }
  ~Desktop() override { QDesktopServices::unsetUrlHandler("file"); }
  QStringList opened;

 public slots:
  void Open(const QUrl& url) { opened.append(url.fileName()); }
};

// A desktop answers which program opens a kind of file.
void Answer(const TemporaryFolder& folder, const std::string& reader, const std::string& browser) {
  WriteFile(folder.File("xdg-mime"), "#!/bin/sh\ncase $3 in application/pdf) echo " + reader +
                                         ";; inode/directory) echo " + browser + ";; esac\n");
  std::filesystem::permissions(folder.File("xdg-mime"), std::filesystem::perms::owner_all);
}

TEST_F(HelpWindowTest, OpensAManualOrItsFolderOrReportsWhyNot) {
  Desktop desktop;
  const TemporaryFolder tools;
  const auto path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(tools.Path().string()) + ':' + path);
  const auto manuals = ui::ManualFolder(Path(""));
  QString report;
  const auto opened_by = [&](const std::function<void()>& open) {
    desktop.opened.clear();
    report.clear();
    open();
    for (const QDeadlineTimer late(10000);
         desktop.opened.isEmpty() && report.isEmpty() && !late.hasExpired();)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    return desktop.opened.join(',') + report;
  };
  const auto opened = [&](const QString& in, const char* file) {
    return opened_by([&] { ui::OpenManual(Main(), in, file, [&](const QString& why) { report = why; }); });
  };
  EXPECT_EQ(opened(manuals, ""),
            "The manual folder cannot be opened.\n\n" + manuals + ": No such file or directory");
  QDir().mkpath(manuals);
  for (const char* name : {"/B.pdf", "/a.PDF", "/notes.txt"}) {
    ASSERT_TRUE(QFile(manuals + name).open(QIODevice::WriteOnly));
  }
  Answer(tools, "reader", "browser");
  EXPECT_EQ(ui::ListManuals(manuals), QStringList({"a.PDF", "B.pdf"}));
  auto& menu = *Main().HelpMenu().findChild<QMenu*>("menuManual");
  emit menu.aboutToShow();
  ASSERT_EQ(menu.actions().size(), 4);
  EXPECT_EQ(opened_by([&] { menu.actions().at(1)->trigger(); }), "B.pdf");
  EXPECT_EQ(opened_by([&] { menu.actions().at(3)->trigger(); }), "Manual");
  Answer(tools, "", "browser");
  EXPECT_EQ(opened(manuals, "B.pdf"), "Manual");
  Answer(tools, "", "");
  EXPECT_TRUE(opened(manuals, "B.pdf").endsWith(manuals + ": no program is installed that opens folders"));
  EXPECT_TRUE(opened(manuals + "/B.pdf", "B.pdf").endsWith("/B.pdf: Not a directory"));
  qputenv("PATH", path);
}

}  // namespace
}  // namespace ovl::testing

#include "help_test.moc"
