// Renders the pictures of the resource tree from their vector sources, in both resolutions, and a
// contact sheet of each. Usage: render_pictures RESOURCES_FOLDER PICTURES_FOLDER SHEETS_FOLDER

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int jpegQuality = 95;
const char inkColour[] = "#1f2933";
const char accentColour[] = "#0b6bcb";

struct Picture {
    QString file;
    QString glyph;
    QString state;
    int size;
    int seen;  ///< so much of it, from the top left
};

[[noreturn]] void fail(const QString& text)
{
    fprintf(stderr, "render_pictures: %s\n", qUtf8Printable(text));
    std::exit(1);
}

std::vector<Picture> readTable(const QDir& resources)
{
    QFile file(resources.filePath(QStringLiteral("pictures.txt")));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        fail(file.fileName() + ": " + file.errorString());
    }
    std::vector<Picture> pictures;
    QTextStream lines(&file);
    while (!lines.atEnd()) {
        const QString line = lines.readLine();
        if (line.startsWith('#')) {
            continue;
        }
        const QStringList parts = line.split(QStringLiteral("; "));
        if (parts.size() != 5) {
            fail(file.fileName() + ": " + line);
        }
        pictures.push_back({parts[0], parts[1], parts[2], parts[3].toInt(), parts[4].toInt()});
    }
    return pictures;
}

/// The glyph's source; a disabled tool's has lost its colours.
QByteArray glyphOf(const QDir& resources, const Picture& picture)
{
    QFile file(resources.filePath("source/" + picture.glyph + ".svg"));
    if (!file.open(QIODevice::ReadOnly)) {
        fail(file.fileName() + ": " + file.errorString());
    }
    QByteArray svg = file.readAll();
    if (picture.state == QLatin1String("disabled")) {
        svg.replace(inkColour, "#b3b8bf").replace(accentColour, "#b3b8bf");
    }
    return svg;
}

/// A checked tool is told by its frame and bar, not by its colour alone.
void paintGround(QPainter& painter, const Picture& picture)
{
    const QRectF all(0, 0, picture.size, picture.size);
    const QRectF seen(0, 0, picture.seen, picture.seen);
    const QColor blue(0x0b, 0x6b, 0xcb);
    if (picture.state == QLatin1String("checked")) {
        painter.fillRect(all, QColor(0xd6, 0xe8, 0xfb));
        painter.setPen(QPen(blue, 2));
        painter.drawRect(seen.adjusted(1, 1, -1, -1));
        painter.fillRect(QRectF(0, picture.seen - 4, picture.seen, 4), blue);
    } else if (picture.state == QLatin1String("icon")) {
        painter.fillRect(all, Qt::white);
    } else {
        const bool isDisabled = picture.state == QLatin1String("disabled");
        painter.fillRect(all, isDisabled ? QColor(0xec, 0xed, 0xef) : QColor(0xf7, 0xf8, 0xfa));
        painter.setPen(QPen(QColor(0xcf, 0xd4, 0xda), 1));
        painter.drawRect(seen.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

QImage render(const QDir& resources, const Picture& picture, int scale)
{
    QSvgRenderer glyph(glyphOf(resources, picture));
    if (!glyph.isValid()) {
        fail(picture.glyph + ": is no valid picture");
    }
    QImage image(picture.size * scale, picture.size * scale, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paintGround(painter, picture);
    // The frame of a tool takes its share of the room.
    const double margin = picture.state == QLatin1String("icon") ? 0 : 2;
    const double side = picture.seen - 2 * margin;
    glyph.render(&painter, QRectF(margin, margin, side, side));
    return image;
}

QString fileFor(const Picture& picture, int scale)
{
    QString file = picture.file;
    return scale == 1 ? file : file.insert(file.lastIndexOf('.'), QStringLiteral("@2x"));
}

QImage contactSheet(const std::vector<Picture>& pictures, const std::vector<QImage>& images,
                    int scale)
{
    constexpr int columns = 6;
    constexpr int width = 170;  // the longest name fits
    constexpr int height = 72;
    const int rows = (int(pictures.size()) + columns - 1) / columns;
    QImage sheet(columns * width * scale, rows * height * scale, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    sheet.setDevicePixelRatio(scale);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    for (size_t i = 0; i < images.size(); ++i) {
        const int x = int(i) % columns * width;
        const int y = int(i) / columns * height;
        QImage image = images[i];
        image.setDevicePixelRatio(scale);
        painter.drawImage(QPointF(x + (width - pictures[i].size) / 2.0, y + 8), image);
        painter.drawText(QRect(x + 2, y + 50, width - 4, 18), Qt::AlignCenter, pictures[i].file);
    }
    return sheet;
}

}  // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    if (argc != 4) {
        fail(QStringLiteral(
            "usage: render_pictures RESOURCES_FOLDER PICTURES_FOLDER SHEETS_FOLDER"));
    }
    const QDir resources(QString::fromLocal8Bit(argv[1]));
    const QDir rendered(QString::fromLocal8Bit(argv[2]));
    const QDir sheets(QString::fromLocal8Bit(argv[3]));
    const std::vector<Picture> pictures = readTable(resources);
    for (const int scale : {1, 2}) {
        std::vector<QImage> images;
        for (const Picture& picture : pictures) {
            images.push_back(render(resources, picture, scale));
            const QString file = rendered.filePath(fileFor(picture, scale));
            if (!images.back().save(file, nullptr, file.endsWith("jpg") ? jpegQuality : -1)) {
                fail(file + ": cannot be written");
            }
        }
        const QString sheet = sheets.filePath(QStringLiteral("pictures-%1x.png").arg(scale));
        if (!contactSheet(pictures, images, scale).save(sheet)) {
            fail(sheet + ": cannot be written");
        }
    }
    return 0;
}
