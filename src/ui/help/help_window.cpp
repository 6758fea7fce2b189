#include "ui/help/help_window.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QVBoxLayout>

#include "ui/help/help_style.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kStartWidth(80);
constexpr Em kStartHeight(53.33);
constexpr Em kSideWidth(22.5);
constexpr Em kAboveGroup(1.17);
constexpr int kBetweenEntries = 1;
constexpr int kFileRole = Qt::UserRole;
constexpr int kLineRole = Qt::UserRole + 1;
const QString kStartPage = QStringLiteral("first_steps.md");

QUrl AddressOf(const QString& page) {
  return QUrl(QStringLiteral("help:/") + page);
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpPages& pages, QWidget* parent) : QTextBrowser(parent), pages_(pages) {
  setObjectName(QStringLiteral("HelpPage"));
  setAccessibleName(QCoreApplication::translate("HelpWindow", "Help page"));
  setFrameShape(QFrame::NoFrame);
  document()->setDocumentMargin(kMargin);
  setWordWrapMode(QTextOption::WordWrap);
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& source) { OnSourceChanged(source); });
}

// A page with a long table is read and styled in many steps. It is laid out once, when its source has
// changed, and not after each of them.
QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::MarkdownResource) {
    document()->setLayoutEnabled(false);
    return pages_.Text(name.fileName());
  }
  return QTextBrowser::loadResource(
      type, QUrl::fromLocalFile(pages_.Folder() + QLatin1Char('/') + name.fileName()));
}

void HelpBrowser::OnSourceChanged(const QUrl& source) {
  StyleHelp(*document(), HairlineColor(palette()));
  document()->setLayoutEnabled(true);
  document()->markContentsDirty(0, document()->characterCount());
  if (source.hasFragment()) ScrollTo(source.fragment());
}

void HelpBrowser::ScrollTo(const QString& anchor) {
  for (auto block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || AnchorOf(block.text()) != anchor) continue;
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    setTextCursor(cursor);
    cursor.setPosition(block.position());
    setTextCursor(cursor);
    return;
  }
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
    reload();
  }
}

HelpWindow::HelpWindow(const HelpPages& pages, QWidget* parent) : QDialog(parent), pages_(pages) {
  setObjectName(QStringLiteral("Help"));
  setWindowTitle(QStringLiteral("Help"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  resize(QSize(kStartWidth, kStartHeight).boundedTo(screen()->availableSize()));
  StayOnScreen(*this);
  auto* across = LayOutAcross(*this);
  auto* halves = new QSplitter;
  halves->addWidget(BuildSide());
  halves->addWidget(BuildPage());
  halves->setStretchFactor(1, 1);
  halves->setSizes({kSideWidth, kStartWidth - kSideWidth});
  halves->setChildrenCollapsible(false);
  across->addWidget(halves);
  connect(browser_, &QTextBrowser::sourceChanged, this, [this](const QUrl& source) {
    shown_ = source.fileName();
    MarkEntry();
  });
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, search_, [this] {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
  });
  ListContents();
}

QWidget* HelpWindow::BuildSide() {
  auto* side = new QWidget;
  auto* down = new QVBoxLayout(side);
  down->setContentsMargins(kMargin, kMargin, 0, kMargin);
  down->setSpacing(kRowGap);
  search_ = new QLineEdit;
  search_->setObjectName(QStringLiteral("HelpSearch"));
  search_->setAccessibleName(QCoreApplication::translate("HelpWindow", "Search all pages"));
  search_->setPlaceholderText(QCoreApplication::translate("HelpWindow", "Search all pages (Ctrl+F)"));
  search_->setClearButtonEnabled(true);
  list_ = new QListWidget;
  list_->setObjectName(QStringLiteral("HelpList"));
  list_->setAccessibleName(QCoreApplication::translate("HelpWindow", "Contents"));
  list_->setWordWrap(true);
  list_->setSpacing(kBetweenEntries);
  down->addWidget(search_);
  down->addWidget(list_, 1);
  connect(search_, &QLineEdit::textChanged, this,
          [this](const QString& words) { words.trimmed().isEmpty() ? ListContents() : ListHits(); });
  connect(search_, &QLineEdit::returnPressed, this, [this] { OpenEntry(list_->item(0)); });
  connect(list_, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* entry) { OpenEntry(entry); });
  connect(list_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* entry) { OpenEntry(entry); });
  return side;
}

QWidget* HelpWindow::BuildPage() {
  auto* holder = new QWidget;
  auto* down = new QVBoxLayout(holder);
  down->setContentsMargins(0, kMargin, 0, 0);
  down->setSpacing(kRowGap);
  browser_ = new HelpBrowser(pages_, this);
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(kMargin, 0, kMargin, 0);
  buttons->setSpacing(kFieldGap);
  const auto add = [&](const QString& text, const QString& keys, auto available, auto go) {
    auto* button = new QPushButton(text);
    button->setToolTip(keys);
    button->setEnabled(false);
    button->setAutoDefault(false);
    connect(browser_, available, button, &QWidget::setEnabled);
    connect(button, &QPushButton::clicked, browser_, go);
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, browser_, go);
    buttons->addWidget(button);
  };
  add(QCoreApplication::translate("HelpWindow", "Back"), QStringLiteral("Alt+Left"),
      &QTextBrowser::backwardAvailable, &QTextBrowser::backward);
  add(QCoreApplication::translate("HelpWindow", "Forward"), QStringLiteral("Alt+Right"),
      &QTextBrowser::forwardAvailable, &QTextBrowser::forward);
  buttons->addStretch(1);
  down->addLayout(buttons);
  down->addWidget(browser_, 1);
  return holder;
}

void HelpWindow::Open(const QString& page) {
  search_->clear();
  browser_->setSource(AddressOf(page.isEmpty() ? kStartPage : page), QTextDocument::MarkdownResource);
  browser_->setFocus();
}

void HelpWindow::ListContents() {
  list_->clear();
  for (const auto& entry : pages_.Contents()) {
    auto* item = new QListWidgetItem(entry.title, list_);
    item->setData(kFileRole, entry.file);
    if (!entry.file.isEmpty()) continue;
    item->setFlags(Qt::ItemIsEnabled);
    auto font = list_->font();
    font.setWeight(QFont::DemiBold);
    item->setFont(font);
    item->setSizeHint({0, fontMetrics().height() + kAboveGroup});
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
  }
  if (pages_.Contents().empty()) {
    auto* item = new QListWidgetItem(
        QCoreApplication::translate("HelpWindow",
                                    "There are no help pages in %1. The program works without them.")
            .arg(pages_.Folder()),
        list_);
    item->setFlags(Qt::NoItemFlags);
  }
  MarkEntry();
}

void HelpWindow::ListHits() {
  list_->clear();
  for (const auto& hit : pages_.Search(search_->text())) {
    auto* item = new QListWidgetItem(hit.title + QLatin1Char('\n') + hit.line, list_);
    item->setData(kFileRole, hit.file);
    item->setData(kLineRole, hit.line);
  }
  if (list_->count() == 0) {
    new QListWidgetItem(QCoreApplication::translate("HelpWindow", "No page has all of these words."), list_);
    list_->item(0)->setFlags(Qt::NoItemFlags);
  }
}

void HelpWindow::OpenEntry(const QListWidgetItem* entry) {
  const auto file = entry == nullptr ? QString() : entry->data(kFileRole).toString();
  if (file.isEmpty()) return;
  const auto line = entry->data(kLineRole).toString();
  browser_->setSource(AddressOf(file), QTextDocument::MarkdownResource);
  if (line.isEmpty()) return;
  browser_->moveCursor(QTextCursor::Start);
  // A row of a table is several cells in the document, so the search uses the first cell.
  browser_->find(line.section(QStringLiteral(" · "), 0, 0));
}

void HelpWindow::MarkEntry() {
  if (!search_->text().trimmed().isEmpty()) return;
  for (int row = 0; row < list_->count(); ++row) {
    const auto file = list_->item(row)->data(kFileRole).toString();
    if (!file.isEmpty() && file == shown_) list_->setCurrentRow(row);
  }
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !search_->text().isEmpty()) {
    search_->clear();
  } else if (event->key() == Qt::Key_Down && search_->hasFocus()) {
    list_->setFocus(Qt::TabFocusReason);
    if (list_->currentRow() < 0) list_->setCurrentRow(0);
  } else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QDialog::keyPressEvent(event);
  }
}

}  // namespace ovl::ui
