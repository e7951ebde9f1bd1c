#include "forms/bands.h"

#include "forms/form.h"

namespace forms {
namespace {

constexpr int kTitlePadding = 10;
constexpr int kLinkGap = 1;  // less than a blank, which the link covers
constexpr int kTitleWidth = 200;

}  // namespace

Cell TitleBand(Frame& ground, Label& title, Picture& close) {
  title.SetDragsWindow(true);
  ground.Hold({&title, &close});
  return Pile({Item(ground), Line({Space(theme::kMargin - kTitlePadding),
                                   Item(title).Width(kTitleWidth).Grow(), Item(close)})
                                 .Gap(0)
                                 .Padding(kTitlePadding)});
}

Cell BodyBand(std::vector<Cell> cells) {
  return Stack(std::move(cells)).Padding(theme::kMargin);
}

Cell ButtonBand(Frame& ground, std::vector<Cell> buttons) {
  buttons.insert(buttons.begin(), Space().Grow());
  return Pile({Item(ground), Line(std::move(buttons)).Padding(theme::kMargin)});
}

Cell Bands(std::vector<Cell> bands) {
  return Stack(std::move(bands)).Gap(0);
}

void PlaceLinkInText(Label& link, const Label& text, std::string_view lead) {
  FormHost& host = text.Owner().Host();
  const Rect ground = text.Bounds();
  const int lead_width = host.MeasureText(text.Owner(), lead, text.TextFont(), 0).width;
  const Size size = host.MeasureText(text.Owner(), link.Text(), link.TextFont(), 0);
  link.SetBounds({ground.left + lead_width + kLinkGap, ground.top, size.width, size.height});
}

}  // namespace forms
