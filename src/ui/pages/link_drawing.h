// A drawing of the link: computer, line, unit. Shapes and texts show its state, so it can be read without
// colours.
#pragma once

#include <QWidget>

class QLabel;

namespace ovl::core {
struct Application;
}

namespace ovl::ui {

enum class LinkState { kClosed, kOpen, kAsked, kAccess, kUploading, kDownloading, kScanning, kLost };

LinkState LinkStateOf(const core::Application& app);
QString LinkStateText(LinkState state);
// An upload or a download; a scan is none.
bool IsTransfer(LinkState state);

class LinkDrawing : public QWidget {
 public:
  // The label says whether there is remote access. The drawing owns it and puts it above the line.
  LinkDrawing(const core::Application& app, QLabel& access);

  // Updates the drawing from the model; repaints only when something changed.
  void Refresh();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class Hint { kNone, kToComputer, kToUnit };
  struct Shown {
    LinkState state = LinkState::kClosed;
    Hint hint = Hint::kNone;
    QString port;
    bool operator==(const Shown&) const = default;
  };

  Shown FromModel() const;
  void DrawComputer(QPainter& painter) const;
  void DrawUnit(QPainter& painter) const;
  void DrawLine(QPainter& painter) const;
  void DrawMark(QPainter& painter) const;
  void DrawArrows(QPainter& painter, bool to_unit, bool filled) const;
  void DrawWords(QPainter& painter) const;

  const core::Application& app_;
  QLabel& access_;
  Shown shown_;
};

}  // namespace ovl::ui
