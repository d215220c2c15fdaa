// Qt's Fusion style with indicators, header margins and a close icon of the program's own. Its
// pictures come from the built-in resources.
#pragma once

#include <QProxyStyle>

class FusionStyleTweaks : public QProxyStyle
{
    Q_OBJECT

public:
    FusionStyleTweaks();

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

    using QProxyStyle::polish;
    // The desktop's colours, with texts that can be read where they are disabled.
    void polish(QPalette &palette) override;
};
