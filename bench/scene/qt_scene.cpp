// The scene as items of Qt Quick, drawn by its software adaptation without a display:
// `qt_scene part|full [PICTURE.png]`. That adaptation has no blur.

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <cstdio>
#include <memory>

#include "bench/scene/picture.h"
#include "bench/scene/scene_run.h"

namespace {

using bench::SceneKind;
using bench::ScenePicture;

QImage image_of(const ScenePicture& picture, QImage::Format format) {
  const auto* bytes = reinterpret_cast<const uchar*>(picture.pixels.data());
  return QImage(bytes, picture.width, picture.height, format).copy();
}

/// "background", "artwork" and the numbers of icons.
class Pictures : public QQuickImageProvider {
 public:
  Pictures() : QQuickImageProvider(Image) {}

  QImage requestImage(const QString& name, QSize* size, const QSize&) override {
    const QImage image = named(name);
    if (size) *size = image.size();
    return image;
  }

 private:
  static QImage named(const QString& name) {
    using bench::photograph;
    constexpr QImage::Format kOpaque = QImage::Format_RGB32;
    if (name == "background")
      return image_of(
          blurred(photograph(bench::kSceneWidth, bench::kBackgroundHeight, 0), bench::kBlurRadius),
          kOpaque);
    if (name == "artwork")
      return image_of(photograph(bench::kArtworkSide, bench::kArtworkSide, 2), kOpaque);
    return image_of(bench::icon_picture(name.toInt()), QImage::Format_ARGB32_Premultiplied);
  }
};

QString text_item(const QString& text, int size, int left, int top) {
  return QString(R"(Text { x: %1; y: %2; text: "%3"; color: "white")"
                 R"(; font.family: "Inter"; font.pixelSize: %4 })")
             .arg(left)
             .arg(top)
             .arg(text)
             .arg(size) +
         "\n";
}

QString picture_item(const QString& name, const QString& left, const QString& top) {
  return QString(R"(Image { source: "image://scene/%1"; x: %2; y: %3 })").arg(name, left, top) +
         "\n";
}

QByteArray program_text() {
  QString text =
      "import QtQuick\nItem { id: scene; property real artworkTop: 0; property real shift: 0\n";
  text += picture_item("background", "0", "-scene.shift");
  for (int i = 0; i < bench::kIconCount; ++i) {
    const int left = bench::icon_left(i);
    const int top = bench::icon_top(i);
    text += picture_item(QString::number(i), QString::number(left), QString::number(top));
    text += text_item(QString("Icon %1").arg(i), bench::kLabelSize, left + bench::kLabelIndent,
                      top + bench::kLabelDrop);
  }
  text += picture_item("artwork", QString::number(bench::kArtworkLeft), "scene.artworkTop");
  text += text_item(bench::kTitle, bench::kTitleSize, bench::kTitleLeft, bench::kTitleTop);
  return (text + "}").toUtf8();
}

/// Everything that draws one item into one image.
class Stage {
 public:
  Stage() : window_(&control_) {
    engine_.addImageProvider("scene", new Pictures);
    QQmlComponent component(&engine_);
    component.setData(program_text(), QUrl());
    item_.reset(qobject_cast<QQuickItem*>(component.create()));
    if (!item_) qFatal("%s", qPrintable(component.errorString()));
    item_->setSize(image_.size());
    window_.setGeometry(0, 0, image_.width(), image_.height());
    window_.contentItem()->setSize(image_.size());
    item_->setParentItem(window_.contentItem());
    image_.fill(Qt::black);
    window_.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&image_));
  }

  void draw(SceneKind kind, int frame) {
    item_->setProperty("artworkTop", bench::artwork_top(frame));
    if (kind == SceneKind::kFull) item_->setProperty("shift", frame % 2);
    control_.polishItems();
    control_.beginFrame();
    control_.sync();
    control_.render();
    control_.endFrame();
  }
  const QImage& image() const { return image_; }

 private:
  QImage image_{bench::kSceneWidth, bench::kSceneHeight, QImage::Format_ARGB32_Premultiplied};
  QQmlEngine engine_;
  // Not initialised, which would look for a graphics card.
  QQuickRenderControl control_;
  QQuickWindow window_;
  std::unique_ptr<QQuickItem> item_;
};

}  // namespace

int main(int count, char** words) {
  const bench::SceneCommand command = bench::scene_command(count, words);
  if (!command.is_valid || command.kind == SceneKind::kBlur) {
    std::fprintf(stderr, "Usage: qt_scene part|full [PICTURE.png]\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  const QGuiApplication application(count, words);
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  Stage stage;
  bench::run_scene(
      "Qt", command.kind, [&](int frame) { stage.draw(command.kind, frame); },
      [] { QCoreApplication::processEvents(); });
  if (!command.picture.empty()) stage.image().save(QString::fromStdString(command.picture));
}
