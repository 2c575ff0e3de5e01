#pragma once

struct sqlite3;

namespace recordstore {

// Registers GERAL on the connection: ICU's root order at secondary strength, so that case does
// not count and accents do, the same on every machine.
void registraColacaoGeral(sqlite3* bd);

}  // namespace recordstore
