#pragma once

// The field rules: what a value becomes when written to a field of a type, how it is stored, and
// how a stored value reads back.

#include "platform/recordstore/Recordstore.h"
#include "platform/recordstore/Sqlite.h"

namespace recordstore::campos {

// The value in the field's own type: 13 for a value that is not of it, 6 for a number out of its
// range, 3163 for a text longer than the field. Null stays Null.
Valor converte(const FieldDef& campo, const Valor& valor);

// A converted value as the file holds it: booleans as 1 and 0, dates as ISO text.
ValorSql paraSql(const FieldDef& campo, const Valor& convertido);

// A stored value read back in the field's type; what does not fit the type is left as stored.
Valor le(const FieldDef& campo, const ValorSql& armazenado);

// A zero-length text where the field refuses one (3315 at Update).
bool recusaComprimentoZero(const FieldDef& campo, const Valor& convertido);

// The size of a text field (0 means the largest, 255).
int tamanhoTexto(const FieldDef& campo);

}  // namespace recordstore::campos
