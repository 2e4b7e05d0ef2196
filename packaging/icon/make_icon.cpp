// Draws the program's icon in every size that Windows asks for: make_icon vorlund.svg vorlund.ico.
//
// It reads the drawing itself, which keeps to filled paths of absolute M, L, C and Z, so that the build needs
// no library for SVG files. An .ico file is a directory of 6 bytes and 16 bytes a picture, then the pictures,
// each a whole PNG file here.
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QXmlStreamReader>
#include <cstdio>
#include <stdexcept>
#include <vector>

namespace {

constexpr int kSizes[] = {16, 20, 24, 32, 40, 48, 64, 128, 256};
constexpr qsizetype kDirectorySize = 6;
constexpr qsizetype kEntrySize = 16;
// The drawing is made this many times larger and scaled down, which keeps its edges clean at 16 pixels.
constexpr int kOversampling = 4;

struct FilledPath {
  QPainterPath path;
  QColor fill;
};

struct Drawing {
  double width = 0;
  std::vector<FilledPath> paths;
};

QPainterPath parse_path(const QString& data) {
  const QStringList words = data.split(' ', Qt::SkipEmptyParts);
  qsizetype next = 0;
  const auto point = [&] {
    if (next + 2 > words.size()) throw std::runtime_error("a path of the drawing ends inside a point");
    const QPointF read(words[next].toDouble(), words[next + 1].toDouble());
    next += 2;
    return read;
  };
  QPainterPath path;
  while (next < words.size()) {
    const QString command = words[next++];
    if (command == "M") {
      path.moveTo(point());
    } else if (command == "L") {
      path.lineTo(point());
    } else if (command == "C") {
      const QPointF first = point();
      const QPointF second = point();
      path.cubicTo(first, second, point());
    } else if (command == "Z") {
      path.closeSubpath();
    } else {
      throw std::runtime_error("the drawing holds the path command " + command.toStdString());
    }
  }
  return path;
}

Drawing read_drawing(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + name.toStdString());
  QXmlStreamReader xml(&file);
  Drawing drawing;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const QXmlStreamAttributes attributes = xml.attributes();
    if (xml.name() == QLatin1String("svg")) {
      drawing.width = attributes.value("width").toDouble();
    } else if (xml.name() == QLatin1String("path")) {
      drawing.paths.push_back(
          {parse_path(attributes.value("d").toString()), QColor(attributes.value("fill").toString())});
    } else {
      throw std::runtime_error("the drawing holds an element " + xml.name().toString().toStdString());
    }
  }
  if (xml.hasError()) throw std::runtime_error(xml.errorString().toStdString());
  if (drawing.width <= 0) throw std::runtime_error("the drawing has no width");
  return drawing;
}

QByteArray draw(const Drawing& drawing, int size) {
  QImage large(size * kOversampling, size * kOversampling, QImage::Format_ARGB32_Premultiplied);
  large.fill(Qt::transparent);
  QPainter painter(&large);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(large.width() / drawing.width, large.height() / drawing.width);
  for (const FilledPath& shape : drawing.paths) painter.fillPath(shape.path, shape.fill);
  painter.end();
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  large.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(&buffer, "PNG");
  return png;
}

void append_number(QByteArray& bytes, quint32 value, int size) {
  for (int byte = 0; byte < size; ++byte) bytes.append(static_cast<char>((value >> (8 * byte)) & 0xFF));
}

QByteArray icon_file(const Drawing& drawing) {
  QByteArray directory;
  QByteArray pictures;
  append_number(directory, 0, 2);
  append_number(directory, 1, 2);
  append_number(directory, static_cast<quint32>(std::size(kSizes)), 2);
  const qsizetype start = kDirectorySize + kEntrySize * static_cast<qsizetype>(std::size(kSizes));
  for (const int size : kSizes) {
    const QByteArray png = draw(drawing, size);
    // A width or height of 256 is written as 0.
    append_number(directory, static_cast<quint32>(size), 1);
    append_number(directory, static_cast<quint32>(size), 1);
    append_number(directory, 0, 2);
    append_number(directory, 1, 2);
    append_number(directory, 32, 2);
    append_number(directory, static_cast<quint32>(png.size()), 4);
    append_number(directory, static_cast<quint32>(start + pictures.size()), 4);
    pictures += png;
  }
  return directory + pictures;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: make_icon DRAWING.svg ICON.ico\n", stderr);
    return 2;
  }
  try {
    const QByteArray bytes = icon_file(read_drawing(QString::fromLocal8Bit(argv[1])));
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
      throw std::runtime_error(std::string("cannot write ") + argv[2]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_icon: %s\n", error.what());
    return 1;
  }
  return 0;
}
