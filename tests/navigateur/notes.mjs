// node notes.mjs CAPTURES NOTE.html...: checks the notes, leaves pictures in CAPTURES, fails on the first note
// that has a fault, after all were looked at.
import { mkdirSync } from 'node:fs';
import { controler, lancer } from './controle.mjs';

const [captures, ...notes] = process.argv.slice(2);
if (notes.length === 0) {
  console.error('no note to look at');
  process.exit(1);
}
mkdirSync(captures, { recursive: true });
const navigateur = await lancer();
let fautes = 0;
try {
  for (const note of notes) {
    const trouvees = await controler(navigateur, note, captures);
    console.log(`${note}: ${trouvees.length === 0 ? 'sound' : `${trouvees.length} faults`}`);
    for (const f of trouvees) console.log(`  ${f}`);
    fautes += trouvees.length;
  }
} finally {
  await navigateur.close();
}
process.exit(fautes === 0 ? 0 : 1);
