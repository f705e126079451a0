#include "edit/leading_fields.h"

#include "db/kind.h"
#include "edit/values.h"

namespace edit {

void set_leading_fields(db::Rewrite& order, const Database& database, std::string_view held_model, std::string_view f50) {
  if (!database.isomodel.empty() || db::has_model(order.database))
    order.model = held_model;
  else if (database.blifile)
    order.critical_f = number_rule(f50);
}

}  // namespace edit
