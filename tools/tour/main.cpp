#include "gallery.h"
#include "tour.h"

#include "base/error.h"
#include "platform/settings/settings.h"
#include "sample/sampledata.h"
#include "session/identity.h"
#include "session/modRegistry.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPalette>
#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int sampleUsers = 200;
constexpr int usageStatus = 2;

/// The scale of a process is fixed at its start, so each variant is a process of its own.
struct Variant
{
    QLatin1StringView name;
    QLatin1StringView suffix;
    bool dark;
    const char *scale;
};

// Without it the offscreen screen has 800 x 600 pixels, a quarter of that at 200 %.
constexpr auto screenDescription =
    R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 2560, "height": 1600}]})";

constexpr Variant variants[] = {
    {"light"_L1, ""_L1, false, "1"},
    {"dark"_L1, "-dark"_L1, true, "1"},
    {"large"_L1, "-200"_L1, false, "2"},
};

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2d, 0x30), QColor(0x23, 0x25, 0x28));
    palette.setColor(QPalette::Base, QColor(0x1c, 0x1e, 0x21));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2c));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xa8, 0xf5));
    return palette;
}

int complain(const QString &text)
{
    std::fputs(qPrintable("kelvane-tour: "_L1 % text % u'\n'), stderr);
    return EXIT_FAILURE;
}

int walk(const Variant &variant, const QString &folder)
{
    try {
        Gallery gallery(folder, variant.suffix);
        const QTemporaryDir home;
        if (!home.isValid())
            return complain("No temporary folder can be made: "_L1 % home.errorString());
        // A path without the temporary folder looks the same in every walk.
        const QString store = u"sample.mdb"_s;
        QDir::setCurrent(home.path());
        createSampleStore(store, sampleUsers);
        settings::setFolder(home.path());
        modRegistry::saveDataBase(store);

        if (variant.dark)
            QApplication::setPalette(darkPalette());
        walkWindows(gallery);
        std::printf("%s: %d pictures\n", variant.name.data(), gallery.count());
        return EXIT_SUCCESS;
    } catch (const Error &error) {
        return complain(error.description());
    }
}

int walkAll(const QString &folder)
{
    for (const Variant &variant : variants) {
        const int status =
            QProcess::execute(QCoreApplication::applicationFilePath(), {folder, QString(variant.name)});
        if (status == EXIT_SUCCESS)
            continue;
        return status == EXIT_FAILURE ? status : complain("The walk "_L1 % variant.name % " broke off."_L1);
    }
    return EXIT_SUCCESS;
}

struct Request
{
    QString folder;
    const Variant *variant = nullptr; ///< all of them when null
};

/// Nothing when the program ends instead, with that status.
std::optional<Request> requestOf(const QStringList &arguments, int &status)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Opens every window of Kelvane on sample data and saves a picture of each."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Shows this help."_s);
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(u"OUTDIR"_s, u"the folder for the pictures"_s);
    parser.addPositionalArgument(u"VARIANT"_s, u"only light, dark or large (at 200 %)"_s, u"[VARIANT]"_s);

    const auto refuse = [&status](const QString &reason) {
        complain(reason % "\nSee kelvane-tour --help."_L1);
        status = usageStatus;
        return std::nullopt;
    };
    status = EXIT_SUCCESS;
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(help) || parser.isSet(version)) {
        std::fputs(qPrintable(parser.isSet(help) ? parser.helpText()
                                                 : QString("kelvane-tour "_L1 % fullVersion() % u'\n')),
                   stdout);
        return std::nullopt;
    }
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty() || words.size() > 2 || words[0].isEmpty())
        return refuse(u"it takes a folder for the pictures"_s);
    if (words.size() == 1)
        return Request{words[0]};
    const auto *variant = std::ranges::find(variants, words[1], &Variant::name);
    if (variant == std::end(variants))
        return refuse("there is no variant '"_L1 % words[1] % u'\'');
    return Request{words[0], variant};
}

} // namespace

int main(int argc, char **argv)
{
    std::optional<Request> request;
    {
        // The application of the windows is made when their scale is known.
        const QCoreApplication application(argc, argv);
        int status = EXIT_SUCCESS;
        request = requestOf(QCoreApplication::arguments(), status);
        if (!request)
            return status;
    }
    QTemporaryFile screen;
    if (!screen.open() || screen.write(screenDescription) < 0 || !screen.flush())
        return complain("No temporary file can be written: "_L1 % screen.errorString());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", request->variant ? request->variant->scale : "1");
    const QApplication application(argc, argv);
    QApplication::setApplicationName(programTitle());
    QApplication::setQuitOnLastWindowClosed(false);
    const QString folder = QDir(request->folder).absolutePath();
    return request->variant ? walk(*request->variant, folder) : walkAll(folder);
}
