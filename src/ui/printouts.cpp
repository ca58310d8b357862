#include "printouts.h"

#include "map_printout.h"

namespace quilmar {

std::string printMapSheets(Engine &engine, PrintSheet &sheet)
{
    return printMapPage(engine, sheet.surface, PageSize{sheet.width, sheet.height}, sheet.copies);
}

void printDataSheets(const Engine &engine, PrintSheet &sheet)
{
    printDataPages(engine, sheet.surface, PageSize{sheet.width, sheet.height});
}

} // namespace quilmar
