#pragma once

#include <QTreeWidget>

#include <cstdint>
#include <optional>

namespace halvo {

class ListaDeCasos;

// The tree of the host's studies and their cases, in alphabetical order; the open case is in
// bold and a read-only one says so. A double click (or Enter) on a case asks to open it.
class PainelCasos : public QTreeWidget {
    Q_OBJECT

public:
    explicit PainelCasos(QWidget* pai = nullptr);

    // Shows the list again, keeping the case that was selected.
    void Mostra(const ListaDeCasos& lista, std::optional<std::int32_t> aberto);
    std::optional<std::int32_t> Selecionado() const;
    void Seleciona(std::int32_t codigo);

signals:
    void Ativado(std::int32_t codigo);
};

}  // namespace halvo
