// The help has a word for everything that a person can meet, and its window leads there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include "core/messages.h"
#include "image/field_map.h"
#include "shell/boxes.h"
#include "shell/guide.h"
#include "shell/help_pages.h"
#include "shell/help_topics.h"
#include "shell/manuals.h"
#include "shell/program.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

QString Latin(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

bool Exists(const QString& page) {
  return !page.isEmpty() && QFile::exists(kEmbeddedHelp + QLatin1Char('/') + page);
}

// What a person picks, presses or types into.
bool IsField(const ControlRef& control) {
  return std::holds_alternative<List*>(control) || std::holds_alternative<OptionArray*>(control) ||
         std::holds_alternative<TextBox*>(control) || std::holds_alternative<Button*>(control) ||
         std::holds_alternative<CheckBox*>(control);
}

// By its name, or that of the array that it belongs to.
bool Names(const QString& text, const std::string& control) {
  const auto sign = [&](std::string_view name) {
    return text.contains(QLatin1Char('`') + Latin(name) + QLatin1Char('`'));
  };
  return sign(control) || sign(std::string_view(control).substr(0, control.find('(')));
}

TEST(HelpPagesTest, ExplainEveryMessage) {
  const auto page = HelpPages(kEmbeddedHelp).Text(QStringLiteral("messages.md"));
  for (const auto& box : BoxTable()) {
    const auto begin = page.indexOf(QStringLiteral("\n## ") + Latin(box.topic) + QLatin1Char('\n'));
    ASSERT_GE(begin, 0) << "no entry for " << box.topic;
    const auto entry = page.mid(begin + 1, page.indexOf(QStringLiteral("\n## "), begin + 1) - begin - 1);
    for (auto line : Latin(box.text).split(QLatin1Char('\n'))) {
      line = line.replace(Latin(kDetail), QString::fromUtf8("…")).trimmed();
      EXPECT_TRUE(entry.contains(QStringLiteral("\n> ") + line))
          << box.topic << " lacks " << line.toStdString();
    }
    EXPECT_TRUE(entry.contains(Latin(box.title))) << box.topic;
    EXPECT_TRUE(entry.contains(QStringLiteral("**Cause.** ")) && entry.contains(QStringLiteral("**Cure.** ")))
        << box.topic;
  }
}

TEST(HelpPagesTest, NameEveryTabAndEveryControl) {
  const Application app;
  const HelpPages pages(kEmbeddedHelp);
  QString tabs = pages.Text(QStringLiteral("register_options.md"));
  const auto& captions = app.frmMain.SSTab1.captions;
  for (int tab = 0; tab < static_cast<int>(captions.size()); ++tab) {
    const auto page = HelpPageOfTab(tab);
    const auto text = pages.Text(page);
    EXPECT_TRUE(Exists(page) && text.startsWith(QStringLiteral("# ") +
                                                Latin(captions[static_cast<std::size_t>(tab)]).trimmed()))
        << tab;
    tabs += text;
  }
  for (const auto& control : app.registry.All()) {
    if (!IsField(control.control)) continue;
    const bool of_main = control.form == &app.frmMain.form;
    const auto text = of_main ? tabs : pages.Text(HelpPageOfWindow(Latin(control.form->name)));
    EXPECT_TRUE(Names(text, control.name)) << control.form->name << "." << control.name;
  }
}

TEST(HelpPagesTest, HaveARowForEveryFieldWithItsPlaceAndEditor) {
  const auto page = HelpPages(kEmbeddedHelp).Text(QStringLiteral("fields.md"));
  for (const auto& field : FieldTable()) {
    const QRegularExpression row(QStringLiteral("\n\\| `%1` \\| .+ \\| [^|]+ \\|\n").arg(Latin(field.name)));
    EXPECT_TRUE(row.match(page).hasMatch()) << field.name;
  }
  // Early and late V1400, and V1324 without an address.
  EXPECT_TRUE(page.contains(
      QStringLiteral("| `DSPLINES_BAK` | 1 | 7 | 7 | 9 | 9 | 7 | 9 | 7 | | TEXT SETUP: DISPLAY LINE |")));
  EXPECT_TRUE(
      page.contains(QStringLiteral("| `DECIMAL_POINT_BAK` | 1 | 85 | 85 | 87 | 87 | 69 | 71 | 65 |")));
}

TEST(HelpPagesTest, LeadNowhereThatIsNot) {
  const HelpPages pages(kEmbeddedHelp);
  static const QRegularExpression link(QStringLiteral("[^!]\\[[^\\]]+\\]\\(([^)#]+)(#([^)]+))?\\)"));
  QStringList listed;
  for (const auto& entry : pages.Contents()) {
    if (entry.file.isEmpty()) continue;
    listed.append(entry.file);
    const auto text = pages.Text(entry.file);
    for (auto links = link.globalMatch(text); links.hasNext();) {
      const auto to = links.next();
      bool found = Exists(to.captured(1));
      if (found && !to.captured(3).isEmpty()) {
        const auto lines = pages.Text(to.captured(1)).split(QLatin1Char('\n'));
        found = std::any_of(lines.begin(), lines.end(), [&](const QString& line) {
          return line.startsWith(QLatin1Char('#')) && AnchorOf(line) == to.captured(3);
        });
      }
      EXPECT_TRUE(found) << entry.file.toStdString() << " leads to " << to.captured(0).toStdString();
    }
  }
  for (const auto& file : QDir(kEmbeddedHelp).entryList()) {
    EXPECT_TRUE(listed.contains(file) || file == QLatin1String("contents.md"))
        << file.toStdString() << " is not listed";
  }
}

// A program that stands, with its windows.
class HelpWindowTest : public ::testing::Test {
 protected:
  HelpWindowTest() : program_(QString::fromStdString(folder_.Path().string()), QString()) {
    WriteDefaultImages(folder_.Path().string(), {"V1400", "R12"});
    program_.Model().platform.read_setting = [](std::string_view, std::string_view value) {
      return std::optional<SettingValue>(std::string(value == "Version" ? "V1400" : "R12"));
    };
  }

  void SetUp() override { ASSERT_EQ(program_.Start(), Outcome::kDone); }

  MainWindow& Main() { return program_.OnScreen().Main(); }
  HelpDesk& Help() { return program_.OnScreen().Help(); }

  static void Press(QWidget& widget, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
  }

  QString Shown() const { return help()->findChild<QTextBrowser*>()->source().fileName(); }
  HelpWindow* help() const { return program_.OnScreen().Help().Window(); }

  TemporaryFolder folder_;
  mutable Program program_;
};

TEST_F(HelpWindowTest, HasAPageForEveryWindow) {
  for (const auto* window : Main().findChildren<QDialog*>()) {
    EXPECT_TRUE(Exists(HelpPageOfWindow(window->objectName()))) << window->objectName().toStdString();
  }
}

TEST_F(HelpWindowTest, OpensWhatIsInFrontSearchesAndGoesBack) {
  Main().Tabs().setCurrentIndex(4);
  Press(*Main().Tabs().currentWidget(), Qt::Key_F1);
  ASSERT_NE(help(), nullptr);
  EXPECT_EQ(Shown(), "exception_report.md");

  auto& search = *help()->findChild<QLineEdit*>();
  auto& list = *help()->findChild<QListWidget*>();
  search.setText(QStringLiteral("ovl-setup parity"));
  ASSERT_EQ(list.count(), 1);
  EXPECT_TRUE(list.item(0)->text().startsWith(QStringLiteral("No page")));
  search.setText(QStringLiteral("wipes three"));
  ASSERT_GE(list.count(), 1);
  emit search.returnPressed();
  EXPECT_EQ(Shown(), "text_setup.md");
  help()->findChild<QTextBrowser*>()->backward();
  EXPECT_EQ(Shown(), "exception_report.md");
  Press(*help(), Qt::Key_Escape);
  EXPECT_TRUE(search.text().isEmpty() && help()->isVisible());
  Press(*help(), Qt::Key_Escape);
  EXPECT_TRUE(help() == nullptr || !help()->isVisible());
}

TEST_F(HelpWindowTest, OpensTheWordsOfABoxInAWindowOfItsOwn) {
  Press(Main(), Qt::Key_F1);
  QString shown;
  bool reachable = false;
  QTimer::singleShot(0, &Main(), [&] {
    auto* box = QApplication::activeModalWidget();
    Press(*box, Qt::Key_F1);
    shown = help()->findChild<QTextBrowser*>()->source().toString();
    reachable = help()->parentWidget() == box;
    box->close();
  });
  ShowBox(&Main(), BoxOf(Box::kTimeOut, {}));
  EXPECT_EQ(shown, "help:/messages.md#connection-time-out");
  EXPECT_TRUE(reachable);
  EXPECT_EQ(help(), nullptr);
}

TEST_F(HelpWindowTest, SaysSoWhenPagesAreMissing) {
  const HelpPages none(QString::fromStdString(folder_.File("nowhere")));
  EXPECT_TRUE(none.Contents().empty());
  EXPECT_TRUE(
      none.Text(QStringLiteral("remote.md")).contains(QStringLiteral("nowhere/remote.md cannot be read: ")));
  HelpWindow window(none, nullptr);
  window.Open(QStringLiteral("remote.md"));
  EXPECT_TRUE(window.findChild<QTextBrowser*>()->toPlainText().contains(QStringLiteral("nowhere")));
  EXPECT_TRUE(window.findChild<QListWidget*>()->item(0)->text().contains(QStringLiteral("nowhere")));
  const auto guide = QString::fromStdString(folder_.File("guide.pdf"));
  EXPECT_FALSE(WriteGuide(none, {}, guide).isEmpty());
  EXPECT_TRUE(WriteGuide(HelpPages(kEmbeddedHelp), {}, guide).isEmpty());
  const auto without_pictures = QFileInfo(guide).size();
  QImage picture(200, 100, QImage::Format_RGB32);
  picture.fill(Qt::red);
  const auto pictures = QString::fromStdString(folder_.Path().string());
  for (const char* name : {"tab2_alarm_outputs.png", "micros_idn.png"}) {
    ASSERT_TRUE(picture.save(pictures + QLatin1Char('/') + QLatin1String(name)));
  }
  EXPECT_TRUE(WriteGuide(HelpPages(kEmbeddedHelp), pictures, guide).isEmpty());
  EXPECT_GT(QFileInfo(guide).size(), without_pictures);
  EXPECT_TRUE(
      WriteGuide(HelpPages(kEmbeddedHelp), {}, guide + QStringLiteral("/no/guide.pdf")).contains(guide));
}

// The desktop, as far as it opens files.
class Desktop : public QObject {
  Q_OBJECT
 public:
  Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
  ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  QStringList opened;

 public slots:
  void Open(const QUrl& url) { opened.append(url.fileName()); }
};

TEST_F(HelpWindowTest, ListsAndOpensTheManuals) {
  Desktop desktop;
  const auto folder = ManualFolder(QString::fromStdString(folder_.Path().string()));
  EXPECT_TRUE(
      OpenManual(folder, {}).contains(folder + QStringLiteral(" cannot be opened: it does not exist")));
  EXPECT_TRUE(desktop.opened.isEmpty());
  QDir().mkpath(folder);
  for (const char* name : {"/b.pdf", "/A.PDF", "/notes.txt"}) {
    QFile file(folder + QLatin1String(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  EXPECT_EQ(ListManuals(folder), QStringList({"A.PDF", "b.pdf"}));
  auto& menu = *Main().HelpMenu().findChild<QMenu*>(QStringLiteral("menuManual"));
  emit menu.aboutToShow();
  ASSERT_EQ(menu.actions().size(), 4);
  menu.actions().at(1)->trigger();
  menu.actions().at(3)->trigger();
  EXPECT_EQ(desktop.opened, QStringList({"b.pdf", "Manual"}));
}

}  // namespace
}  // namespace ovl::testing

#include "help_test.moc"
