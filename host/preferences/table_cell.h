#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Preferences/PSTableCell.h"

namespace host::preferences {

/// A row that shows its specifier: icon, name, the value of a list, and what it leads to.
class TableCell : public objc::Implementation<TableCell, PSTableCell> {
 public:
  explicit TableCell(PSTableCell owner) : Implementation(owner) {}

  static PSCellType cell_type(objc::Object, NSString name);
  PSTableCell init(UITableViewCellStyle style, NSString reuse_identifier, PSSpecifier specifier);
  PSSpecifier specifier() const { return specifier_.get(); }
  void set_specifier(PSSpecifier specifier) { specifier_.reset(specifier); }
  void refresh(PSSpecifier specifier);

 private:
  void show_value(PSSpecifier specifier) const;

  objc::Ref<PSSpecifier> specifier_;
};

void export_table_cell();

}  // namespace host::preferences
