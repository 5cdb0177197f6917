#include "platform/desktop/desktop.h"

#include <QFileInfo>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

Opener &opener()
{
    static Opener installed;
    return installed;
}

} // namespace

bool openDocument(const QString &pathOrAddress)
{
    const bool isAddress = pathOrAddress.contains("://"_L1);
    const QUrl url =
        isAddress ? QUrl(pathOrAddress) : QUrl::fromLocalFile(QFileInfo(pathOrAddress).absoluteFilePath());
    return opener() && opener()(url);
}

Opener installOpener(Opener replacement)
{
    return std::exchange(opener(), std::move(replacement));
}

} // namespace desktop
