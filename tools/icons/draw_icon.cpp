// Draws an SVG as PNG in the sizes that the outputs' folders name:
//   draw_icon ICON.svg FOLDER/48x48/apps/ICON.png...
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <cstdio>

namespace {

int fail(const QString &what, const QString &file)
{
    std::fprintf(stderr, "draw_icon: %s: %s\n", qPrintable(what), qPrintable(file));
    return 1;
}

// The number in ".../48x48/..."; 0 if there is none.
int sizeOf(const QString &path)
{
    static const QRegularExpression folder(QStringLiteral("/([0-9]+)x\\1/"));
    return folder.match(path).captured(1).toInt();
}

bool draw(QSvgRenderer &icon, int size, const QString &path)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    return QDir().mkpath(QFileInfo(path).path()) && image.save(path);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return fail(QStringLiteral("a picture and where to draw it are wanted"), {});
    const QString source = QFile::decodeName(argv[1]);
    QSvgRenderer icon(source);
    if (!icon.isValid())
        return fail(QStringLiteral("can't be read"), source);
    for (int i = 2; i < argc; ++i) {
        const QString path = QFile::decodeName(argv[i]);
        const int size = sizeOf(path);
        if (size == 0)
            return fail(QStringLiteral("names no size"), path);
        if (!draw(icon, size, path))
            return fail(QStringLiteral("can't be written"), path);
    }
    return 0;
}
