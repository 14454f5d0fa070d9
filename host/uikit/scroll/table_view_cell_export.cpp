#include "host/uikit/scroll/table_view_cell.h"

namespace host::uikit {

void export_table_view_cell() {
  objc::ClassBuilder("UITableViewCell", "UIView")
      .state<TableViewCell>()
      .method<&TableViewCell::init_with_frame>("initWithFrame:")
      .method<&TableViewCell::init_with_style>("initWithStyle:reuseIdentifier:")
      .method<&TableViewCell::init_with_frame_and_identifier>("initWithFrame:reuseIdentifier:")
      .method<&TableViewCell::reuse_identifier>("reuseIdentifier")
      .method<&TableViewCell::prepare_for_reuse>("prepareForReuse")
      .method<&TableViewCell::layout_subviews>("layoutSubviews")
      .method<&TableViewCell::size_that_fits>("sizeThatFits:")
      .method<&TableViewCell::content_view>("contentView")
      .method<&TableViewCell::text_label>("textLabel")
      .method<&TableViewCell::detail_text_label>("detailTextLabel")
      .method<&TableViewCell::image_view>("imageView")
      .method<&TableViewCell::background_view>("backgroundView")
      .method<&TableViewCell::set_background_view>("setBackgroundView:")
      .method<&TableViewCell::selected_background_view>("selectedBackgroundView")
      .method<&TableViewCell::set_selected_background_view>("setSelectedBackgroundView:")
      .method<&TableViewCell::accessory_view>("accessoryView")
      .method<&TableViewCell::set_accessory_view>("setAccessoryView:")
      .method<&TableViewCell::accessory_type>("accessoryType")
      .method<&TableViewCell::set_accessory_type>("setAccessoryType:")
      .method<&TableViewCell::indentation_level>("indentationLevel")
      .method<&TableViewCell::set_indentation_level>("setIndentationLevel:")
      .method<&TableViewCell::indentation_width>("indentationWidth")
      .method<&TableViewCell::set_indentation_width>("setIndentationWidth:")
      .method<&TableViewCell::separator_inset>("separatorInset")
      .method<&TableViewCell::set_separator_inset>("setSeparatorInset:")
      .method<&TableViewCell::selection_style>("selectionStyle")
      .method<&TableViewCell::set_selection_style>("setSelectionStyle:")
      .method<&TableViewCell::is_selected>("isSelected")
      .method<&TableViewCell::set_selected>("setSelected:")
      .method<&TableViewCell::set_selected_animated>("setSelected:animated:")
      .method<&TableViewCell::is_highlighted>("isHighlighted")
      .method<&TableViewCell::set_highlighted>("setHighlighted:")
      .method<&TableViewCell::set_highlighted_animated>("setHighlighted:animated:")
      .finish();
}

}  // namespace host::uikit
