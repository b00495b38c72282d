#include "sample/Commands.h"

#include "sample/SampleClub.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

int Sample(const QStringList& arguments, QTextStream&, QTextStream&) {
  MakeSampleClub(arguments[0]);
  return exits::Done;
}

}  // namespace

QList<Command> SampleCommands() {
  return {{u"sample"_s, u"sample FILE"_s,
           u"Makes a club file with invented players and tournaments to try things on."_s, 1, 1,
           Sample}};
}

}  // namespace tavrelin
