// Renders the application icon at the hicolor theme's sizes: scale_icon SOURCE.png OUTPUT_DIR NAME SIZE...
// writes OUTPUT_DIR/SIZExSIZE/apps/NAME.png for each SIZE.
#include <QDir>
#include <QImage>
#include <QTextStream>

int main(int argc, char **argv)
{
    QTextStream err(stderr);
    if (argc < 5) {
        err << "usage: scale_icon SOURCE.png OUTPUT_DIR NAME SIZE...\n";
        return 2;
    }
    const QImage source(QString::fromLocal8Bit(argv[1]));
    if (source.isNull()) {
        err << "cannot read " << argv[1] << '\n';
        return 1;
    }
    const QString outputDir = QString::fromLocal8Bit(argv[2]);
    const QString name = QString::fromLocal8Bit(argv[3]);
    for (int i = 4; i < argc; ++i) {
        bool ok = false;
        const int size = QString::fromLocal8Bit(argv[i]).toInt(&ok);
        if (!ok || size <= 0 || size > source.width()) {
            err << "bad size " << argv[i] << '\n';
            return 2;
        }
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(outputDir).arg(size);
        const QImage scaled = source.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (!QDir().mkpath(folder) || !scaled.save(folder + u'/' + name + QStringLiteral(".png"))) {
            err << "cannot write " << folder << '\n';
            return 1;
        }
    }
    return 0;
}
