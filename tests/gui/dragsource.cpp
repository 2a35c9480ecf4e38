// A window titled "drag source" whose whole face is the files it was given: whoever drags from it drags them,
// to be copied or moved as the other side likes. Says "dropped: copy", "dropped: move" or "dropped: nothing".

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

#include <cstdio>
#include <memory>

namespace {

class DragSource final : public QLabel {
public:
    explicit DragSource(const QStringList &files) : QLabel(QStringLiteral("drag me")) {
        for (const QString &file : files) {
            _urls.append(QUrl::fromLocalFile(file));
        }
        setWindowTitle(QStringLiteral("drag source"));
        setGeometry(20, 40, 200, 100);
    }

protected:
    void mousePressEvent(QMouseEvent * /*event*/) override {} // taken, so that the moves come here

    void mouseMoveEvent(QMouseEvent * /*event*/) override {
        auto data = std::make_unique<QMimeData>();
        data->setUrls(_urls);
        auto *drag = std::make_unique<QDrag>(this).release(); // deletes itself
        drag->setMimeData(data.release());
        const Qt::DropAction done = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
        std::puts(done == Qt::CopyAction   ? "dropped: copy"
                  : done == Qt::MoveAction ? "dropped: move"
                                           : "dropped: nothing");
        std::fflush(stdout);
    }

private:
    QList<QUrl> _urls;
};

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    DragSource window(QCoreApplication::arguments().mid(1));
    window.show();
    return QCoreApplication::exec();
}
