#include "lot_figure.h"

#include <cmath>

namespace quilmar::analysis {

int LotFigure::callCount() const
{
    int n = 0;
    for (const FigureRow &r : rows)
        n += r.moves() ? 1 : 0;
    return n;
}

std::vector<LotFigure> findLots(const std::vector<RowReading> &rows)
{
    const int count = int(rows.size());
    // The walk's pen before each row, in the plotter's manner: a "C" row returns
    // to the point of beginning, "N" to the origin, "O" sets the origin.
    std::vector<double> beforeN(count + 1), beforeE(count + 1), pobBeforeN(count + 1), pobBeforeE(count + 1);
    std::vector<int> beginBefore(count + 1, -1);
    double n = 0.0, e = 0.0, pobN = 0.0, pobE = 0.0, originN = 0.0, originE = 0.0;
    int begin = -1;
    for (int i = 0; i < count; ++i) {
        beforeN[i] = n;
        beforeE[i] = e;
        pobBeforeN[i] = pobN;
        pobBeforeE[i] = pobE;
        beginBefore[i] = begin;
        const CourseReading &c = rows[i].course;
        if (c.tag == Tag::Close) {
            n = pobN;
            e = pobE;
            continue;
        }
        n += c.north();
        e += c.east();
        if (c.tag == Tag::NewLot) {
            n = originN;
            e = originE;
        } else if (c.tag == Tag::Begin) {
            pobN = n;
            pobE = e;
            begin = i;
        } else if (c.tag == Tag::Origin) {
            originN = n;
            originE = e;
        }
    }
    beforeN[count] = n;
    beforeE[count] = e;
    pobBeforeN[count] = pobN;
    pobBeforeE[count] = pobE;
    beginBefore[count] = begin;

    std::vector<LotFigure> lots;
    int start = 0;
    while (start < count) {
        int end = start;
        while (end < count - 1 && rows[end].course.tag != Tag::NewLot)
            ++end;
        LotFigure lot;
        lot.lotEnd = end;
        lot.endsWithNewLot = rows[end].course.tag == Tag::NewLot;
        int figureEnd = end + 1;
        for (int i = start; i <= end; ++i) {
            if (rows[i].course.tag == Tag::Close) {
                lot.closeRow = i;
                figureEnd = i;
                break;
            }
        }
        for (int i = start; i < figureEnd; ++i)
            if (rows[i].course.tag == Tag::Begin)
                lot.pobRow = i;
        const int figureStart = lot.pobRow >= 0 ? lot.pobRow + 1 : start;
        lot.startNorth = beforeN[figureStart];
        lot.startEast = beforeE[figureStart];
        // Without its own "B" the lot closes, as the plotter closes it, on the
        // point of beginning an earlier lot set (the table's first point if none).
        lot.pobRow = beginBefore[figureStart];
        lot.pobNorth = pobBeforeN[figureStart];
        lot.pobEast = pobBeforeE[figureStart];
        lot.gapNorth = lot.startNorth - lot.pobNorth;
        lot.gapEast = lot.startEast - lot.pobEast;
        for (int i = figureStart; i < figureEnd; ++i) {
            FigureRow f;
            f.row = i;
            f.reading = rows[i];
            f.north = rows[i].course.north();
            f.east = rows[i].course.east();
            if (f.moves()) {
                lot.gapNorth += f.north;
                lot.gapEast += f.east;
                lot.perimeter += std::fabs(f.reading.course.arc != 0.0 ? f.reading.course.arc : f.reading.course.length);
            }
            lot.rows.push_back(std::move(f));
        }
        lot.firstRow = -1;
        for (int i = start; i <= end; ++i) {
            if (rows[i].hasContent) {
                if (lot.firstRow < 0)
                    lot.firstRow = i;
                lot.lastRow = i;
            }
        }
        if (lot.callCount() > 0)
            lots.push_back(std::move(lot));
        start = end + 1;
    }
    return lots;
}

} // namespace quilmar::analysis
