#pragma once

#include "data/FinanceLine.h"
#include "data/LineTable.h"
#include "data/SalesLine.h"

namespace vantrell {

/// Sales lines: a batch is the lines of one sales report, by frequency and report date.
template <>
struct LineMapping<SalesLine> {
    using Figures = SalesFigures;
    static const LineSQL sql;
    static void write(LineWriter& writer, const SalesLine& line);
    static SalesLine read(const SqliteStatement& row);
    static SalesFigures readFigures(const SqliteStatement& row);
    static SalesFigures figures(const SalesLine& line) { return line.figures; }
    /// Known frequencies in their order, unknown ones last.
    static int groupRank(std::string_view frequencyRaw);
};

/// Finance lines: a batch is the lines of one finance report, by region and fiscal period.
template <>
struct LineMapping<FinanceLine> {
    using Figures = FinanceLine;
    static const LineSQL sql;
    static void write(LineWriter& writer, const FinanceLine& line);
    static FinanceLine read(const SqliteStatement& row);
    static FinanceLine readFigures(const SqliteStatement& row) { return read(row); }
    static FinanceLine figures(const FinanceLine& line) { return line; }
    static int groupRank(std::string_view) { return 0; }
};

}  // namespace vantrell
