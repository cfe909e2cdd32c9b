#pragma once

#include <QObject>

namespace vantrell {

/// How the user wants windows to look. Light and in motion until something else is known.
class Appearance : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY reducesMotionChanged)

  public:
    [[nodiscard]] bool isDark() const { return isDark_; }
    /// Whether animations are unwanted.
    [[nodiscard]] bool reducesMotion() const { return reducesMotion_; }

  Q_SIGNALS:
    void isDarkChanged();
    void reducesMotionChanged();

  protected:
    Appearance() = default;
    void changeDark(bool isDark);
    void changeReducesMotion(bool reducesMotion);

  private:
    bool isDark_ = false;
    bool reducesMotion_ = false;
};

/// Looks as it is told to; for pictures and tests.
class FixedAppearance final : public Appearance {
  public:
    void setDark(bool isDark) { changeDark(isDark); }
    void setReducesMotion(bool reducesMotion) { changeReducesMotion(reducesMotion); }
};

}  // namespace vantrell
