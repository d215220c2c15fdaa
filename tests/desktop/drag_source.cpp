// A little window from which files can be dragged, as from a file manager: the files named on the
// command line leave with the mouse.
#include <QApplication>
#include <QDrag>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

namespace {

class DragSource : public QWidget
{
public:
    void mousePressEvent(QMouseEvent *) override
    {
        QList<QUrl> urls;
        const QStringList files = QCoreApplication::arguments().mid(1);
        for (const QString &file : files)
            urls.append(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
        auto *dragged = new QMimeData;
        dragged->setUrls(urls);
        auto *drag = new QDrag(this); // Qt deletes it
        drag->setMimeData(dragged);
        drag->exec(Qt::CopyAction);
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    DragSource source;
    source.setWindowTitle(QStringLiteral("drag source"));
    source.setGeometry(700, 200, 120, 120);
    source.show();
    return QApplication::exec();
}
