// Runs a fuzz target once on every file of the folders (or on the files)
// given: the committed corpus, seeds and past crashes, as a regression test.
// Without the fuzzer's main this is the target's main.
#include <QDir>
#include <QFile>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv)
{
    QStringList inputs;
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        if (!QFileInfo(arg).isDir())
            inputs << arg;
        for (const QFileInfo& f : QFileInfo(arg).isDir() ? QDir(arg).entryInfoList(QDir::Files | QDir::Hidden) : QFileInfoList())
            inputs << f.filePath();
    }
    inputs.sort();
    if (inputs.isEmpty()) {
        fprintf(stderr, "no inputs to replay\n");
        return 2;
    }
    for (const QString& path : std::as_const(inputs)) {
        QFile in(path);
        if (!in.open(QIODevice::ReadOnly)) {
            fprintf(stderr, "cannot read %s\n", qPrintable(path));
            return 2;
        }
        const QByteArray bytes = in.readAll();
        fprintf(stderr, "replaying %s\n", qPrintable(path));
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
    }
    fprintf(stderr, "%lld inputs replayed\n", qlonglong(inputs.size()));
    return 0;
}
