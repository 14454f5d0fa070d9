#include "host/preferences/list_controller.h"

#include <string>

#include "host/preferences/cell_types.h"
#include "host/preferences/specifier.h"
#include "host/runtime/log.h"

namespace host::preferences {
namespace {

/// Returns the class in a property that holds a class or the name of one. Null when the property is
/// missing, or when the class does not implement `initializer`.
objc::Class class_in(PSSpecifier specifier, NSString key, objc::Sel initializer) {
  const objc::Object value = specifier.propertyForKey(key);
  if (!value) return nullptr;
  const bool is_name = objc::cast<NSObject>(value).isKindOfClass(NSString::cls());
  const char* name = is_name ? objc::cast<NSString>(value).UTF8String() : nullptr;
  const auto cls = is_name ? objc_getClass(name) : reinterpret_cast<objc::Class>(value.id());
  if (cls && class_getInstanceMethod(cls, initializer)) return cls;
  spdlog::warn("a settings row has {} {}, which is not a usable class", key.UTF8String(),
               is_name ? name : "");
  return nullptr;
}

template <class T>
T allocated(objc::Class cls) {
  return objc::send<T>(objc::Object(cls), "alloc"_sel);
}

}  // namespace

// A table does not retain its delegate, and others may retain the table.
ListController::~ListController() {
  if (table_) {
    table_->setDataSource(nil);
    table_->setDelegate(nil);
  }
  keep(nil);
}

void ListController::keep(NSArray specifiers) {
  objc::Id* field = objc::field<objc::Id>(self, "_specifiers");
  objc::send<objc::Id>(specifiers, "retain"_sel);
  const objc::Object before(std::exchange(*field, specifiers.id()));
  objc::send<>(before, "release"_sel);
}

void ListController::set_specifiers(NSArray specifiers) {
  keep(specifiers);
  groups_ = SpecifierGroups(specifiers);
  headers_.clear();
  if (table_) table_->reloadData();
}

// A subclass creates the specifiers when none are cached.
void ListController::show_rows() {
  const NSArray specifiers = self.specifiers();
  groups_ = SpecifierGroups(specifiers);
  headers_.clear();
  if (table_) table_->reloadData();
}

void ListController::reload_specifiers() {
  const auto before = objc::Ref<NSArray>::retain(self.cached_specifiers());
  keep(nil);
  show_rows();
}

void ListController::reload() {
  if (table_) table_->reloadData();
}

void ListController::reload_specifier(PSSpecifier specifier) {
  const auto place = groups_.find(specifier);
  if (!place || !table_) return;
  const auto path = NSIndexPath::indexPathForRow(static_cast<NSInteger>(place->row),
                                                 static_cast<NSInteger>(place->group));
  const UITableViewCell shown = table_->cellForRowAtIndexPath(path);
  if (shown) objc::cast<PSTableCell>(shown).refreshCellContentsWithSpecifier(specifier);
}

PSSpecifier ListController::specifier_for_id(NSString identifier) {
  const NSArray specifiers = self.specifiers();
  if (!specifiers || !identifier) return nil;
  for (const PSSpecifier specifier : specifiers.of<PSSpecifier>())
    if (specifier.identifier().isEqualToString(identifier)) return specifier;
  return nil;
}

UITableView ListController::table() {
  self.view();
  return table_.get();
}

void ListController::set_specifier(PSSpecifier specifier) {
  specifier_.reset(specifier);
  if (!self.title()) self.setTitle(specifier.name());
}

void ListController::push_controller(UIViewController controller) {
  self.navigationController().pushViewController(controller, YES);
}

void ListController::view_did_load() {
  super<>("viewDidLoad"_sel);
  const UIView view = self.view();
  table_ = objc::Ref<UITableView>::adopt(
      UITableView::alloc().initWithFrame(view.bounds(), UITableViewStyleGrouped));
  table_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  view.addSubview(table_.get());
  show_rows();
  table_->setDataSource(self);
  table_->setDelegate(self);
}

// The page in front of this one may have changed the values shown.
void ListController::view_will_appear(BOOL animated) {
  super<>("viewWillAppear:"_sel, animated);
  self.view();
  show_values();
  if (const NSIndexPath chosen = table_->indexPathForSelectedRow())
    table_->deselectRowAtIndexPath(chosen, animated);
}

void ListController::show_values() {
  const auto cells = objc::Ref<NSArray>::retain(table_->visibleCells());
  for (const PSTableCell cell : cells->of<PSTableCell>())
    cell.refreshCellContentsWithSpecifier(cell.specifier());
}

PSSpecifier ListController::specifier_at(NSIndexPath path) const {
  return groups_.row(static_cast<std::size_t>(path.section()),
                     static_cast<std::size_t>(path.row()));
}

PSSpecifier ListController::group_at(NSInteger section) const {
  return groups_.group(static_cast<std::size_t>(section));
}

NSInteger ListController::sections(UITableView) {
  return static_cast<NSInteger>(groups_.count());
}

NSInteger ListController::rows(UITableView, NSInteger section) {
  return static_cast<NSInteger>(groups_.rows_in(static_cast<std::size_t>(section)));
}

UITableViewCell ListController::cell(UITableView table, NSIndexPath path) {
  const PSSpecifier specifier = specifier_at(path);
  const PSCellType type = state_of(specifier).cell_type();
  objc::Class cls =
      class_in(specifier, "cellClass"_ns, "initWithStyle:reuseIdentifier:specifier:"_sel);
  if (!cls) cls = objc_getClass(cell_class_name(type));
  // Cells of the same class and layout are interchangeable.
  const auto reuse = NSString::stringWithUTF8String(
      (std::string(class_getName(cls)) + " " + std::to_string(type)).c_str());
  const auto waiting = objc::cast<PSTableCell>(table.dequeueReusableCellWithIdentifier(reuse));
  if (!waiting)
    return allocated<PSTableCell>(cls)
        .initWithStyle(cell_style(type), reuse, specifier)
        .autorelease();
  waiting.setSpecifier(specifier);
  waiting.refreshCellContentsWithSpecifier(specifier);
  return waiting;
}

CGFloat ListController::row_height(UITableView, NSIndexPath path) {
  const auto height = objc::cast<NSObject>(specifier_at(path).propertyForKey("height"_ns));
  return height ? objc::send<CGFloat>(height, "doubleValue"_sel) : UITableViewAutomaticDimension;
}

NSString ListController::header_title(UITableView, NSInteger section) {
  const NSString name = group_at(section).name();
  return name.length() > 0 ? name : NSString();
}

NSString ListController::footer_title(UITableView, NSInteger section) {
  return objc::cast<NSString>(group_at(section).propertyForKey("footerText"_ns));
}

/// Returns the view of the group's header class, created once and kept as long as the specifiers.
PSHeaderViewDelegate ListController::own_header(NSInteger section) {
  if (const auto made = headers_.find(section); made != headers_.end()) return made->second.get();
  const PSSpecifier group = group_at(section);
  const objc::Class cls =
      group ? class_in(group, "headerCellClass"_ns, "initWithSpecifier:"_sel) : nullptr;
  if (!cls) return nil;
  const auto view = allocated<PSHeaderViewDelegate>(cls).initWithSpecifier(group);
  headers_.emplace(section, objc::Ref<PSHeaderViewDelegate>::adopt(view));
  return view;
}

CGFloat ListController::header_height(UITableView table, NSInteger section) {
  const PSHeaderViewDelegate own = own_header(section);
  if (!own || !own.respondsToSelector("preferredHeightForWidth:"_sel))
    return UITableViewAutomaticDimension;
  return own.preferredHeightForWidth(table.bounds().size.width);
}

UIView ListController::header_view(UITableView, NSInteger section) {
  return own_header(section);
}

BOOL ListController::should_highlight(UITableView, NSIndexPath path) {
  const Specifier& state = state_of(specifier_at(path));
  const bool answers = state.action() || state.detail() || state.cell_type() == kListItemCell;
  return answers ? YES : NO;
}

void ListController::selected(UITableView table, NSIndexPath path) {
  const auto specifier = objc::Ref<PSSpecifier>::retain(specifier_at(path));
  if (state_of(specifier.get()).action()) {
    table.deselectRowAtIndexPath(path, YES);
    state_of(specifier.get()).send_action();
  } else if (!open_detail(specifier.get())) {
    table.deselectRowAtIndexPath(path, YES);
  }
}

bool ListController::open_detail(PSSpecifier specifier) {
  const objc::Class cls = state_of(specifier).detail();
  if (!cls) return false;
  const auto page = allocated<PSListController>(cls).init();
  if (!page) return false;
  if (page.respondsToSelector("setSpecifier:"_sel)) page.setSpecifier(specifier);
  if (page.respondsToSelector("setParentController:"_sel)) page.setParentController(self);
  if (!page.title()) page.setTitle(specifier.name());
  self.pushController(page);
  page.release();
  return true;
}

void export_list_controller() {
  using Page = ListController;
  objc::ClassBuilder("PSListController", "UIViewController")
      .state<Page>()
      .field<objc::Id>("_specifiers")
      .method<&Page::specifiers>("specifiers")
      .method<&Page::set_specifiers>("setSpecifiers:")
      .method<&Page::reload_specifiers>("reloadSpecifiers")
      .method<&Page::reload>("reload")
      .method<&Page::reload_specifier>("reloadSpecifier:")
      .method<&Page::reload_specifier_animated>("reloadSpecifier:animated:")
      .method<&Page::reload_specifier_id>("reloadSpecifierID:")
      .method<&Page::reload_specifier_id_animated>("reloadSpecifierID:animated:")
      .method<&Page::insert_at>("insertSpecifier:atIndex:animated:")
      .method<&Page::insert_after>("insertSpecifier:afterSpecifier:animated:")
      .method<&Page::insert_after_id>("insertSpecifier:afterSpecifierID:animated:")
      .method<&Page::insert_all_after>("insertContiguousSpecifiers:afterSpecifier:animated:")
      .method<&Page::insert_all_after_id>("insertContiguousSpecifiers:afterSpecifierID:animated:")
      .method<&Page::add>("addSpecifier:animated:")
      .method<&Page::remove>("removeSpecifier:animated:")
      .method<&Page::remove_id>("removeSpecifierID:animated:")
      .method<&Page::remove_all>("removeContiguousSpecifiers:animated:")
      .method<&Page::contains>("containsSpecifier:")
      .method<&Page::bundle>("bundle")
      .method<&Page::load_list>("loadSpecifiersFromPlistName:target:")
      .method<&Page::read_value>("readPreferenceValue:")
      .method<&Page::write_value>("setPreferenceValue:specifier:")
      .method<&Page::specifier_for_id>("specifierForID:")
      .method<&Page::table>("table")
      .method<&Page::specifier>("specifier")
      .method<&Page::set_specifier>("setSpecifier:")
      .method<&Page::parent_controller>("parentController")
      .method<&Page::set_parent_controller>("setParentController:")
      .method<&Page::push_controller>("pushController:")
      .method<&Page::view_did_load>("viewDidLoad")
      .method<&Page::view_will_appear>("viewWillAppear:")
      .method<&Page::sections>("numberOfSectionsInTableView:")
      .method<&Page::rows>("tableView:numberOfRowsInSection:")
      .method<&Page::cell>("tableView:cellForRowAtIndexPath:")
      .method<&Page::row_height>("tableView:heightForRowAtIndexPath:")
      .method<&Page::header_title>("tableView:titleForHeaderInSection:")
      .method<&Page::footer_title>("tableView:titleForFooterInSection:")
      .method<&Page::header_height>("tableView:heightForHeaderInSection:")
      .method<&Page::header_view>("tableView:viewForHeaderInSection:")
      .method<&Page::should_highlight>("tableView:shouldHighlightRowAtIndexPath:")
      .method<&Page::selected>("tableView:didSelectRowAtIndexPath:")
      .finish();
}

}  // namespace host::preferences
