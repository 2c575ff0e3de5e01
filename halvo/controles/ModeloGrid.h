#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <vector>

namespace halvo {

// The cells of a Grid, fixed ones included, in the grid's own coordinates: rows and columns from
// 0, the fixed rows and columns first. The view sees only the cells that are not fixed; the fixed
// row and column become its header sections, so that they stay in view when it scrolls. Every
// position given in grid coordinates must exist (error 9 otherwise).
class ModeloGrid : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ModeloGrid(QObject* pai = nullptr);

    int Linhas() const { return static_cast<int>(mCelulas.size()); }
    int Colunas() const { return mColunas; }
    int LinhasFixas() const { return mLinhasFixas; }
    int ColunasFixas() const { return mColunasFixas; }
    // The fixed counts shrink with the grid, as they may not exceed it.
    void setDimensoes(int linhas, int colunas);
    void setFixas(int linhas, int colunas);

    const QString& Texto(int linha, int coluna) const;
    void setTexto(int linha, int coluna, const QString& texto);
    void Limpa(bool incluiFixas);
    void InsereLinha(int posicao);
    void RemoveLinha(int posicao);

    int Alinhamento(int coluna) const;
    void setAlinhamento(int coluna, int codigo);
    // The most characters typed in a numeric column; 0 for a column of any text.
    int Comprimento(int coluna) const;
    void setComprimento(int coluna, int comprimento);
    bool Editavel() const { return mEditavel; }
    void setEditavel(bool editavel) { mEditavel = editavel; }

    // Raise error 9 for a position outside the grid.
    void Confere(int linha, int coluna) const;
    void ConfereColuna(int coluna) const;

    // Grid coordinates of a cell of the view, and back.
    int LinhaDoGrid(int linhaDaVista) const { return linhaDaVista + mLinhasFixas; }
    int ColunaDoGrid(int colunaDaVista) const { return colunaDaVista + mColunasFixas; }
    QModelIndex IndiceDaVista(int linha, int coluna) const;

    int rowCount(const QModelIndex& pai = {}) const override;
    int columnCount(const QModelIndex& pai = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int secao, Qt::Orientation orientacao, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    // Only the view's editor writes through here: that is the user's edit.
    bool setData(const QModelIndex& indice, const QVariant& valor, int papel) override;

signals:
    // A cell edit was committed, in grid coordinates; alterou when the text changed.
    void Editado(int linha, int coluna, bool alterou);
    // The text of the fixed corner cell changed.
    void CantoAlterado();

private:
    struct Coluna {
        int alinhamento = 9;  // the old grid's "general": numbers to the right, text to the left
        int comprimento = 0;
    };

    void pAvisaMudanca(int linha, int coluna);

    std::vector<std::vector<QString>> mCelulas;  // by row
    std::vector<Coluna> mAtributos;
    int mColunas = 0;
    int mLinhasFixas = 0;
    int mColunasFixas = 0;
    bool mEditavel = true;
};

}  // namespace halvo
