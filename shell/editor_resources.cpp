#include "shell/editor_resources.h"

#include <QImageReader>
#include <QPixmap>

namespace {

constexpr int largestIcon = 128;

} // namespace

void initEditorResources()
{
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(conf);
}

QIcon applicationIcon()
{
    QIcon icon;
    QImageReader file(QStringLiteral(":/icons/cmped.ico"));
    for (int i = 0; i < file.imageCount() && file.jumpToImage(i); ++i) {
        if (file.size().width() <= largestIcon)
            icon.addPixmap(QPixmap::fromImage(file.read()));
    }
    return icon;
}
