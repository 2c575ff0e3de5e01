#include "platform/recordstore/Erros.h"
#include "platform/recordstore/EstadoRecordset.h"

namespace recordstore {

int Recordset::Estado::campo(const QString& nome) const {
    const int posicao = tabela.meta().posicaoCampo(nome);
    if (posicao < 0) {
        throw erroBD(ErroItemInexistente);
    }
    return posicao;
}

Recordset::Recordset(std::unique_ptr<Estado> estado) : m(std::move(estado)) {}

Recordset::~Recordset() = default;

std::unique_ptr<Recordset> Recordset::Clone() const {
    Estado& e = m->verificado();
    auto clone = std::make_unique<Estado>(e.tabela.conexaoCompartilhada(), e.tabela.meta().nome);
    clone->cursor.setIndice(e.cursor.indice());
    return std::unique_ptr<Recordset>(new Recordset(std::move(clone)));
}

QString Recordset::Name() const {
    return m->verificado().tabela.meta().nome;
}

int Recordset::FieldCount() const {
    return static_cast<int>(m->verificado().tabela.meta().campos.size());
}

QString Recordset::Index() const {
    return m->verificado().cursor.indice();
}

void Recordset::setIndex(const QString& indice) {
    Estado& e = m->verificado();
    e.edicao.descarta();
    e.cursor.setIndice(indice);
}

void Recordset::Seek(const QString& comparacao, std::initializer_list<Valor> chave) {
    Estado& e = m->verificado();
    const QString c = comparacao.trimmed();
    if (c != QLatin1String("=") && c != QLatin1String(">=")) {
        throw erroBD(ErroArgumentoInvalido);
    }
    e.edicao.descarta();
    e.noMatch = !e.cursor.busca(c == QLatin1String("="), std::vector<Valor>(chave));
}

bool Recordset::NoMatch() const {
    return m->verificado().noMatch;
}

bool Recordset::Bof() const {
    return m->verificado().cursor.bof();
}

bool Recordset::Eof() const {
    return m->verificado().cursor.eof();
}

void Recordset::MoveFirst() {
    Estado& e = m->verificado();
    e.edicao.descarta();
    e.cursor.primeiro();
}

void Recordset::MoveLast() {
    Estado& e = m->verificado();
    e.edicao.descarta();
    e.cursor.ultimo();
}

void Recordset::MoveNext() {
    Estado& e = m->verificado();
    e.edicao.descarta();
    e.cursor.proximo();
}

void Recordset::MovePrevious() {
    Estado& e = m->verificado();
    e.edicao.descarta();
    e.cursor.anterior();
}

recordstore::Bookmark Recordset::Bookmark() const {
    return m->verificado().cursor.atual().rowid;
}

void Recordset::setBookmark(recordstore::Bookmark b) {
    Estado& e = m->verificado();
    e.edicao.descarta();
    e.cursor.vaiPara(b);
}

void Recordset::AddNew() {
    m->verificado().edicao.adiciona();
}

void Recordset::Edit() {
    Estado& e = m->verificado();
    e.edicao.edita(e.cursor.atual());
}

void Recordset::Update() {
    m->verificado().edicao.grava();
}

void Recordset::CancelUpdate() {
    m->verificado().edicao.cancela();
}

void Recordset::AddNewRows(const std::vector<std::vector<Valor>>& linhas) {
    m->verificado().edicao.insereLinhas(linhas);
}

void Recordset::Delete() {
    Estado& e = m->verificado();
    e.edicao.exclui(e.cursor.atual().rowid);
    e.cursor.excluiu();
}

void Recordset::Close() {
    m->verificado().tabela.fecha();
}

Valor Recordset::campo(const QString& nome) const {
    Estado& e = m->verificado();
    const int posicao = e.campo(nome);
    if (e.edicao.pendente()) {
        return e.edicao.valor(posicao);
    }
    return e.cursor.atual().valores[static_cast<std::size_t>(posicao)];
}

void Recordset::setCampo(const QString& nome, const Valor& valor) {
    Estado& e = m->verificado();
    e.edicao.setValor(e.campo(nome), valor);
}

}  // namespace recordstore
