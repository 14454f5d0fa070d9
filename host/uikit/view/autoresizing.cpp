#include "host/uikit/view/autoresizing.h"

namespace host::uikit {
namespace {

struct Span {
  double start;
  double length;
};

struct Flexible {
  bool before;
  bool length;
  bool after;
};

Span autoresized(Span span, double old_total, double new_total, Flexible flexible) {
  const int count = flexible.before + flexible.length + flexible.after;
  if (count == 0) return span;
  const double after = old_total - span.start - span.length;
  const double flexible_length = (flexible.before ? span.start : 0) +
                                 (flexible.length ? span.length : 0) + (flexible.after ? after : 0);
  const double change = new_total - old_total;
  // Lengths of zero have no proportions to keep, so they share equally.
  const auto share = [&](double length) {
    return flexible_length == 0 ? change / count : change * length / flexible_length;
  };
  return {flexible.before ? span.start + share(span.start) : span.start,
          flexible.length ? span.length + share(span.length) : span.length};
}

}  // namespace

CGRect autoresized_frame(CGRect frame, CGSize old_size, CGSize new_size, UIViewAutoresizing mask) {
  const auto has = [mask](UIViewAutoresizing part) { return (mask & part) != 0; };
  const Span across =
      autoresized({frame.origin.x, frame.size.width}, old_size.width, new_size.width,
                  {has(UIViewAutoresizingFlexibleLeftMargin), has(UIViewAutoresizingFlexibleWidth),
                   has(UIViewAutoresizingFlexibleRightMargin)});
  const Span down =
      autoresized({frame.origin.y, frame.size.height}, old_size.height, new_size.height,
                  {has(UIViewAutoresizingFlexibleTopMargin), has(UIViewAutoresizingFlexibleHeight),
                   has(UIViewAutoresizingFlexibleBottomMargin)});
  return {across.start, down.start, across.length, down.length};
}

}  // namespace host::uikit
