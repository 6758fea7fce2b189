// The state of the link as a drawing: computer, line, unit. Form and words tell it; colour only adds to them.
#pragma once

#include <QWidget>

class QLabel;

namespace ovl::core {
struct Application;
}

namespace ovl::ui {

enum class LinkPicture { kClosed, kOpen, kAsked, kAccess, kUploading, kDownloading, kScanning };

LinkPicture LinkPictureOf(const core::Application& app);
QString WordOf(LinkPicture picture);

class LinkDrawing : public QWidget {
 public:
  // The label tells whether there is access; it is placed over the line and owned by the drawing.
  LinkDrawing(const core::Application& app, QLabel& access);

  // Takes over what the model shows; repaints only when it changed.
  void Refresh();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class Hint { kNone, kToComputer, kToUnit };
  struct Shown {
    LinkPicture picture = LinkPicture::kClosed;
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
