#include "play/CardSettings.h"

#include "data/SystemSettings.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

CardStyle StyleOf(const SystemSettings& settings, const PlayFormat& format) {
  if (settings.IsOn(Setting::CardStyle)) return CardStyle::Folded;
  if (!format.hasTwoUpCards) return CardStyle::Card;
  const QString style = settings.Text(Setting::CardStyle);
  if (style == u"2") return CardStyle::Folded;
  return style == u"3" ? CardStyle::TwoUp : CardStyle::Card;
}

}  // namespace

CardSettings ReadCardSettings(const SystemSettings& settings, const PlayFormat& format) {
  CardSettings read;
  read.style = StyleOf(settings, format);
  read.backOnly = settings.IsOn(Setting::CardsBackOnly);
  read.confirms = settings.IsOn(Setting::WorldWarnings);
  read.down = settings.Twips(Setting::CardsVertical);
  read.right = settings.Twips(Setting::CardsHorizontal);
  return read;
}

}  // namespace tavrelin
