#pragma once

#include "screens/ScreenParts.h"

#include <string>
#include <vector>

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// Which currency the figures are shown in, and how old the rates are.
class DisplaySettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QStringList currencies READ currencies NOTIFY currenciesChanged)
    Q_PROPERTY(int chosenCurrency READ chosenCurrency NOTIFY currenciesChanged)
    Q_PROPERTY(QString ratesAge READ ratesAge NOTIFY ratesAgeChanged)
    Q_PROPERTY(QString caption READ caption CONSTANT)

  public:
    explicit DisplaySettings(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] QStringList currencies() const;
    [[nodiscard]] int chosenCurrency() const;
    /// `place` is that of one of `currencies`; others change nothing.
    Q_INVOKABLE void chooseCurrency(int place);
    [[nodiscard]] QString ratesAge() const;
    Q_INVOKABLE void refreshRates();
    [[nodiscard]] QString caption() const;

    /// Brings everything up to date, also how much time has passed.
    void refresh();

  Q_SIGNALS:
    void currenciesChanged();
    void ratesAgeChanged();

  private:
    ScreenParts parts_;
    std::vector<std::string> codes_;
};

}  // namespace vantrell
