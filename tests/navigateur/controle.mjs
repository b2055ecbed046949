// Opens a calculation note in a browser as its reader does, and lists what the reader would trip over.
import { existsSync, readFileSync, writeFileSync, mkdtempSync, rmSync, symlinkSync, readdirSync } from 'node:fs';
import { basename, dirname, join, resolve } from 'node:path';
import { tmpdir } from 'node:os';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const options = [
  '--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];

export function lancer() {
  return chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: options });
}

// The note as it is where neither styles nor script were found: their elements stand empty.
function sansRessources(html) {
  return html.replace(/(<(style|script)\b[^>]*>)[^]*?(<\/\2>)/g, '$1\n$3');
}

// What follows runs in the page.

function textesCaches(racine) {
  const caches = [];
  const textes = document.createTreeWalker(document.querySelector(racine), NodeFilter.SHOW_TEXT);
  const etendue = document.createRange();
  for (let t = textes.nextNode(); t; t = textes.nextNode()) {
    if (!t.data.trim() || t.parentElement.closest('script, style')) continue;
    etendue.selectNodeContents(t);
    const boite = etendue.getBoundingClientRect();
    const style = getComputedStyle(t.parentElement);
    const lisible = boite.width > 0 && boite.height > 0 && style.visibility === 'visible' &&
      style.opacity !== '0' && parseFloat(style.fontSize) >= 6 && boite.right + scrollX > 0 && boite.bottom + scrollY > 0;
    if (!lisible) caches.push(t.data.trim().slice(0, 60));
  }
  return caches;
}

function liens() {
  const manquants = [];
  const fichiers = [];
  for (const e of document.querySelectorAll('[href], [src], object[data]')) {
    const adresse = e.getAttribute('href') ?? e.getAttribute('src') ?? e.getAttribute('data');
    if (!adresse.startsWith('#')) { fichiers.push(new URL(adresse, location.href).href); continue; }
    const nom = decodeURIComponent(adresse.slice(1));
    if (!document.getElementById(nom) && document.getElementsByName(nom).length === 0) manquants.push(adresse);
  }
  return { manquants, fichiers };
}

function debordement() {
  const large = Math.max(document.documentElement.scrollWidth, document.body.scrollWidth);
  return large > innerWidth + 1 ? large : 0;
}

// The panel of the summary must not lie over the text.
function recouvrement() {
  const panneau = document.querySelector('.conteneur')?.getBoundingClientRect();
  const texte = document.querySelector('.content')?.getBoundingClientRect();
  if (!panneau || !texte) return false;
  return panneau.left < texte.right && texte.left < panneau.right && panneau.top < texte.bottom &&
    texte.top < panneau.bottom;
}

function tailleDesDessins() {
  return [...document.querySelectorAll('object, img')]
    .filter((o) => o.getBoundingClientRect().width < 10).map((o) => o.getAttribute('data') ?? o.getAttribute('src'));
}

// Opens or closes by a click, then by the keyboard, and back.
async function controlerSommaire(page, dire, capturer) {
  const titres = page.locator('.Tab_sommaire_dynam span[onclick]');
  const nombre = await titres.count();
  for (const i of new Set([0, nombre - 1])) {
    if (i < 0) break;
    const titre = titres.nth(i);
    if (!(await titre.isVisible())) continue;
    const niveau = titre.locator('xpath=following-sibling::ol[1]');
    const ouvert = await niveau.isVisible();
    for (const [geste, agir] of [['a click', () => titre.locator('.showstate').click()], ['Enter', () => titre.press('Enter')]]) {
      await agir();
      if ((await niveau.isVisible()) === ouvert) dire(`${geste} leaves level ${i + 1} of the summary as it was`);
      await agir();
      if ((await niveau.isVisible()) !== ouvert) dire(`${geste} does not bring back level ${i + 1} of the summary`);
    }
  }
  const sommaire = page.locator('#Tab_sommaire_dynam');
  const bouton = page.locator('#reduire_sommaire');
  await bouton.click();
  if (await sommaire.isVisible()) dire('the summary does not fold away');
  if (await page.evaluate(recouvrement)) dire('the folded summary lies over the text');
  await capturer('reduit');
  await bouton.click();
  if (!(await sommaire.isVisible())) dire('the summary does not come back');
}

async function ouvrirTousLesNiveaux(page) {
  await page.evaluate(() => {
    for (const titre of document.querySelectorAll('.Tab_sommaire_dynam span[onclick]'))
      if (titre.getAttribute('aria-expanded') === 'false') titre.click();
  });
}

async function controlerLiens(page, dire) {
  const { manquants, fichiers } = await page.evaluate(liens);
  for (const m of manquants) dire(`link without target: ${m}`);
  for (const f of fichiers)
    if (!f.startsWith('file:') || !existsSync(fileURLToPath(f.split('#')[0]))) dire(`missing file: ${f}`);
  for (const d of await page.evaluate(tailleDesDessins)) dire(`a drawing without size: ${d}`);
}

async function controlerTextes(page, dire, ou, racine) {
  const caches = await page.evaluate(textesCaches, racine);
  for (const t of caches.slice(0, 5)) dire(`hidden text ${ou}: "${t}"`);
}

// A page, its name for the messages and the pictures, and where its faults go.
async function controlerPage(page, { nom, captures, dire, avecRessources }) {
  const capturer = async (suite, fullPage = false) => {
    if (!captures) return;
    const hauteur = await page.evaluate(() => document.documentElement.scrollHeight);
    await page.screenshot({ path: join(captures, `${nom}_${suite}.png`), fullPage: fullPage && hauteur < 12000 });
  };
  await capturer('ecran');
  if (avecRessources) {
    await controlerSommaire(page, dire, capturer);
    if (await page.evaluate(recouvrement)) dire('the summary lies over the text');
    await capturer('entier', true);
    await ouvrirTousLesNiveaux(page);
  } else {
    await capturer('entier', true);
  }
  await controlerLiens(page, dire);
  await controlerTextes(page, dire, 'on the screen', 'body');
  if (!avecRessources) return;
  for (const largeur of [1280, 700]) {
    await page.setViewportSize({ width: largeur, height: 900 });
    const trop = await page.evaluate(debordement);
    if (trop) dire(`the note is ${trop} px wide in a window of ${largeur}`);
    if (await page.evaluate(recouvrement)) dire(`the summary lies over the text in a window of ${largeur}`);
  }
  await capturer('etroit');
  await page.emulateMedia({ media: 'print' });
  await page.setViewportSize({ width: 680, height: 960 });
  if (await page.locator('.conteneur').isVisible()) dire('the summary is printed');
  await controlerTextes(page, dire, 'on paper', '.content');
  const trop = await page.evaluate(debordement);
  if (trop) dire(`the note is ${trop} px wide on a sheet of 680`);
  await capturer('papier', true);
  if (captures) await page.pdf({ path: join(captures, `${nom}.pdf`), preferCSSPageSize: true, printBackground: false });
}

// Faults of a note, with its resources and without them. captures: directory for pictures, or nothing.
export async function controler(navigateur, note, captures) {
  const fautes = [];
  const nom = basename(note, '.html');
  const html = readFileSync(note, 'latin1');
  for (const avecRessources of [true, false]) {
    const quoi = avecRessources ? nom : `${nom} without resources`;
    const dire = (faute) => fautes.push(`${quoi}: ${faute}`);
    // A directory of links to what the note may refer to, so that the bare note stands beside the same files.
    const dossier = mkdtempSync(join(tmpdir(), 'note-'));
    try {
      const source = dirname(resolve(note));
      for (const f of readdirSync(source)) if (f !== basename(note)) symlinkSync(join(source, f), join(dossier, f));
      const chemin = join(dossier, basename(note));
      writeFileSync(chemin, avecRessources ? html : sansRessources(html), 'latin1');
      const page = await navigateur.newPage({ viewport: { width: 1280, height: 900 } });
      page.on('console', (m) => { if (m.type() === 'error') dire(`console: ${m.text()}`); });
      page.on('pageerror', (e) => dire(`script: ${e.message}`));
      page.on('requestfailed', (r) => dire(`not loaded: ${r.url()}`));
      await page.goto(pathToFileURL(chemin).href);
      await controlerPage(page, { nom: avecRessources ? nom : `${nom}_nu`, captures, dire, avecRessources });
      await page.close();
    } finally {
      rmSync(dossier, { recursive: true });
    }
  }
  return fautes;
}
