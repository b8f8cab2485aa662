// A panel for tests of requests: members of each kind, and widgets that can be clicked and chosen.
#pragma once

#include <array>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"

namespace qvn::play {

class EveryKind final : public Panel {
 public:
  explicit EveryKind(const PanelSite& site)
      : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)) {
    surface_->button("Button1").Click = [this] { surface_->textBox("Text1").Text("premuto"); };
    surface_->checkBox("Check1").Click = [] { throw std::bad_alloc(); };
  }

  CurrencyArray Quote() const { return quote_; }
  void Quote(CurrencyArray quote) { quote_ = std::move(quote); }
  std::int16_t Somma(std::int16_t first, std::int16_t second) { return static_cast<std::int16_t>(first + second); }
  void Raddoppia(std::string& text) { text += text; }
  Currency Totale(CurrencyArray quote) { return quote.values.empty() ? Currency() : quote.values.front(); }
  std::int16_t Rotto() const { throw std::runtime_error("unforeseen"); }

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers() {
    static const auto table = MemberTable<EveryKind>()
                                  .property("Quote", &EveryKind::Quote, &EveryKind::Quote)
                                  .method("Somma", &EveryKind::Somma)
                                  .method("Raddoppia", &EveryKind::Raddoppia)
                                  .method("Totale", &EveryKind::Totale)
                                  .readOnly("Rotto", &EveryKind::Rotto);
    return table.members();
  }
  static PanelClass panelClass() {
    return {.name = "EveryKind",
            .make = [](const PanelSite& site) -> std::unique_ptr<Panel> { return std::make_unique<EveryKind>(site); },
            .members = publicMembers};
  }

 private:
  static constexpr std::array<std::string_view, 2> kItems{"DARE", "AVERE"};
  static constexpr std::array<toolkit::WidgetLayout, 5> kWidgets{{
      {.name = "Text1", .place = {0, 0, 750, 315}},
      {.name = "Combo1", .kind = toolkit::WidgetKind::ComboBox, .place = {750, 0, 750, 315}, .items = kItems},
      {.name = "Check1", .kind = toolkit::WidgetKind::CheckBox, .place = {1500, 0, 750, 315}},
      {.name = "Check2", .kind = toolkit::WidgetKind::CheckBox, .place = {1500, 375, 750, 315}},
      {.name = "Button1", .kind = toolkit::WidgetKind::CommandButton, .place = {2250, 0, 750, 315}},
  }};
  static constexpr toolkit::PanelLayout kLayout{.name = "EveryKind", .width = 3000, .height = 750, .widgets = kWidgets};

  std::unique_ptr<toolkit::Surface> surface_;
  CurrencyArray quote_{{0}, {}};
};

}  // namespace qvn::play
