#include "platforms/qt/panel_widget.h"

#include <QEvent>
#include <algorithm>
#include <array>
#include <vector>

#include "platforms/memory/usable.h"
#include "platforms/qt/button_views.h"
#include "platforms/qt/combo_view.h"
#include "platforms/qt/field_view.h"
#include "platforms/qt/frame_view.h"
#include "platforms/qt/label_view.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/spoken_names.h"
#include "platforms/qt/table_views.h"
#include "platforms/qt/texts.h"
#include "platforms/qt/twips.h"

namespace qvn::qt {

namespace {

/// The height of the letters' body that fits a field of one line, in twips.
constexpr std::int32_t kFontHeight = 165;

template <class ViewClass, class Model>
View* viewFor(Screen& screen, toolkit::Widget& model, QWidget& parent) {
  return new ViewClass(screen, static_cast<Model&>(model), parent);  // its parent owns it
}

View* makeView(Screen& screen, toolkit::Widget& model, QWidget& parent) {
  switch (model.Kind()) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::DateControl:
      return viewFor<FieldView, toolkit::EditableText>(screen, model, parent);
    case toolkit::WidgetKind::Label:
      return viewFor<LabelView, toolkit::Label>(screen, model, parent);
    case toolkit::WidgetKind::ComboBox:
      return viewFor<ComboView, toolkit::ComboBox>(screen, model, parent);
    case toolkit::WidgetKind::CheckBox:
      return viewFor<CheckView, toolkit::CheckBox>(screen, model, parent);
    case toolkit::WidgetKind::Frame:
      return viewFor<FrameView, toolkit::Frame>(screen, model, parent);
    case toolkit::WidgetKind::CommandButton:
      return viewFor<ButtonView, toolkit::CommandButton>(screen, model, parent);
    case toolkit::WidgetKind::ListView:
      return viewFor<ListWidget, memory::ListView>(screen, model, parent);
    case toolkit::WidgetKind::DataGrid:
      return viewFor<GridWidget, toolkit::DataGrid>(screen, model, parent);
    case toolkit::WidgetKind::DataControl:
      break;
  }
  return viewFor<DataControlView, toolkit::Widget>(screen, model, parent);
}

}  // namespace

PanelWidget::PanelWidget(Screen& screen, memory::Surface& surface) : screen_(screen), surface_(&surface) {
  setObjectName(shown(surface.name()));
  QFont font = this->font();
  font.setPixelSize(static_cast<int>(kFontHeight * logicalDpiY() / kTwipsPerInch));  // one more may not fit
  setFont(font);
  setFixedSize(pixels(surface.layout().width, logicalDpiX()), pixels(surface.layout().height, logicalDpiY()));
  views_.reserve(surface.widgets().size());
  const SpokenNames names = spokenNames(surface.layout());
  for (toolkit::Widget* widget : surface.widgets()) make(*widget, names.at(widget->Name()));
  setOrder();
  showFlags();
}

PanelWidget::~PanelWidget() {
  if (surface_ != nullptr) screen_.forget(*this);  // without one, the screen may be gone
}

void PanelWidget::make(toolkit::Widget& widget, const QString& spokenName) {
  QWidget* parent = this;
  if (widget.frame() != nullptr) parent = &viewOf(*widget.frame())->widget();
  View* view = makeView(screen_, widget, *parent);
  views_.emplace(&widget, view);
  QWidget& made = view->widget();
  const toolkit::WidgetLayout& row = widget.layout();
  made.setObjectName(shown(row.name));
  made.setToolTip(shown(row.tooltip));
  if (row.kind == toolkit::WidgetKind::Label) {
    made.lower();  // beneath the fields that it is laid out over, which the mouse then reaches
    dynamic_cast<LabelView&>(made).call(spokenName);
  } else {
    made.setAccessibleName(spokenName);
  }
  if (row.bold) {
    QFont bold = made.font();
    bold.setBold(true);
    made.setFont(bold);
  }
  made.setFocusPolicy(memory::takesFocus(row.kind) ? Qt::StrongFocus : Qt::NoFocus);
  view->showSubject();
}

void PanelWidget::setOrder() {
  std::vector<toolkit::Widget*> stops(surface_->widgets().begin(), surface_->widgets().end());
  std::erase_if(stops, [](const toolkit::Widget* widget) { return !memory::takesFocus(widget->Kind()); });
  std::ranges::stable_sort(stops, {}, &toolkit::Widget::TabIndex);
  for (std::size_t i = 1; i < stops.size(); ++i) {
    setTabOrder(&viewOf(*stops[i - 1])->widget(), &viewOf(*stops[i])->widget());
  }
}

View* PanelWidget::viewOf(const toolkit::Widget& widget) const {
  const auto found = views_.find(&widget);
  return found == views_.end() ? nullptr : found->second;
}

void PanelWidget::showFlags() {
  if (surface_ == nullptr) return;
  if (testAttribute(Qt::WA_ForceDisabled) == surface_->Enabled()) setEnabled(surface_->Enabled());
  if (surface_->isOfForm()) return;  // shown and hidden with its window
  const bool visible = surface_->Visible();
  const bool alone = parentWidget() == nullptr && !screen_.panelsAreWindows();
  if (!visible && (!alone || isVisible())) hide();
  if (visible && !alone && isHidden()) show();
}

void PanelWidget::detach() {
  for (const auto& [widget, view] : views_) view->letGo();
  for (auto* rows : findChildren<QAbstractTableModel*>()) {
    if (auto* list = dynamic_cast<TableRows<toolkit::ListView>*>(rows)) list->detach();
    if (auto* grid = dynamic_cast<TableRows<toolkit::DataGrid>*>(rows)) grid->detach();
  }
  surface_ = nullptr;
}

bool PanelWidget::event(QEvent* event) {
  // Qt does not know yet of a panel that was hidden before it was placed.
  if (event->type() == QEvent::ParentChange && surface_ != nullptr && !surface_->Visible()) showFlags();
  return QWidget::event(event);
}

void PanelWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  constexpr std::array kOfTheDesktop{QEvent::ApplicationPaletteChange, QEvent::PaletteChange,
                                     QEvent::ApplicationFontChange, QEvent::FontChange};
  if (std::ranges::find(kOfTheDesktop, event->type()) == kOfTheDesktop.end()) return;
  for (const auto& [widget, view] : views_) {
    view->forgetLook();
    screen_.markStale(*view);
  }
}

}  // namespace qvn::qt
