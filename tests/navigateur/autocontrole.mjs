// The checker sees the faults that it is there for: one note for each.
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { tmpdir } from 'node:os';
import { controler, lancer } from './controle.mjs';

const sommaire = (script) => `<script>${script}</script><body><div class='content'>texte</div>
<div class="conteneur"><a href="#Tab_sommaire_dynam" id="reduire_sommaire">R</a>
<div id="Tab_sommaire_dynam" class="Tab_sommaire_dynam"><ol><li>
<span onClick="expandcontent(this, 'sc1')" tabindex="0"><span class="showstate">+</span></span><a href="#1" id="1">1. A</a>
<ol id="sc1"><li>B</li></ol></li></ol></div></div></body>`;
const bascule = `function expandcontent(t, i) { var o = document.getElementById(i).style; o.display = o.display ? '' : 'none'; }
addEventListener('keydown', function (e) { if (e.key === 'Enter') expandcontent(0, 'sc1'); });
addEventListener('DOMContentLoaded', function () { document.getElementById('reduire_sommaire').onclick = function () {
  expandcontent(0, 'Tab_sommaire_dynam'); return false; }; });`;
const saine = `<style media="print">.conteneur { display: none; }</style>${sommaire(bascule)}`;
const apres = (ajout) => saine.replace('texte', `texte ${ajout}`);

const cas = [
  ['nothing', saine, null],
  ['an error of the script', saine.replace('<script>', '<script>oups();'), /script: oups/],
  ['an error on the console', saine.replace('<script>', "<script>console.error('oups');"), /console: oups/],
  ['a dead link', apres("<a href='#nulle_part'>x</a>"), /link without target: #nulle_part/],
  ['a missing file', apres("<a href='absent.svg'>x</a>"), /missing file: .*absent\.svg/],
  ['a missing drawing', apres("<object data='absent.svg' width='50' height='50'></object>"), /missing file: .*absent\.svg/],
  ['a drawing without size', apres("<object data='data:image/svg+xml,<svg/>' width='0' height='0'></object>"),
    /a drawing without size/],
  ['a hidden text', apres("<p style='display:none'>secret</p>"), /hidden text on the screen: "secret"/],
  ['a text hidden on paper', saine.replace('<style media="print">', '<style media="print">.content { display: none; }'),
    /hidden text on paper: "texte"/],
  ['a summary on paper', saine.replace('.conteneur { display: none; }', ''), /the summary is printed/],
  ['a level that stays', saine.replace("o.display = o.display ? '' : 'none'", ''), /a click leaves level 1/],
  ['a level without keyboard', saine.replace("e.key === 'Enter'", 'false'), /Enter leaves level 1/],
  ['a summary that stays', saine.replace("expandcontent(0, 'Tab_sommaire_dynam');", ''), /does not fold away/],
  ['a summary that does not come back', saine.replace('o.display ? \'\' : \'none\'', "'none'"),
    /the summary does not come back/],
  ['a wide note', apres("<div style='width: 3000px'>x</div>"), /px wide in a window of 1280/],
  ['a note wide on paper', saine.replace('<style media="print">', '<style media="print">.content { width: 900px; }'),
    /px wide on a sheet of 680/],
  ['a panel over the text', saine.replace('class="conteneur"', 'class="conteneur" style="position: fixed; top: 0; left: 0"'),
    /the summary lies over the text/],
];

const dossier = mkdtempSync(join(tmpdir(), 'fautes-'));
const navigateur = await lancer();
let rates = 0;
try {
  for (const [quoi, html, attendu] of cas) {
    const note = join(dossier, 'n.html');
    writeFileSync(note, html, 'latin1');
    const fautes = await controler(navigateur, note);
    const vu = attendu ? fautes.some((f) => attendu.test(f)) : fautes.length === 0;
    if (vu) continue;
    rates += 1;
    console.log(`not seen: ${quoi}; found: ${fautes.join('; ') || 'nothing'}`);
  }
} finally {
  await navigateur.close();
  rmSync(dossier, { recursive: true });
}
console.log(`${cas.length - rates} of ${cas.length} notes judged as they should be`);
process.exit(rates === 0 ? 0 : 1);
