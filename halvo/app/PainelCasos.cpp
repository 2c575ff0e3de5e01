#include "halvo/app/PainelCasos.h"

#include "halvo/app/ListaDeCasos.h"

#include <QHeaderView>

#include <map>

namespace halvo {

namespace {

constexpr int PapelCodigo = Qt::UserRole;

}  // namespace

PainelCasos::PainelCasos(QWidget* pai) : QTreeWidget(pai) {
    setObjectName(QStringLiteral("PainelCasos"));
    setColumnCount(1);
    header()->hide();
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const QVariant codigo = item->data(0, PapelCodigo);
        if (codigo.isValid()) {
            emit Ativado(codigo.toInt());
        }
    });
}

void PainelCasos::Mostra(const ListaDeCasos& lista, std::optional<std::int32_t> aberto) {
    const std::optional<std::int32_t> selecionado = Selecionado();
    clear();
    std::map<QString, QTreeWidgetItem*> estudos;
    for (const EntradaCaso& entrada : lista.Casos()) {
        QTreeWidgetItem*& estudo = estudos[entrada.Estudo];
        if (estudo == nullptr) {
            estudo = new QTreeWidgetItem(this, {entrada.Estudo});
        }
        auto* caso = new QTreeWidgetItem(
            estudo, {entrada.SomenteLeitura ? QStringLiteral("%1 (somente leitura)").arg(entrada.Nome)
                                            : entrada.Nome});
        caso->setData(0, PapelCodigo, entrada.Codigo);
        caso->setToolTip(0, entrada.Descricao.isEmpty()
                                ? entrada.Pasta
                                : QStringLiteral("%1\n%2").arg(entrada.Descricao, entrada.Pasta));
        if (entrada.Codigo == aberto) {
            QFont fonte = caso->font(0);
            fonte.setBold(true);
            caso->setFont(0, fonte);
        }
    }
    sortItems(0, Qt::AscendingOrder);
    expandAll();
    if (selecionado) {
        Seleciona(*selecionado);
    }
}

std::optional<std::int32_t> PainelCasos::Selecionado() const {
    const QTreeWidgetItem* item = currentItem();
    if (item == nullptr || !item->isSelected() || !item->data(0, PapelCodigo).isValid()) {
        return std::nullopt;
    }
    return item->data(0, PapelCodigo).toInt();
}

void PainelCasos::Seleciona(std::int32_t codigo) {
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
        if ((*item)->data(0, PapelCodigo) == codigo) {
            setCurrentItem(*item);
            return;
        }
    }
}

}  // namespace halvo
