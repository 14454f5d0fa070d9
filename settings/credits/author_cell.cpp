#include "settings/credits/author_cell.h"

#include "objc/block.h"
#include "objc/ref.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/MessageUI/MFMessageComposeViewController.h"
#include "settings/credits/author_row.h"
#include "settings/credits/authors.h"
#include "settings/credits/card.h"
#include "settings/credits/contact.h"
#include "settings/globals.h"
#include "ui/taps.h"

namespace sonavue {
namespace {

template <const Author& author, class Cell>
class AuthorCell : public objc::Implementation<AuthorCell<author, Cell>, Cell> {
  using Base = objc::Implementation<AuthorCell<author, Cell>, Cell>;

 public:
  using Base::Base;
  using Base::self;

  static void make();

  PSTableCell init(PSSpecifier specifier) {
    const auto made =
        Base::template super<PSTableCell>("initWithStyle:reuseIdentifier:specifier:"_sel,
                                          UITableViewCellStyleDefault, "headerCell"_ns, specifier);
    if (!made) return made;
    fill_author_row(made, author);
    add_tap(made, made, "presentViewController"_sel);
    return made;
  }
  CGFloat preferred_height(CGFloat) { return kAuthorRowHeight; }

  void present() {
    contr_ = make_card(author, self);
    if (!contr_) return;
    settings::where.presentViewController(contr_, YES, nullptr);
  }
  void dismiss() {
    settings::end_shown(contr_);
    contr_.reset();
  }
  void add_object(UIView container, NSString name, NSString picture, objc::Sel action) {
    add_tile(container, name, picture, action, self);
  }

  void email() { write_mail(author, self, contr_); }
  void message() { write_message(author, self, contr_); }
  void follow_author() {
    follow(author);
    send_dismiss(self);
  }
  template <int index>
  void open_package() {
    show_package(author.packages[index]);
    send_dismiss(self);
  }

  void mail_done(MFMailComposeViewController, MFMailComposeResult, objc::Object) {
    leave_composer();
  }
  void message_done(MFMessageComposeViewController, MessageComposeResult) { leave_composer(); }

 private:
  static void send_dismiss(PSTableCell cell) { objc::send<>(cell, "dismissViewController"_sel); }
  void leave_composer() {
    const auto cell = objc::Ref<PSTableCell>::retain(self);
    contr_->dismissViewControllerAnimated(YES, objc::block([cell] { send_dismiss(*cell); }));
  }
  template <int index>
  static void add_package_action(objc::ClassBuilder& builder) {
    if constexpr (index < author.package_count) {
      builder.method<&AuthorCell::open_package<index>>(author.packages[index].action);
      add_package_action<index + 1>(builder);
    }
  }

  objc::Ref<UIViewController> contr_;
};

template <const Author& author, class Cell>
void AuthorCell<author, Cell>::make() {
  objc::make_own_class<Cell>([](objc::ClassBuilder& builder) {
    builder.state<AuthorCell>();
    builder.method<&AuthorCell::init>("initWithSpecifier:");
    builder.method<&AuthorCell::preferred_height>("preferredHeightForWidth:");
    builder.method<&AuthorCell::present>("presentViewController");
    builder.method<&AuthorCell::dismiss>("dismissViewController");
    builder.method<&AuthorCell::add_object>("addObjectIn:withName:image:action:");
    builder.method<&AuthorCell::email>("email");
    builder.method<&AuthorCell::message>("message");
    builder.method<&AuthorCell::follow_author>(author.follow_action);
    builder.method<&AuthorCell::mail_done>("mailComposeController:didFinishWithResult:error:");
    builder.method<&AuthorCell::message_done>("messageComposeViewController:didFinishWithResult:");
    add_package_action<0>(builder);
  });
}

}  // namespace

void make_author_cells() {
  AuthorCell<kDeveloper, developerCell>::make();
  AuthorCell<kDesigner, designerCell>::make();
}

}  // namespace sonavue
