#include "platform/settings/settings.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class StillStyle final : public QProxyStyle
{
public:
    StillStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0
                                                    : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

void setDefault(const char *name, const char *value)
{
    if (!qEnvironmentVariableIsSet(name))
        qputenv(name, value);
}

} // namespace

int main(int argc, char **argv)
{
    setDefault("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale::c());

    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle(new StillStyle);
    QApplication::setEffectEnabled(Qt::UI_General, false);
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);

    // No test reads or writes the settings of whoever runs it.
    const QTemporaryDir configuration;
    settings::setFolder(configuration.path());
    return RUN_ALL_TESTS();
}
