#include "host/console/value.h"

namespace host::console {

Value boolean_value(bool value) {
  return {Number{value ? 1.0L : 0.0L, Number::Form::Boolean}};
}

Value number_value(double value) {
  return {Number{value, Number::Form::Double}};
}

Value object_value(objc::Object object) {
  if (!object) return {NilValue{}};
  return {object};
}

}  // namespace host::console
