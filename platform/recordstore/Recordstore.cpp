#include "platform/recordstore/Recordstore.h"

#include "platform/recordstore/Conexao.h"
#include "platform/recordstore/Erros.h"
#include "platform/recordstore/Esquema.h"
#include "platform/recordstore/EstadoRecordset.h"
#include "platform/recordstore/Sqlite.h"

#include <QDir>
#include <QFileInfo>

namespace recordstore {

FieldDef CreateField(const QString& nome, Tipo tipo, int tamanho) {
    return {nome, tipo, tipo == Tipo::Texto ? tamanho : 0, false, {}};
}

Database::Database(std::shared_ptr<Conexao> conexao) : m(std::move(conexao)) {}

Database::~Database() {
    m->fecha();
}

std::unique_ptr<Database> Database::CreateDatabase(const QString& caminho, const QString& /*localidade*/,
                                                   int /*opcoes*/) {
    const QFileInfo arquivo(caminho);
    if (caminho.isEmpty() || !arquivo.absoluteDir().exists()) {
        throw erroBD(ErroCaminhoInvalido, caminho);
    }
    if (arquivo.exists()) {
        throw erroBD(ErroBancoExiste);
    }
    return std::unique_ptr<Database>(new Database(Conexao::abre(caminho, true)));
}

std::unique_ptr<Database> Database::OpenDatabase(const QString& caminho) {
    if (!QFileInfo(caminho).isFile()) {
        throw erroBD(ErroArquivoInexistente, caminho);
    }
    return std::unique_ptr<Database>(new Database(Conexao::abre(caminho, false)));
}

void Database::Close() {
    m->bd();  // 3420 when already closed
    m->fecha();
}

QString Database::Name() const {
    m->bd();
    return m->caminho();
}

void Database::Append(const TableDef& tabela) {
    const MetaTabela meta = esquema::metaDe(tabela);
    if (m->existeTabela(tabela.Name)) {
        throw erroBD(ErroTabelaExiste, tabela.Name);
    }
    // The table and its indexes appear together or not at all.
    Transacao transacao(*this);
    m->antesDeMudarEsquema();
    sql::executa(m->bd(), esquema::sqlCriaTabela(meta));
    for (const auto& indice : meta.indices) {
        sql::executa(m->bd(), esquema::sqlCriaIndice(meta, indice));
    }
    transacao.Commit();
}

bool Database::ExisteTabela(const QString& nome) const {
    return m->existeTabela(nome);
}

std::vector<QString> Database::NomesDasTabelas() const {
    return m->nomesDasTabelas();
}

std::vector<FieldDef> Database::Fields(const QString& tabela) const {
    return m->tabela(tabela)->campos;
}

void Database::AppendField(const QString& tabela, const FieldDef& campo) {
    const auto meta = m->tabela(tabela);
    if (meta->posicaoCampo(campo.Name) >= 0) {
        throw erroBD(ErroCampoRepetido);
    }
    const QString ddl = esquema::sqlAcrescentaCampo(meta->nome, campo);
    m->antesDeMudarEsquema();
    sql::executa(m->bd(), ddl);
}

void Database::Execute(const QString& texto) {
    sqlite3* bd = m->bd();
    m->antesDeMudarEsquema();  // the statement may change rows or schema of any table
    QString resto;
    const Instrucao instrucao = sql::prepara(bd, texto, false, &resto);
    if (!resto.remove(QLatin1Char(';')).trimmed().isEmpty()) {
        throw erroBD(ErroTextoAposInstrucao);
    }
    while (instrucao && sql::passo(instrucao.get())) {
    }
}

std::unique_ptr<Recordset> Database::OpenRecordset(const QString& tabela) {
    auto estado = std::make_unique<Recordset::Estado>(m, tabela);
    return std::unique_ptr<Recordset>(new Recordset(std::move(estado)));
}

void Database::BeginTrans() {
    m->iniciaTransacao();
}

void Database::CommitTrans() {
    m->confirmaTransacao();
}

void Database::Rollback() {
    m->reverteTransacao();
}

Transacao::Transacao(Database& bd) : mBd(bd) {
    mBd.BeginTrans();
}

Transacao::~Transacao() {
    if (!mAtiva) {
        return;
    }
    try {
        mBd.Rollback();
    } catch (const plataforma::ErroVB&) {
        // The file was closed meanwhile, which rolled it back, or it was ended by hand.
    }
}

void Transacao::Commit() {
    mBd.CommitTrans();
    mAtiva = false;
}

}  // namespace recordstore
