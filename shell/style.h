// The looks of the program: the colours and the style sheet of a standard and of a dark one. The
// program runs on the standard look and applies neither sheet; only FusionStyleTweaks asks which
// look is in use.
#pragma once

#include <QColor>
#include <QString>

#include <memory>

class Style
{
public:
    virtual ~Style() = default;
    Style(const Style &) = delete;
    Style &operator=(const Style &) = delete;

    // For QApplication::setStyleSheet.
    virtual QString styleSheet() = 0;
    QColor backgroundColor() const { return background; }

    // The looks live until the process ends.
    static Style *current() { return current_; }
    static Style *standard() { return standard_.get(); }
    static Style *dark() { return dark_.get(); }

    // What is drawn from now on takes the look; windows that are there want an update().
    static void useStandard() { current_ = standard(); }
    static void useDark() { current_ = dark(); }

protected:
    Style(const QColor &background_, const QColor &text_, const QColor &faintText_,
          const QColor &line_, const QColor &paper_, const QColor &selection_, const QColor &link_,
          const QColor &error_, const QColor &accent_, const QColor &warning_);

    QColor background;
    QColor text;
    QColor faintText;
    QColor line;
    QColor paper; // the opposite of the lines on it
    QColor selection;
    QColor link;
    QColor error;
    QColor accent;
    QColor warning;

private:
    static std::unique_ptr<Style> standard_;
    static std::unique_ptr<Style> dark_;
    static Style *current_;
};

class StyleStandard : public Style
{
public:
    StyleStandard();
    QString styleSheet() override;
};

class StyleDark : public Style
{
public:
    StyleDark();
    // The standard sheet with rules of its own behind it, which win.
    QString styleSheet() override;
};
