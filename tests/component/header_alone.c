// The component's header, alone.
#include "component/qvn.h"

// Hosts of other languages lay out values by these sizes.
#if SIZE_MAX > 0xFFFFFFFFU
enum { SIZE_OF_VALUE = 32 };
#else
enum { SIZE_OF_VALUE = 24 };
#endif
typedef char value_has_its_size[sizeof(qvn_value) == SIZE_OF_VALUE ? 1 : -1];
typedef char value_begins_with_kind_and_owned[offsetof(qvn_value, as) == 8 ? 1 : -1];

// A second time it declares nothing anew.
#include "component/qvn.h"

int32_t uses_the_header(qvn_object* object);
int32_t uses_the_header(qvn_object* object) {
  value_has_its_size size = {0};
  value_begins_with_kind_and_owned beginning = {0};
  return qvn_addref(object) + size[0] + beginning[0];
}
