#include "platform/recordstore/Edicao.h"

#include "platform/recordstore/Campos.h"
#include "platform/recordstore/Erros.h"

#include <QStringList>

#include <algorithm>

#include <sqlite3.h>

namespace recordstore {

namespace {

// Rows per statement of a batch insert: each statement costs about as much as the rows it
// writes, so fewer, longer statements halve the time; SQLite's oldest limit of 999 parameters
// bounds the length.
constexpr std::size_t MaximoLinhasPorComando = 64;
constexpr std::size_t MaximoParametros = 999;

QString sqlInsere(const MetaTabela& tabela, std::size_t linhas = 1) {
    QStringList campos;
    QStringList parametros;
    for (const auto& campo : tabela.campos) {
        campos << sql::aspas(campo.Name);
        parametros << QStringLiteral("?");
    }
    const QString linha = QLatin1Char('(') + parametros.join(QStringLiteral(", ")) + QLatin1Char(')');
    QStringList valores;
    for (std::size_t i = 0; i < linhas; ++i) {
        valores << linha;
    }
    return QStringLiteral("INSERT INTO %1 (%2) VALUES %3")
        .arg(sql::aspas(tabela.nome), campos.join(QStringLiteral(", ")), valores.join(QStringLiteral(", ")));
}

// A savepoint for the length of a scope: released by confirma, rolled back otherwise.
class PontoDeSalvamento {
public:
    explicit PontoDeSalvamento(Conexao& conexao) : mConexao(conexao) { mConexao.iniciaTransacao(); }
    ~PontoDeSalvamento() {
        if (mAtivo) {
            try {
                mConexao.reverteTransacao();
            } catch (...) {
                // The error that brought us here is the one to report.
            }
        }
    }
    PontoDeSalvamento(const PontoDeSalvamento&) = delete;
    PontoDeSalvamento& operator=(const PontoDeSalvamento&) = delete;
    void confirma() {
        mConexao.confirmaTransacao();
        mAtivo = false;
    }

private:
    Conexao& mConexao;
    bool mAtivo = true;
};

QString sqlAtualiza(const MetaTabela& tabela) {
    QStringList atribuicoes;
    for (const auto& campo : tabela.campos) {
        atribuicoes << sql::aspas(campo.Name) + QStringLiteral(" = ?");
    }
    return QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?")
        .arg(sql::aspas(tabela.nome), atribuicoes.join(QStringLiteral(", ")));
}

}  // namespace

bool Edicao::pendente() const {
    return mAtiva && mTabela.aberta() && mDescartes == mTabela.descartes();
}

void Edicao::adiciona() {
    std::vector<Valor> valores;
    for (const auto& campo : mTabela.meta().campos) {
        valores.push_back(campo.DefaultValue);
    }
    pInicia(true, 0, std::move(valores));
}

void Edicao::edita(const Linha& atual) {
    pInicia(false, atual.rowid, atual.valores);
}

const Valor& Edicao::valor(int campo) const {
    return mValores[static_cast<std::size_t>(campo)];
}

void Edicao::setValor(int campo, const Valor& valor) {
    if (!pendente()) {
        throw erroBD(ErroSemAddNewOuEdit);
    }
    mValores[static_cast<std::size_t>(campo)] =
        campos::converte(mTabela.meta().campos[static_cast<std::size_t>(campo)], valor);
}

void Edicao::grava() {
    if (!pendente()) {
        throw erroBD(ErroSemAddNewOuEdit);
    }
    Conexao& conexao = mTabela.conexao();
    const MetaTabela& meta = mTabela.meta();
    for (std::size_t i = 0; i < meta.campos.size(); ++i) {
        if (campos::recusaComprimentoZero(meta.campos[i], mValores[i])) {
            throw erroBD(ErroComprimentoZero, meta.nome + QLatin1Char('.') + meta.campos[i].Name);
        }
    }
    conexao.antesDeEscrever();
    sqlite3_stmt* q =
        mNova ? conexao.comando(mTabela.chave(TipoComando::Insere), [&] { return sqlInsere(meta); })
              : conexao.comando(mTabela.chave(TipoComando::Atualiza), [&] { return sqlAtualiza(meta); });
    int parametro = 0;
    for (std::size_t i = 0; i < meta.campos.size(); ++i) {
        sql::liga(q, ++parametro, campos::paraSql(meta.campos[i], mValores[i]));
    }
    if (!mNova) {
        sql::ligaInteiro(q, ++parametro, mRowid);
    }
    sql::passo(q);
    sql::reinicia(q);
    const bool perdido = !mNova && sqlite3_changes(conexao.bd()) == 0;
    mTabela.escreveu();
    if (perdido) {
        throw erroBD(ErroRegistroExcluido);  // deleted through another handle meanwhile
    }
    mAtiva = false;
}

void Edicao::cancela() {
    if (!pendente()) {
        throw erroBD(ErroSemAddNewOuEdit);
    }
    mAtiva = false;
}

void Edicao::exclui(std::int64_t rowid) {
    Conexao& conexao = mTabela.conexao();
    conexao.antesDeEscrever();
    sqlite3_stmt* q = conexao.comando(mTabela.chave(TipoComando::Exclui), [&] {
        return QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(sql::aspas(mTabela.meta().nome));
    });
    sql::ligaInteiro(q, 1, rowid);
    sql::passo(q);
    sql::reinicia(q);
    mTabela.escreveu();
    mAtiva = false;
}

void Edicao::insereLinhas(const std::vector<std::vector<Valor>>& linhas) {
    const MetaTabela& meta = mTabela.meta();
    const std::size_t numCampos = meta.campos.size();
    // Every row is converted and checked before anything is written.
    std::vector<ValorSql> valores;
    valores.reserve(linhas.size() * numCampos);
    for (const auto& linha : linhas) {
        if (linha.size() != numCampos) {
            throw erroBD(ErroArgumentoInvalido);
        }
        for (std::size_t i = 0; i < numCampos; ++i) {
            const Valor convertido = campos::converte(meta.campos[i], linha[i]);
            if (campos::recusaComprimentoZero(meta.campos[i], convertido)) {
                throw erroBD(ErroComprimentoZero, meta.nome + QLatin1Char('.') + meta.campos[i].Name);
            }
            valores.push_back(campos::paraSql(meta.campos[i], convertido));
        }
    }
    Conexao& conexao = mTabela.conexao();
    conexao.antesDeEscrever();
    PontoDeSalvamento salvamento(conexao);
    const std::size_t porComando = std::clamp<std::size_t>(MaximoParametros / std::max<std::size_t>(numCampos, 1),
                                                          1, MaximoLinhasPorComando);
    for (std::size_t inicio = 0; inicio < linhas.size(); inicio += porComando) {
        const std::size_t quantas = std::min(porComando, linhas.size() - inicio);
        ChaveComando chave = mTabela.chave(TipoComando::InsereLote);
        chave.variante = static_cast<unsigned>(quantas);
        sqlite3_stmt* q = conexao.comando(chave, [&] { return sqlInsere(meta, quantas); });
        const std::size_t primeiro = inicio * numCampos;
        for (std::size_t p = 0; p < quantas * numCampos; ++p) {
            sql::liga(q, static_cast<int>(p) + 1, valores[primeiro + p]);
        }
        sql::passo(q);
        sql::reinicia(q);
    }
    salvamento.confirma();
    mTabela.escreveu();
}

void Edicao::pInicia(bool nova, std::int64_t rowid, std::vector<Valor> valores) {
    mAtiva = true;
    mNova = nova;
    mRowid = rowid;
    mValores = std::move(valores);
    mDescartes = mTabela.descartes();
}

}  // namespace recordstore
