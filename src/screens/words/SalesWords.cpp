#include "screens/words/SalesWords.h"

#include "screens/components/ShownText.h"
#include "screens/words/UnitsCaption.h"

#include <algorithm>
#include <limits>

#include <QCoreApplication>

namespace vantrell {
namespace {

class SalesWords {
    Q_DECLARE_TR_FUNCTIONS(SalesWords)
};

QString ofApp(const ProductStat& product, const QString& form) {
    return product.appTitle ? shownText(*product.appTitle) + captionJoiner() + form : form;
}

}  // namespace

QString proceedsLabel() {
    return SalesWords::tr("Proceeds");
}

QString sourceLabel(const Locale& locale, const PeriodStat& period) {
    if (period.days > 0) {
        const QString days = fromUtf8(locale.count(period.days));
        if (period.source == PeriodSource::someDailyReports) {
            return SalesWords::tr("From daily reports · %1 of %2 days", nullptr, period.days)
                .arg(fromUtf8(locale.count(period.fetchedDays)), days);
        }
        return period.fetchedDays == period.days
                   ? SalesWords::tr("%1 days", nullptr, period.days).arg(days)
                   : SalesWords::tr("%1 of %2 days fetched", nullptr, period.days)
                         .arg(fromUtf8(locale.count(period.fetchedDays)), days);
    }
    switch (period.source) {
        case PeriodSource::dailyReports:
        case PeriodSource::someDailyReports:
            return SalesWords::tr("From daily reports");
        case PeriodSource::monthToDate:
            return SalesWords::tr("From daily reports · MTD");
        case PeriodSource::yearToDate:
            return SalesWords::tr("From daily reports · YTD");
        case PeriodSource::monthlyReport:
            return SalesWords::tr("Monthly report");
        case PeriodSource::disputedMonthlyReport:
            return SalesWords::tr("Monthly report · differs from its days");
        case PeriodSource::yearlyReport:
            return SalesWords::tr("Yearly report");
    }
    return {};
}

QString productLabel(const ProductStat& product) {
    switch (product.form) {
        case ProductForm::unknown:
            return {};
        case ProductForm::app:
            return SalesWords::tr("App");
        case ProductForm::inAppPurchase:
            return ofApp(product, SalesWords::tr("In-app purchase"));
        case ProductForm::subscription:
            return ofApp(product, SalesWords::tr("Subscription"));
    }
    return {};
}

QString lineLabel(ProductKind kind, bool isRefund) {
    switch (kind) {
        case ProductKind::app:
            return isRefund ? SalesWords::tr("App refund") : SalesWords::tr("App");
        case ProductKind::iap:
            return isRefund ? SalesWords::tr("In-app refund") : SalesWords::tr("In-app");
        case ProductKind::update:
            return SalesWords::tr("Update");
        case ProductKind::redownload:
            return SalesWords::tr("Redownload");
        case ProductKind::other:
            return SalesWords::tr("Other");
    }
    return {};
}

QString otherAppsLabel() {
    return SalesWords::tr("Other", "apps");
}

QString exportLabel(ExportKind kind) {
    switch (kind) {
        case ExportKind::days:
            return SalesWords::tr("Daily (last 365 days)");
        case ExportKind::months:
            return SalesWords::tr("Months");
        case ExportKind::years:
            return SalesWords::tr("Years");
        case ExportKind::payouts:
            return SalesWords::tr("Payouts");
        case ExportKind::products:
            return SalesWords::tr("Products");
    }
    return {};
}

int pluralNumber(std::int64_t count) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(count, Limits::min(), Limits::max()));
}

}  // namespace vantrell
