#pragma once

#include "play/ClassResults.h"
#include "print/ReportTable.h"

namespace tavrelin {

/// The standings of a class, on paper and in a text file: of a doubles class, of a singles class,
/// or of a singles class in brief.
const ReportTable<StandingLine>& StandingsTable(const ClassResults& results,
                                                const ResultsChoice& choice);

}  // namespace tavrelin
