#include "platform/recordstore/Edicao.h"

#include "platform/recordstore/Campos.h"
#include "platform/recordstore/Erros.h"

#include <QStringList>

#include <sqlite3.h>

namespace recordstore {

namespace {

QString sqlInsere(const MetaTabela& tabela) {
    QStringList campos;
    QStringList parametros;
    for (const auto& campo : tabela.campos) {
        campos << sql::aspas(campo.Name);
        parametros << QStringLiteral("?");
    }
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(sql::aspas(tabela.nome), campos.join(QStringLiteral(", ")),
             parametros.join(QStringLiteral(", ")));
}

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

void Edicao::pInicia(bool nova, std::int64_t rowid, std::vector<Valor> valores) {
    mAtiva = true;
    mNova = nova;
    mRowid = rowid;
    mValores = std::move(valores);
    mDescartes = mTabela.descartes();
}

}  // namespace recordstore
