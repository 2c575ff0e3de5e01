#include "halvo/controles/Grid.h"

#include "halvo/controles/DelegadoGrid.h"
#include "halvo/controles/ModeloGrid.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHeaderView>
#include <QStyleOptionHeader>
#include <QStylePainter>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>

namespace halvo {

namespace {

constexpr int TwipsPorPixel = 15;

// The table's corner button is a header too: it shows the text of the corner cell.
class PintorDoCanto : public QObject {
public:
    PintorDoCanto(QAbstractButton& canto, const ModeloGrid& modelo) : QObject(&canto), mModelo(modelo) {
        canto.installEventFilter(this);
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::Paint) {
            return false;
        }
        auto* canto = static_cast<QWidget*>(objeto);
        QStyleOptionHeader opcao;
        opcao.initFrom(canto);
        opcao.rect = canto->rect();
        opcao.position = QStyleOptionHeader::OnlyOneSection;
        opcao.textAlignment = Qt::AlignCenter;
        if (mModelo.LinhasFixas() > 0 && mModelo.ColunasFixas() > 0) {
            opcao.text = mModelo.Texto(0, 0);
        }
        QStylePainter pintor(canto);
        pintor.drawControl(QStyle::CE_Header, opcao);
        return true;
    }

private:
    const ModeloGrid& mModelo;
};

}  // namespace

Grid::Grid(QWidget* pai) : QWidget(pai), mModelo(new ModeloGrid(this)), mTabela(new QTableView(this)) {
    auto* leiaute = new QVBoxLayout(this);
    leiaute->setContentsMargins(0, 0, 0, 0);
    leiaute->addWidget(mTabela);
    setFocusProxy(mTabela);

    mTabela->setModel(mModelo);
    mTabela->setItemDelegate(new DelegadoGrid(mTabela));
    mTabela->setSelectionMode(QAbstractItemView::SingleSelection);
    mTabela->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                             QAbstractItemView::EditKeyPressed);
    mTabela->horizontalHeader()->setSectionsClickable(false);
    mTabela->verticalHeader()->setSectionsClickable(false);
    mTabela->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    if (auto* canto = mTabela->findChild<QAbstractButton*>()) {
        new PintorDoCanto(*canto, *mModelo);
        connect(mModelo, &ModeloGrid::CantoAlterado, canto, qOverload<>(&QWidget::update));
    }
    connect(mModelo, &ModeloGrid::Editado, this, [this](int linha, int coluna, bool alterou) {
        if (alterou) {
            emit CelulaAlterada(linha, coluna);
        }
        emit FimDeEdicao(linha, coluna);
    });

    mModelo->setDimensoes(2, 2);
    setLinhasFixas(1);
    setColunasFixas(1);
}

int Grid::Linhas() const {
    return mModelo->Linhas();
}

void Grid::setLinhas(int linhas) {
    mModelo->setDimensoes(linhas, mModelo->Colunas());
    pMostraCabecalhos();
}

int Grid::Colunas() const {
    return mModelo->Colunas();
}

void Grid::setColunas(int colunas) {
    mModelo->setDimensoes(mModelo->Linhas(), colunas);
    pMostraCabecalhos();
}

int Grid::LinhasFixas() const {
    return mModelo->LinhasFixas();
}

void Grid::setLinhasFixas(int linhas) {
    mModelo->setFixas(linhas, mModelo->ColunasFixas());
    pMostraCabecalhos();
}

int Grid::ColunasFixas() const {
    return mModelo->ColunasFixas();
}

void Grid::setColunasFixas(int colunas) {
    mModelo->setFixas(mModelo->LinhasFixas(), colunas);
    pMostraCabecalhos();
}

int Grid::LarguraColuna(int coluna) const {
    mModelo->ConfereColuna(coluna);
    const int pixels = coluna < mModelo->ColunasFixas()
                           ? mTabela->verticalHeader()->width()
                           : mTabela->columnWidth(coluna - mModelo->ColunasFixas());
    return pixels * TwipsPorPixel;
}

void Grid::setLarguraColuna(int coluna, int twips) {
    mModelo->ConfereColuna(coluna);
    const int pixels = static_cast<int>(std::lround(static_cast<double>(twips) / TwipsPorPixel));
    if (coluna < mModelo->ColunasFixas()) {
        mTabela->verticalHeader()->setFixedWidth(pixels);
    } else {
        mTabela->setColumnWidth(coluna - mModelo->ColunasFixas(), pixels);
    }
}

int Grid::AlinhamentoColuna(int coluna) const {
    return mModelo->Alinhamento(coluna);
}

void Grid::setAlinhamentoColuna(int coluna, int codigo) {
    mModelo->setAlinhamento(coluna, codigo);
}

QString Grid::TextoMatriz(int linha, int coluna) const {
    return mModelo->Texto(linha, coluna);
}

void Grid::setTextoMatriz(int linha, int coluna, const QString& texto) {
    mModelo->setTexto(linha, coluna, texto);
}

int Grid::Linha() const {
    const QModelIndex atual = mTabela->currentIndex();
    return atual.isValid() ? mModelo->LinhaDoGrid(atual.row()) : mModelo->LinhasFixas();
}

void Grid::setLinha(int linha) {
    pVaiPara(linha, Coluna());
}

int Grid::Coluna() const {
    const QModelIndex atual = mTabela->currentIndex();
    return atual.isValid() ? mModelo->ColunaDoGrid(atual.column()) : mModelo->ColunasFixas();
}

void Grid::setColuna(int coluna) {
    pVaiPara(Linha(), coluna);
}

QString Grid::TextoAtual() const {
    return TextoMatriz(Linha(), Coluna());
}

void Grid::setTextoAtual(const QString& texto) {
    setTextoMatriz(Linha(), Coluna(), texto);
}

void Grid::Limpa(bool incluiFixas) {
    mModelo->Limpa(incluiFixas);
}

void Grid::InsereLinha(int posicao) {
    mModelo->InsereLinha(posicao);
}

void Grid::RemoveLinha(int posicao) {
    mModelo->RemoveLinha(posicao);
}

bool Grid::Redesenho() const {
    return mTabela->updatesEnabled();
}

void Grid::setRedesenho(bool redesenho) {
    mTabela->setUpdatesEnabled(redesenho);
}

void Grid::ColunaNumerica(int coluna, int comprimento) {
    mModelo->setComprimento(coluna, comprimento);
}

bool Grid::Editavel() const {
    return mModelo->Editavel();
}

void Grid::setEditavel(bool editavel) {
    mModelo->setEditavel(editavel);
}

void Grid::pMostraCabecalhos() {
    mTabela->horizontalHeader()->setVisible(mModelo->LinhasFixas() > 0);
    mTabela->verticalHeader()->setVisible(mModelo->ColunasFixas() > 0);
}

// A fixed cell cannot be the current one: the cursor then stays where it is.
void Grid::pVaiPara(int linha, int coluna) {
    mModelo->Confere(linha, coluna);
    const QModelIndex indice = mModelo->IndiceDaVista(linha, coluna);
    if (indice.isValid()) {
        mTabela->setCurrentIndex(indice);
        mTabela->scrollTo(indice);
    }
}

}  // namespace halvo
